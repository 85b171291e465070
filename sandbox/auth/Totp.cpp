#include "sandbox/auth/Totp.h"

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <string>

namespace vl::Totp {

namespace {

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";

} // namespace

QString base32Encode(const QByteArray& bytes)
{
    QString out;
    quint32 buffer = 0;
    int bits = 0;
    for (const char byte : bytes) {
        buffer = (buffer << 8) | quint8(byte);
        bits += 8;
        while (bits >= 5) {
            out.append(QLatin1Char(alphabet[(buffer >> (bits - 5)) & 31]));
            bits -= 5;
        }
    }
    if (bits > 0)
        out.append(QLatin1Char(alphabet[(buffer << (5 - bits)) & 31]));
    return out;
}

QByteArray base32Decode(const QString& text)
{
    QByteArray out;
    quint32 buffer = 0;
    int bits = 0;
    for (const QChar c : text) {
        if (c.isSpace() || c == u'=')
            continue;
        const char upper = c.toUpper().toLatin1();
        const char* at = upper ? std::char_traits<char>::find(alphabet, 32, upper) : nullptr;
        if (!at)
            return {};
        buffer = (buffer << 5) | quint32(at - alphabet);
        bits += 5;
        if (bits >= 8) {
            out.append(char((buffer >> (bits - 8)) & 0xff));
            bits -= 8;
        }
    }
    return out;
}

QString hotp(const QByteArray& key, quint64 counter)
{
    QByteArray message(8, 0);
    for (int i = 7; i >= 0; --i) {
        message[i] = char(counter & 0xff);
        counter >>= 8;
    }
    const QByteArray mac = QMessageAuthenticationCode::hash(message, key, QCryptographicHash::Sha1);
    const int offset = mac[mac.size() - 1] & 0x0f;
    const quint32 binary =
        (quint32(quint8(mac[offset]) & 0x7f) << 24) | (quint32(quint8(mac[offset + 1])) << 16) |
        (quint32(quint8(mac[offset + 2])) << 8) | quint32(quint8(mac[offset + 3]));
    return QStringLiteral("%1").arg(binary % 1000000, 6, 10, QLatin1Char('0'));
}

QString at(const QString& secret, qint64 unixTime)
{
    return hotp(base32Decode(secret), quint64(unixTime / step));
}

bool verify(const QString& secret, const QString& code, qint64 unixTime)
{
    const QByteArray key = base32Decode(secret);
    const QString typed = code.trimmed();
    if (key.isEmpty() || typed.size() != 6)
        return false;
    const qint64 counter = unixTime / step;
    for (qint64 c = counter - 1; c <= counter + 1; ++c) {
        if (c >= 0 && hotp(key, quint64(c)) == typed)
            return true;
    }
    return false;
}

QString newSecret()
{
    QByteArray key(20, Qt::Uninitialized);
    for (char& byte : key)
        byte = char(QRandomGenerator::system()->bounded(256));
    return base32Encode(key);
}

} // namespace vl::Totp
