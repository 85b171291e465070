#pragma once

#include "core/l10n/Lang.h"

#include <QObject>
#include <QStringList>

namespace vl {

class Preferences;

// The language of every text and of every request's locale.
class AppState : public QObject {
    Q_OBJECT
public:
    // The language is decided once: a stored vl.lang that names a language is used as it is;
    // otherwise the first of the system's preferred languages picks en or ru, anything else ka,
    // and the choice is written at once.
    AppState(Preferences& preferences, const QStringList& preferredLanguages,
             QObject* parent = nullptr);

    Lang lang() const { return m_lang; }
    void setLang(Lang lang);

Q_SIGNALS:
    void langChanged(vl::Lang lang);

private:
    Preferences& m_preferences;
    Lang m_lang = Lang::ka;
};

} // namespace vl
