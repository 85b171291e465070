#pragma once

#include <QByteArray>
#include <QString>

namespace vl::Totp {

// Time-based one-time codes (RFC 6238): HMAC-SHA1, six digits, 30-second steps.
constexpr qint64 step = 30;

// RFC 4648 base32 without padding, the text form of a secret that authenticators read.
QString base32Encode(const QByteArray& bytes);
// Case-insensitive; blanks and "=" are ignored. Anything else outside the alphabet gives an
// empty result.
QByteArray base32Decode(const QString& text);

// The code of counter `counter` for a raw key (RFC 4226).
QString hotp(const QByteArray& key, quint64 counter);
// The code of a base32 secret at a moment.
QString at(const QString& secret, qint64 unixTime);
// True when `code` is the code of the current step or of either neighbour, so that a clock a
// little off, or a code typed as the step turns, still counts.
bool verify(const QString& secret, const QString& code, qint64 unixTime);
// A new random secret of 20 bytes, as base32.
QString newSecret();

} // namespace vl::Totp
