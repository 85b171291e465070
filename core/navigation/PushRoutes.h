#pragma once

#include "core/navigation/PushRoute.h"

#include <QStringList>
#include <QUrl>

namespace vl {

// Turns links and notification paths into routes. Built from the service's web origin, which
// is accepted in both its spellings (with and without "www.") over https, next to the local
// development origin.
class PushRoutes {
public:
    static constexpr const char* developmentOrigin = "http://localhost:4321";

    explicit PushRoutes(const QString& site);

    // The origins stripped from a link, in the order they are tried.
    const QStringList& origins() const { return m_origins; }
    // Whether a URL lies on one of those origins.
    bool isOwn(const QUrl& url) const;

    // The bare path: no origin, no query or fragment, no language prefix; "/" at least.
    QString normalise(const QString& link) const;
    PushRoute route(const QString& link) const;

    // The ref a slug such as "abc123-barista-batumi" names: its first piece, upper-cased.
    static QString refOfSlug(const QString& slug);

private:
    QStringList m_origins;
};

} // namespace vl
