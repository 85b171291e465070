#include "tests/support/TotpCode.h"

#include <QMessageAuthenticationCode>

namespace vl::test {

namespace {

QByteArray base32(const QString& text)
{
    static const QByteArray alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
    QByteArray out;
    quint32 buffer = 0;
    int bits = 0;
    for (QChar c : text.toUpper()) {
        const qsizetype value = alphabet.indexOf(char(c.toLatin1()));
        if (value < 0)
            continue;
        buffer = (buffer << 5) | quint32(value);
        bits += 5;
        if (bits >= 8) {
            bits -= 8;
            out.append(char((buffer >> bits) & 0xff));
        }
    }
    return out;
}

} // namespace

QString totpCode(const QString& base32Secret, const QDateTime& at)
{
    const quint64 step = quint64(at.toSecsSinceEpoch()) / 30;
    QByteArray counter(8, '\0');
    for (int i = 0; i < 8; ++i)
        counter[7 - i] = char((step >> (8 * i)) & 0xff);
    const QByteArray mac =
        QMessageAuthenticationCode::hash(counter, base32(base32Secret), QCryptographicHash::Sha1);
    const int offset = mac[mac.size() - 1] & 0x0f;
    const quint32 binary =
        (quint32(quint8(mac[offset]) & 0x7f) << 24) | (quint32(quint8(mac[offset + 1])) << 16) |
        (quint32(quint8(mac[offset + 2])) << 8) | quint32(quint8(mac[offset + 3]));
    return QStringLiteral("%1").arg(binary % 1000000, 6, 10, QLatin1Char('0'));
}

} // namespace vl::test
