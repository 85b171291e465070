#include "core/navigation/PushRoutes.h"

#include <array>
#include <utility>

namespace vl {

QString rawValue(PushPlace place)
{
    switch (place) {
    case PushPlace::reputation:
        return QStringLiteral("reputation");
    case PushPlace::listings:
        return QStringLiteral("listings");
    case PushPlace::seekerInbox:
        return QStringLiteral("seekerInbox");
    case PushPlace::support:
        return QStringLiteral("support");
    case PushPlace::billing:
        return QStringLiteral("billing");
    case PushPlace::verify:
        break;
    }
    return QStringLiteral("verify");
}

namespace {

QString hostAndPort(const QUrl& url)
{
    QString out = url.host();
    if (out.startsWith(QLatin1StringView("www.")))
        out.remove(0, 4);
    if (url.port() != -1)
        out += QLatin1Char(':') + QString::number(url.port());
    return out;
}

using Make = PushRoute (*)(QString);

} // namespace

PushRoutes::PushRoutes(const QString& site)
{
    const QString host = hostAndPort(QUrl(site));
    if (!host.isEmpty())
        m_origins << QStringLiteral("https://") + host << QStringLiteral("https://www.") + host;
    m_origins << QString::fromLatin1(developmentOrigin);
}

bool PushRoutes::isOwn(const QUrl& url) const
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    const QString origin = url.adjusted(QUrl::RemovePath | QUrl::RemoveQuery |
                                        QUrl::RemoveFragment | QUrl::RemoveUserInfo)
                               .toString(QUrl::FullyEncoded);
    return m_origins.contains(origin, Qt::CaseInsensitive);
}

QString PushRoutes::normalise(const QString& link) const
{
    QString path = link.trimmed();
    for (const QString& origin : m_origins) {
        if (path.startsWith(origin, Qt::CaseInsensitive)) {
            path.remove(0, origin.size());
            break;
        }
    }
    if (const qsizetype query = path.indexOf(QLatin1Char('?')); query >= 0)
        path.truncate(query);
    if (const qsizetype fragment = path.indexOf(QLatin1Char('#')); fragment >= 0)
        path.truncate(fragment);
    for (const char* prefix : {"/ka", "/en", "/ru"}) {
        const QLatin1StringView language(prefix);
        if (path == language)
            path.clear();
        else if (path.startsWith(language) && path.mid(language.size()).startsWith('/'))
            path.remove(0, language.size());
    }
    return path.isEmpty() ? QStringLiteral("/") : path;
}

PushRoute PushRoutes::route(const QString& link) const
{
    const QString path = normalise(link);

    static const std::array<std::pair<const char*, PushPlace>, 8> exact{{
        {"/rep/badges", PushPlace::reputation},
        {"/inbox/listings", PushPlace::listings},
        {"/inbox/seeker", PushPlace::seekerInbox},
        {"/inbox/support", PushPlace::support},
        {"/support", PushPlace::support},
        {"/inbox/pro", PushPlace::billing},
        {"/inbox/banner", PushPlace::billing},
        {"/verify", PushPlace::verify},
    }};
    for (const auto& [known, place] : exact) {
        if (path == QLatin1StringView(known))
            return PushRoute::at(place);
    }

    static const std::array<std::pair<const char*, Make>, 8> prefixes{{
        {"/inbox/application/", PushRoute::application},
        {"/account/applications/", PushRoute::application},
        {"/inbox/thread/", PushRoute::thread},
        {"/account/messages/", PushRoute::thread},
        {"/me/application/", PushRoute::candidate},
        {"/application/", PushRoute::candidate},
        {"/gig/", [](QString rest) { return PushRoute::job(refOfSlug(rest)); }},
        {"/vacancy/", [](QString rest) { return PushRoute::job(refOfSlug(rest)); }},
    }};
    for (const auto& [prefix, make] : prefixes) {
        const QLatin1StringView start(prefix);
        if (!path.startsWith(start))
            continue;
        const QString rest = path.mid(start.size());
        if (rest.isEmpty() || rest.startsWith(QLatin1Char('/')))
            return PushRoute::unknown(path);
        return make(rest);
    }
    return PushRoute::unknown(path);
}

QString PushRoutes::refOfSlug(const QString& slug)
{
    const QStringList pieces = slug.split(QLatin1Char('-'), Qt::SkipEmptyParts);
    return (pieces.isEmpty() ? slug : pieces.first()).toUpper();
}

} // namespace vl
