// The lists kept in the secure store (applications sent, seeker profiles posted), read as the
// store hands them back: whatever reads must write back to text that reads to the same list.

#include "core/identity/StoredEntries.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

template <class Entry>
void roundTrip(const QByteArray& bytes)
{
    const auto read = vl::json::decode<std::vector<Entry>>(bytes);
    if (!read)
        return;
    const auto again = vl::json::decode<std::vector<Entry>>(vl::json::encode(*read));
    if (!again || vl::json::hashValue(*again) != vl::json::hashValue(*read) ||
        again->size() != read->size())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    roundTrip<vl::CandidateEntry>(bytes);
    roundTrip<vl::SeekerProfileEntry>(bytes);
    return 0;
}
