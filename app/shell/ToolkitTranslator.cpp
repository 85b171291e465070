#include "app/shell/ToolkitTranslator.h"

#include "app/shell/AppState.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace vl {

ToolkitTranslator::ToolkitTranslator(AppState& appState, QObject* parent)
    : QObject(parent)
    , m_appState(appState)
{
    connect(&appState, &AppState::langChanged, this, &ToolkitTranslator::follow);
    follow();
}

void ToolkitTranslator::follow()
{
    if (m_installed)
        QCoreApplication::removeTranslator(&m_translator);
    m_installed = false;
    bool loaded = false;
    switch (m_appState.lang()) {
    case Lang::ka:
        loaded = m_translator.load(QStringLiteral(":/i18n/qtbase_ka.qm"));
        break;
    case Lang::ru:
        loaded = m_translator.load(QStringLiteral("qtbase_ru"),
                                   QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        break;
    case Lang::en:
        break;
    }
    if (loaded)
        m_installed = QCoreApplication::installTranslator(&m_translator);
}

} // namespace vl
