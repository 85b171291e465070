#pragma once

#include "core/service/Result.h"

#include <QCoroTask>
#include <QJsonObject>
#include <QJsonValue>

namespace vl {
class AppContext;
}

namespace vl::cli {

// The job seeker's operations for `velmora-cli api`: applying, the CV check, their own
// applications and seeker posts. A file argument is a path ({"cv":"cv.pdf"}).
bool isApplyingOperation(const QString& method, const QString& path);
QCoro::Task<Result<QJsonValue>> runApplyingOperation(AppContext& context, QString method,
                                                     QString path, QJsonObject args);

} // namespace vl::cli
