#include "app/shell/QuitWhenSettled.h"

#include "app/shell/AppContext.h"

#include <QGuiApplication>

namespace vl {

namespace {

QCoro::Task<> settleThenQuit(AppContext& context, std::function<void()> quit)
{
    co_await context.settle();
    quit();
}

} // namespace

void quitWhenSettled(QGuiApplication& app, AppContext& context, std::function<void()> quit)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Tied to the context's own tracker, so the link goes when the context does.
    QObject::connect(&app, &QGuiApplication::lastWindowClosed, &context.pending,
                     [&context, quit] { settleThenQuit(context, quit); });
}

} // namespace vl
