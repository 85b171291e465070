#pragma once

#include "sandbox/http/Reply.h"

#include <QJsonObject>
#include <QString>

// The convention of the sign-in calls under /api/candidate/: a bare record on success, and
// {"error": text} with a status of 400 or above on failure.
namespace vl::Bare {

Reply ok(const QJsonObject& record);
Reply error(int status, const QString& text);

// The ticket is unknown or has expired.
Reply badTicket();
// A wrong authenticator or recovery code.
Reply codeMismatch();
Reply rateLimited();

} // namespace vl::Bare
