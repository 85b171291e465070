#include "core/identity/WebAuthn.h"

namespace vl {

QByteArray decodeChallenge(const QString& text)
{
    QByteArray standard = text.toLatin1();
    standard.replace('-', '+').replace('_', '/');
    standard.append(QByteArray((-standard.size()) & 3, '='));
    auto decoded =
        QByteArray::fromBase64Encoding(standard, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return {};
    return *decoded;
}

QString encodeWebAuthn(const QByteArray& bytes)
{
    QByteArray text = bytes.toBase64();
    text.replace('+', '-').replace('/', '_');
    text.replace("=", "");
    return QString::fromLatin1(text);
}

} // namespace vl
