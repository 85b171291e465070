#pragma once

#include <QString>
#include <array>
#include <optional>

namespace vl {

// The language of every text and of every request's locale. Georgian first: any unknown value
// lands on it.
enum class Lang { ka, en, ru };

inline constexpr std::array<Lang, 3> allLangs{Lang::ka, Lang::en, Lang::ru};

inline QString rawValue(Lang lang)
{
    switch (lang) {
    case Lang::en:
        return QStringLiteral("en");
    case Lang::ru:
        return QStringLiteral("ru");
    case Lang::ka:
        break;
    }
    return QStringLiteral("ka");
}

// The language whose raw value is exactly this text, or nothing.
inline std::optional<Lang> langFromRaw(const QString& raw)
{
    if (raw == QLatin1StringView("ka"))
        return Lang::ka;
    if (raw == QLatin1StringView("en"))
        return Lang::en;
    if (raw == QLatin1StringView("ru"))
        return Lang::ru;
    return std::nullopt;
}

} // namespace vl
