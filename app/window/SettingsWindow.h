#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QTabWidget;

namespace vl {

class AppState;

// The settings window. Its General tab holds the language, this build's version and number, and how
// light and dark are chosen, with a word about the client below.
class SettingsWindow : public QDialog {
    Q_OBJECT
public:
    SettingsWindow(AppState& appState, QWidget* parent = nullptr);

private:
    void retext();

    AppState& m_appState;
    QTabWidget* m_tabs = nullptr;
    QComboBox* m_language = nullptr;
    QLabel* m_languageLabel = nullptr;
    QLabel* m_versionLabel = nullptr;
    QLabel* m_version = nullptr;
    QLabel* m_appearance = nullptr;
    QLabel* m_about = nullptr;
};

} // namespace vl
