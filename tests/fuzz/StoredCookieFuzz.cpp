// The cookies the vault restores from the secure store. Whatever reads must survive the next
// save and restore unchanged: a session cookie that changes between runs is a lost session.

#include "app/service/StoredCookies.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString kept = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const QList<QNetworkCookie> read = vl::readStoredCookies(kept);
    const QList<QNetworkCookie> again = vl::readStoredCookies(vl::writeStoredCookies(read));
    if (again.size() != read.size())
        std::abort();
    for (qsizetype i = 0; i < read.size(); ++i) {
        if (again[i].name() != read[i].name() || again[i].value() != read[i].value())
            std::abort();
    }
    return 0;
}
