#pragma once

#include <QCoroTask>
#include <QStringList>

namespace vl {
class AppContext;
}

namespace vl::cli {

// `api METHOD PATH [JSON]`: runs the typed operation the catalogue lists as METHOD PATH, with
// its arguments and path values taken from the JSON object, and prints the decoded record.
QCoro::Task<int> runApi(AppContext& context, QStringList args);

} // namespace vl::cli
