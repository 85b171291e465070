#include "app/cli/CandidateCommand.h"

#include "app/cli/CliOutput.h"
#include "app/cli/PendingSignIn.h"
#include "app/identity/CandidateGate.h"
#include "app/shell/AppContext.h"
#include "core/applying/MyActivityPayload.h"
#include "core/identity/TotpKey.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vl::cli {

namespace {

using Step = CandidateGate::Step;

const QString usage = QStringLiteral(
    "usage: velmora-cli candidate request-code EMAIL | verify EMAIL CODE | totp-setup | "
    "totp-enroll CODE | totp-login CODE | continue | sign-out | status");

int gateFailure(const CandidateGate& gate)
{
    printJson(QJsonObject{{QStringLiteral("error"), QStringLiteral("form")},
                          {QStringLiteral("message"), gate.error().value_or(QString())}});
    printUsage(gate.error().value_or(QString()));
    return 1;
}

QJsonObject signedInObject(const AppContext& context)
{
    return {{QStringLiteral("signedIn"), true},
            {QStringLiteral("email"), context.candidate.email().value_or(QString())}};
}

// Runs one step of the form on the sign-in kept from the last command.
QCoro::Task<int> stepOfPending(AppContext& context, CandidateGate& gate, QString action,
                               QString code)
{
    const auto pending = pendingSignIn::load();
    if (!pending || pending->ticket.isEmpty())
        co_return printUsage(QStringLiteral("velmora-cli candidate: no sign-in under way"));
    gate.resume(*pending);
    gate.code = code;
    if (action == QLatin1StringView("totp-setup"))
        co_await gate.useAuthenticatorApp();
    else if (action == QLatin1StringView("totp-enroll"))
        co_await gate.enrollTotp();
    else if (action == QLatin1StringView("totp-login"))
        co_await gate.verifyFactor();
    else
        co_await gate.continueMailOnly();
    if (gate.error())
        co_return gateFailure(gate);
    if (!gate.finished()) {
        pendingSignIn::save(gate.pending());
        printJson(QJsonObject{{QStringLiteral("secret"), gate.totpSecret()},
                              {QStringLiteral("otpauth"), otpauthUri(gate.totpSecret())}});
        co_return 0;
    }
    pendingSignIn::clear();
    if (action == QLatin1StringView("totp-enroll")) {
        const QStringList codes = context.candidate.pendingRecovery().value_or(QStringList());
        printJson(QJsonObject{{QStringLiteral("recovery"), QJsonArray::fromStringList(codes)}});
    } else {
        printJson(signedInObject(context));
    }
    co_return 0;
}

QCoro::Task<bool> sessionAccepted(AppContext& context)
{
    const auto activity =
        co_await context.api().call<MyActivityPayload>({.shape = APIClient::Shape::bearerRead,
                                                        .path = QStringLiteral("my/activity"),
                                                        .fresh = true},
                                                       &context.candidate);
    co_return activity.ok();
}

} // namespace

QCoro::Task<int> runCandidate(AppContext& context, QStringList args)
{
    const QString action = args.value(0);
    // The command line opens nothing: the link is printed for the person to use.
    CandidateGate gate(context.candidate, context.appState, [](const QUrl&) { return false; });
    if (action == QLatin1StringView("request-code") && args.size() == 2) {
        gate.email = args[1];
        co_await gate.sendCode();
        if (gate.step() != Step::code)
            co_return gateFailure(gate);
        pendingSignIn::save(gate.pending());
        printJson(QJsonObject{{QStringLiteral("sent"), true}});
        co_return 0;
    }
    if (action == QLatin1StringView("verify") && args.size() == 3) {
        gate.resume({Step::code, args[1], {}, false, {}});
        gate.code = args[2];
        co_await gate.verifyCode();
        if (gate.error())
            co_return gateFailure(gate);
        if (gate.finished())
            pendingSignIn::clear();
        else
            pendingSignIn::save(gate.pending());
        printJson(QJsonObject{{QStringLiteral("step"), gate.finished()
                                                           ? QStringLiteral("signedIn")
                                                           : pendingSignIn::stepName(gate.step())},
                              {QStringLiteral("mailOnly"), gate.mailOnly()}});
        co_return 0;
    }
    if ((action == QLatin1StringView("totp-enroll") || action == QLatin1StringView("totp-login")) &&
        args.size() == 2)
        co_return co_await stepOfPending(context, gate, action, args[1]);
    if ((action == QLatin1StringView("totp-setup") || action == QLatin1StringView("continue")) &&
        args.size() == 1)
        co_return co_await stepOfPending(context, gate, action, QString());
    if (action == QLatin1StringView("sign-out") && args.size() == 1) {
        pendingSignIn::clear();
        co_await context.candidate.signOut();
        printJson(QJsonObject{{QStringLiteral("signedIn"), false}});
        co_return 0;
    }
    if (action == QLatin1StringView("status") && args.size() == 1) {
        const auto& email = context.candidate.email();
        const bool session = co_await sessionAccepted(context);
        printJson(QJsonObject{
            {QStringLiteral("email"), email ? QJsonValue(*email) : QJsonValue(QJsonValue::Null)},
            {QStringLiteral("session"), session}});
        co_return 0;
    }
    co_return printUsage(usage);
}

} // namespace vl::cli
