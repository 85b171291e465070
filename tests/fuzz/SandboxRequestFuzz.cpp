// The sandbox's reading of a request: the input is cut into a request line, header lines and a
// body, then routed as the server routes it and read the way handlers read it.

#include "sandbox/Router.h"
#include "sandbox/http/Envelope.h"

#include <cstddef>
#include <cstdint>

namespace {

vl::Request requestOf(const QByteArray& bytes)
{
    vl::Request request;
    const qsizetype split = bytes.indexOf("\n\n");
    const QByteArray head = split < 0 ? bytes : bytes.first(split);
    request.body = split < 0 ? QByteArray() : bytes.sliced(split + 2);
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> start = lines.takeFirst().split(' ');
    request.method = start.value(0);
    const QByteArray target = start.value(1);
    const qsizetype question = target.indexOf('?');
    request.path = QString::fromUtf8(question < 0 ? target : target.first(question));
    if (question >= 0) {
        request.rawQuery = QString::fromUtf8(target.sliced(question + 1));
        request.query.setQuery(request.rawQuery);
    }
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            request.headers.append({line.first(colon), line.sliced(colon + 1).trimmed()});
    }
    return request;
}

vl::Reply read(const vl::Request& request)
{
    (void)request.bearer();
    (void)request.cookie("vl_cand");
    (void)request.cookie("vl_session");
    (void)request.queryValue(QStringLiteral("q"));
    return vl::Envelope::ok(request.json().value(QStringLiteral("locale")));
}

const vl::Router& router()
{
    static const vl::Router routes = [] {
        vl::Router r;
        r.add("GET", QStringLiteral("/api/jobs"), read);
        r.add("GET", QStringLiteral("/api/jobs/{ref}"), read);
        r.add("GET", QStringLiteral("/api/jobs/featured"), read);
        r.add("POST", QStringLiteral("/api/auth/request"), read);
        r.add("POST", QStringLiteral("/api/chat/{id}/messages/{msg}"), read);
        return r;
    }();
    return routes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    (void)router().dispatch(requestOf(bytes));
    return 0;
}
