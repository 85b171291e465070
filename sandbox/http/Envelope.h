#pragma once

#include "sandbox/http/Reply.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QString>

namespace vl::Envelope {

// {"ok":true,"data":...}
Reply ok(const QJsonValue& data);
// {"ok":true,"data":[...],"meta":{...}}
Reply list(const QJsonArray& items, const QJsonObject& meta);
// {"ok":false,"error":code} with a fitting HTTP status.
Reply fail(int status, const QString& code);

// The usual refusals.
Reply badInput(const QString& code);
Reply unauthorized();
Reply rateLimited();
Reply notFound();

} // namespace vl::Envelope
