#pragma once

#include <QCoroTask>
#include <QStringList>

namespace vl {
class AppContext;
}

namespace vl::cli {

// `apply send|check|ask|list|open|withdraw|cv-update ...`: what the apply sheet, the question
// sheet, My applications and the CV update do, in the current language.
QCoro::Task<int> runApply(AppContext& context, QStringList args);

} // namespace vl::cli
