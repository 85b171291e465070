#include "app/kit/Theme.h"
#include "app/shell/AppContext.h"
#include "app/shell/MainWindow.h"

#include <QApplication>
#include <QTimer>

namespace {

// The start, in order: the stored session first, so the window never shows a signed-out
// moment to someone who is signed in; then the window; then the boot behind it.
QCoro::Task<> launch(vl::AppContext& context, vl::MainWindow& window)
{
    co_await context.start();
    window.show();
    co_await context.boot();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("velmora"));
    QApplication::setApplicationName(QStringLiteral("velmora"));
    vl::Theme::apply(app);
    vl::AppContext context(vl::AppContext::linuxBindings());
    context.calls.setBooted();
    context.review.countLaunch();
    vl::MainWindow window(context);
    QTimer::singleShot(0, &app, [&context, &window] { launch(context, window); });
    return app.exec();
}
