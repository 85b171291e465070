#pragma once

#include <QCoroTask>
#include <QStringList>

namespace vl {
class AppContext;
}

namespace vl::cli {

// `boot`: the start-up of the window, headless, summed up as one JSON object.
QCoro::Task<int> runBoot(AppContext& context);
// `lang [ka|en|ru]`: reads or sets the language.
int runLang(AppContext& context, const QStringList& args);
// `employer request-code EMAIL`, `employer verify EMAIL CODE`, `employer sign-out`.
QCoro::Task<int> runEmployer(AppContext& context, QStringList args);

} // namespace vl::cli
