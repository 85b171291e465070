#pragma once

#include <QDialog>

class QComboBox;
class QLabel;

namespace vl {

class AppState;

// The settings window's general part: the language, this build's version and number, and how
// light and dark are chosen, with a word about the client below.
class SettingsWindow : public QDialog {
    Q_OBJECT
public:
    SettingsWindow(AppState& appState, QWidget* parent = nullptr);

private:
    void retext();

    AppState& m_appState;
    QComboBox* m_language = nullptr;
    QLabel* m_languageLabel = nullptr;
    QLabel* m_versionLabel = nullptr;
    QLabel* m_version = nullptr;
    QLabel* m_appearance = nullptr;
    QLabel* m_about = nullptr;
};

} // namespace vl
