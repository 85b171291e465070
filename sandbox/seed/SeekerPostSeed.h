#pragma once

namespace vl {

class Clock;
class Store;

// Forty live seeker profiles, written in Georgian, English and Russian.
namespace SeekerPostSeed {
void write(Store& store, const Clock& clock);
}

} // namespace vl
