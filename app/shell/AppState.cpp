#include "app/shell/AppState.h"

#include "app/platform/Preferences.h"

namespace vl {

namespace {

const QString langKey = QStringLiteral("vl.lang");

Lang fromPreferred(const QStringList& preferred)
{
    const QString first = preferred.isEmpty() ? QStringLiteral("ka") : preferred.first();
    const QString prefix = first.left(2);
    if (prefix == QLatin1StringView("en"))
        return Lang::en;
    if (prefix == QLatin1StringView("ru"))
        return Lang::ru;
    return Lang::ka;
}

} // namespace

AppState::AppState(Preferences& preferences, const QStringList& preferredLanguages, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    if (const auto stored = langFromRaw(m_preferences.string(langKey))) {
        m_lang = *stored;
        return;
    }
    m_lang = fromPreferred(preferredLanguages);
    m_preferences.setValue(langKey, rawValue(m_lang));
}

void AppState::setLang(Lang lang)
{
    m_preferences.setValue(langKey, rawValue(lang));
    if (lang == m_lang)
        return;
    m_lang = lang;
    Q_EMIT langChanged(lang);
}

} // namespace vl
