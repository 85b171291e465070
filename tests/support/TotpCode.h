#pragma once

#include <QDateTime>
#include <QString>

namespace vl::test {

// The six digits an authenticator shows for a base32 secret at a moment (RFC 6238: SHA-1, 30 s).
QString totpCode(const QString& base32Secret,
                 const QDateTime& at = QDateTime::currentDateTimeUtc());

} // namespace vl::test
