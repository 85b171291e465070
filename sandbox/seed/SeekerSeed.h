#pragma once

namespace vl {

class Clock;
class Store;

// Job seekers to sign in as: with an authenticator, without a second factor yet, mail-only
// (with and without an authenticator), and one address that is also an employer.
namespace SeekerSeed {
void write(Store& store, const Clock& clock);
}

} // namespace vl
