#pragma once

#include <QCoreApplication>
#include <functional>

class QGuiApplication;

namespace vl {

class AppContext;

// Makes closing the last window end the application only once the writes under way reached the
// secure store, or five seconds passed: a sign-out clicked a moment before must not come back at
// the next start. `quit` ends the application.
void quitWhenSettled(QGuiApplication& app, AppContext& context,
                     std::function<void()> quit = &QCoreApplication::quit);

} // namespace vl
