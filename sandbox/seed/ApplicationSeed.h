#pragma once

namespace vl {

class Clock;
class Store;

// Applications the seeded job seekers already sent: one replied to, one with an interview, one
// withdrawn, each with its CV.
namespace ApplicationSeed {
void write(Store& store, const Clock& clock);
}

} // namespace vl
