#pragma once

#include <QString>

namespace vl::Secrets {

// Hexadecimal text of `bytes` random bytes from the system's generator: tokens and tickets.
QString token(int bytes = 32);
// `count` random decimal digits: mailed codes.
QString digits(int count);
// A loose check of an address: something, "@", something with a dot, and no blanks.
bool isEmail(const QString& address);

} // namespace vl::Secrets
