#pragma once

#include <QByteArray>
#include <QString>

namespace vl {

// A base64url challenge or user id as bytes; text that does not decode gives no bytes, and the
// ceremony goes on with them.
QByteArray decodeChallenge(const QString& text);

// Bytes for a passkey call: base64url without padding.
QString encodeWebAuthn(const QByteArray& bytes);

} // namespace vl
