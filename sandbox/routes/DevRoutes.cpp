#include "sandbox/routes/DevRoutes.h"

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/dev/FaultTable.h"
#include "sandbox/dev/Outbox.h"
#include "sandbox/dev/RequestLog.h"
#include "sandbox/http/Envelope.h"

namespace vl::DevRoutes {

namespace {

Reply setFault(FaultTable& faults, const Request& request)
{
    const QJsonObject body = request.json();
    const QByteArray method =
        body.value(QStringLiteral("method")).toString(QStringLiteral("GET")).toUpper().toLatin1();
    const QString path = body.value(QStringLiteral("path")).toString();
    if (!path.startsWith(u'/'))
        return Envelope::badInput(QStringLiteral("path"));
    const QString mode = body.value(QStringLiteral("mode")).toString();
    Fault fault;
    if (mode == QLatin1String("none")) {
        faults.clear(method, path);
        return Envelope::ok(QJsonObject{});
    }
    if (mode == QLatin1String("slow")) {
        fault.mode = Fault::Mode::Slow;
        fault.delay = body.value(QStringLiteral("delay")).toDouble(1);
        // Written so that NaN fails too.
        if (!(fault.delay >= 0 && fault.delay <= Fault::longestDelay))
            return Envelope::badInput(QStringLiteral("delay"));
    } else if (mode == QLatin1String("html")) {
        fault.mode = Fault::Mode::Html;
    } else if (mode == QLatin1String("status")) {
        fault.mode = Fault::Mode::Status;
        fault.status = body.value(QStringLiteral("status")).toInt(500);
        fault.body = body.value(QStringLiteral("body")).toString(QStringLiteral("html"));
        fault.code = body.value(QStringLiteral("code")).toString();
        if (fault.status < 100 || fault.status > 599)
            return Envelope::badInput(QStringLiteral("status"));
    } else if (mode == QLatin1String("drop")) {
        fault.mode = Fault::Mode::Drop;
    } else {
        return Envelope::badInput(QStringLiteral("mode"));
    }
    faults.set(method, path, fault);
    return Envelope::ok(QJsonObject{});
}

} // namespace

void install(Router& router, Context& context)
{
    router.add("GET", QStringLiteral("/dev/outbox"),
               [&context](const Request&) { return Envelope::ok(context.outbox.toJson()); });
    router.add("GET", QStringLiteral("/dev/requests"),
               [&context](const Request&) { return Envelope::ok(context.requests.toJson()); });
    router.add("POST", QStringLiteral("/dev/fault"),
               [&context](const Request& request) { return setFault(context.faults, request); });
    router.add("POST", QStringLiteral("/dev/fault/clear"), [&context](const Request&) {
        context.faults.clearAll();
        return Envelope::ok(QJsonObject{});
    });
    router.add("POST", QStringLiteral("/dev/clock"), [&context](const Request& request) {
        const auto now = Clock::parse(request.json().value(QStringLiteral("now")).toString());
        if (!now)
            return Envelope::badInput(QStringLiteral("now"));
        context.clock.set(*now);
        return Envelope::ok(QJsonObject{{QStringLiteral("now"), Clock::iso(context.clock.now())}});
    });
}

} // namespace vl::DevRoutes
