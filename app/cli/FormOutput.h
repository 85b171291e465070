#pragma once

#include <QString>
#include <optional>

namespace vl::cli {

// A form's refusal: {"error":"form","message":…} with "badField" when one is named and
// "webFormOnly":true when the listing takes applications on the web only. Returns 1.
int printFormError(const QString& message, const std::optional<QString>& badField = std::nullopt,
                   bool webFormOnly = false);

// No job seeker is signed in, or the service no longer knows the session. Returns 1.
int printSignIn();

} // namespace vl::cli
