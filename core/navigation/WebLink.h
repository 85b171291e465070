#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace vl {

// The listing a web link opened from outside names: only "/vacancy/<slug>", with or without a
// language piece in front. A "/gig/" link names nothing here, although the same path from a
// notification does.
std::optional<QString> vacancyRefOfWebLink(const QUrl& url);

} // namespace vl
