#include "sandbox/Router.h"

#include "sandbox/http/Envelope.h"

namespace vl {

namespace {

bool isPlaceholder(const QString& segment)
{
    return segment.size() > 2 && segment.startsWith(u'{') && segment.endsWith(u'}');
}

} // namespace

void Router::add(const QByteArray& method, const QString& pattern, Handler handler)
{
    m_routes.append({method, pattern.split(u'/', Qt::SkipEmptyParts), std::move(handler)});
}

// The number of placeholders the route needed to match, or -1 when it doesn't match.
int Router::match(const Route& route, const QStringList& segments, Request* request)
{
    if (route.segments.size() != segments.size())
        return -1;
    int placeholders = 0;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const QString& want = route.segments[i];
        if (isPlaceholder(want)) {
            ++placeholders;
            if (request)
                request->params.insert(want.mid(1, want.size() - 2), segments[i]);
        } else if (want != segments[i]) {
            return -1;
        }
    }
    return placeholders;
}

Reply Router::dispatch(Request request) const
{
    const QStringList segments = request.path.split(u'/', Qt::SkipEmptyParts);
    const Route* best = nullptr;
    int bestScore = -1;
    for (const Route& route : m_routes) {
        if (route.method != request.method)
            continue;
        const int score = match(route, segments, nullptr);
        if (score >= 0 && (!best || score < bestScore)) {
            best = &route;
            bestScore = score;
        }
    }
    if (!best)
        return Envelope::notFound();
    match(*best, segments, &request);
    return best->handler(request);
}

} // namespace vl
