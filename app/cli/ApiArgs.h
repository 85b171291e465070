#pragma once

#include "app/shell/AppContext.h"
#include "core/json/Json.h"
#include "core/l10n/Lang.h"
#include "core/service/Result.h"

#include <QCoroTask>
#include <QJsonObject>
#include <QJsonValue>

// What every `velmora-cli api` operation shares: its arguments are one JSON object, and its
// answer is printed as JSON or as the error it failed with.
namespace vl::cli::api {

using JsonResult = Result<QJsonValue>;
using Args = QJsonObject;

template <class T>
QCoro::Task<JsonResult> asJson(QCoro::Task<Result<T>> task)
{
    const auto result = co_await std::move(task);
    if (!result)
        co_return result.error();
    co_return json::write(result.value());
}

inline QString text(const Args& args, const char* name)
{
    return args.value(QLatin1StringView(name)).toString();
}

inline bool flag(const Args& args, const char* name)
{
    return args.value(QLatin1StringView(name)).toBool();
}

// The language an operation asks in: its own argument, else the client's.
inline Lang localeOf(AppContext& context, const Args& args, const char* name = "locale")
{
    return langFromRaw(text(args, name)).value_or(context.appState.lang());
}

} // namespace vl::cli::api
