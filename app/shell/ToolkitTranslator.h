#pragma once

#include <QObject>
#include <QTranslator>

namespace vl {

class AppState;

// Puts Qt's own texts (the text fields' context menu, standard buttons, the file chooser) in the
// client's language, and switches them when the language changes.
class ToolkitTranslator : public QObject {
    Q_OBJECT
public:
    explicit ToolkitTranslator(AppState& appState, QObject* parent = nullptr);

private:
    void follow();

    AppState& m_appState;
    QTranslator m_translator;
    bool m_installed = false;
};

} // namespace vl
