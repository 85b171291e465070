// The single-instance socket's reader, fed bytes in pieces whose sizes the input picks: the links
// must not depend on how the bytes were cut, and none may pass the bound.

#include "core/navigation/HandOverReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::size_t step = std::size_t(data[0]) + 1;
    const QByteArrayView bytes(reinterpret_cast<const char*>(data) + 1, qsizetype(size - 1));

    vl::HandOverReader whole;
    const QStringList all = whole.feed(bytes);

    vl::HandOverReader pieces;
    QStringList cut;
    for (qsizetype at = 0; at < bytes.size(); at += qsizetype(step))
        cut += pieces.feed(bytes.sliced(at, std::min(qsizetype(step), bytes.size() - at)));

    if (cut != all || pieces.overflowed() != whole.overflowed())
        std::abort();
    // Bytes that are not UTF-8 widen when written back, so the bound holds for what was read:
    // no byte decodes into more than one UTF-16 unit.
    for (const QString& link : all) {
        if (link.size() > vl::HandOverReader::maxLink)
            std::abort();
    }
    return 0;
}
