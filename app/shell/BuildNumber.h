#pragma once

#include <QString>

namespace vl {

// The running build's number as the version gate compares it: a decimal integer with an optional
// sign; an empty or unreadable value is the largest integer, so no gate can close on it.
qint64 parseBuildNumber(const QString& text);

// This client's own build number, set by the build.
qint64 runningBuildNumber();

// Whether this is a pre-release package, set by the build.
bool prereleaseBuild();

} // namespace vl
