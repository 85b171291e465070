#pragma once

#include "core/l10n/Lang.h"
#include "core/service/APIError.h"

#include <QJsonValue>

namespace vl::cli {

// One JSON document on its own line on stdout.
void printJson(const QJsonValue& value);

// The failure as JSON on stdout ({"error":"server","code":…}, {"error":"http","status":…} or
// {"error":"network"}) and its words on stderr. Returns the exit code, 1.
int printError(const APIError& error, Lang lang);

// A line on stderr, for usage and local validation messages. Returns the exit code, 2.
int printUsage(const QString& text);

} // namespace vl::cli
