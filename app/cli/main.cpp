#include "app/cli/ApiCommand.h"
#include "app/cli/ApplyCommand.h"
#include "app/cli/CandidateCommand.h"
#include "app/cli/CliOutput.h"
#include "app/cli/SeekerCommand.h"
#include "app/cli/ShellCommands.h"
#include "app/cli/TextsCommand.h"
#include "app/shell/AppContext.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

QCoro::Task<int> dispatch(vl::AppContext& context, QStringList args)
{
    using namespace vl::cli;
    const QString command = args.isEmpty() ? QString() : args.takeFirst();
    if (command == QLatin1StringView("lang"))
        co_return runLang(context, args);
    if (command == QLatin1StringView("texts"))
        co_return runTexts(args);
    // The rest act with the stored identity.
    co_await context.start();
    if (command == QLatin1StringView("api"))
        co_return co_await runApi(context, args);
    if (command == QLatin1StringView("boot"))
        co_return co_await runBoot(context);
    if (command == QLatin1StringView("employer"))
        co_return co_await runEmployer(context, args);
    if (command == QLatin1StringView("candidate"))
        co_return co_await runCandidate(context, args);
    if (command == QLatin1StringView("apply"))
        co_return co_await runApply(context, args);
    if (command == QLatin1StringView("seeker"))
        co_return co_await runSeeker(context, args);
    co_return printUsage(QStringLiteral(
        "usage: velmora-cli api|boot|lang|employer|candidate|apply|seeker|texts ..."));
}

// Every command ends with what it wrote in the secure store, a cookie that came with an answer
// among it.
QCoro::Task<int> runToEnd(vl::AppContext& context, QStringList args)
{
    const int code = co_await dispatch(context, std::move(args));
    co_await context.settle();
    co_return code;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("velmora"));
    QCoreApplication::setApplicationName(QStringLiteral("velmora"));
    vl::AppContext context(vl::AppContext::linuxBindings());
    QStringList args = QCoreApplication::arguments().mid(1);
    QTimer::singleShot(0, &app, [&context, args] {
        runToEnd(context, args).then([](int code) {
            QMetaObject::invokeMethod(
                qApp, [code] { QCoreApplication::exit(code); }, Qt::QueuedConnection);
        });
    });
    return app.exec();
}
