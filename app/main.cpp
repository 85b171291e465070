#include "app/kit/Theme.h"
#include "app/platform/PortalColorScheme.h"
#include "app/shell/AppContext.h"
#include "app/shell/InstanceChannel.h"
#include "app/shell/QuitWhenSettled.h"
#include "app/shell/WebLinkHandler.h"
#include "app/window/MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

namespace {

// The start, in order: the stored session first, so the window never shows a signed-out
// moment to someone who is signed in; then the window; then the boot behind it.
QCoro::Task<> launch(QCoro::Task<> restoring, vl::AppContext& context, vl::MainWindow& window)
{
    co_await std::move(restoring);
    window.show();
    co_await context.boot();
}

void bringForward(QWidget& window)
{
    if (window.isMinimized())
        window.showNormal();
    window.raise();
    window.activateWindow();
    QApplication::alert(&window);
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer started;
    started.start();
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("velmora"));
    QApplication::setApplicationName(QStringLiteral("velmora"));

    // A link may come as the only argument, from the desktop's URL handlers.
    const QString link = QApplication::arguments().value(1);
    vl::PlatformBindings bindings = vl::AppContext::linuxBindings();
    vl::InstanceChannel channel(bindings.site);
    if (channel.handOver(link))
        return 0;
    channel.listen();

    vl::PortalColorScheme scheme;
    vl::Theme::apply(app, scheme.dark());
    vl::Theme::follow(app, scheme);
    vl::AppContext context(std::move(bindings));
    vl::quitWhenSettled(app, context);
    // The stored session's read goes out first; the window is built while it travels.
    QCoro::Task<> restoring = context.start();
    context.calls.setBooted();
    context.review.countLaunch();
    vl::MainWindow window(context);
    vl::WebLinkHandler links(context.router, context.nav);
    // A velm: link is the browser sign-in coming back; any other is a web link to route.
    const auto open = [&context, &links](const QString& received) {
        if (received.isEmpty())
            return;
        const QUrl url(received);
        if (!context.candidate.receiveCallback(url))
            links.open(url);
    };
    QObject::connect(&channel, &vl::InstanceChannel::linkReceived, &window,
                     [open, &window](const QString& received) {
                         open(received);
                         bringForward(window);
                     });
    open(link);

    // For the start-up benchmark only: report when the first board rows are on screen, and end.
    if (qEnvironmentVariableIsSet("VELMORA_BENCH_FIRST_PAGE")) {
        QObject::connect(&window, &vl::MainWindow::firstPageDrawn, &app, [&started] {
            std::printf("first-page-drawn %lld\n", static_cast<long long>(started.elapsed()));
            std::fflush(stdout);
            QApplication::quit();
        });
    }
    QTimer::singleShot(0, &app, [&restoring, &context, &window] {
        launch(std::move(restoring), context, window);
    });
    return app.exec();
}
