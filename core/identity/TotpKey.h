#pragma once

#include <QString>

namespace vl {

// The authenticator's link for a new secret. The account part stays empty on purpose: no
// address goes into the user's authenticator from here, and nothing is percent-encoded.
QString otpauthUri(const QString& secret);

// The secret in groups of four characters, as the user copies it by hand.
QString groupedSecret(const QString& secret);

} // namespace vl
