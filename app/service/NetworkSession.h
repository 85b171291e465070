#pragma once

#include <QNetworkAccessManager>
#include <memory>

namespace vl {

// The one network session of the process: its cookie jar holds the job seeker's session cookie
// and its disk cache (160 MiB in the XDG cache folder) answers reads as the service's headers
// allow.
std::unique_ptr<QNetworkAccessManager> makeNetworkSession();

} // namespace vl
