#pragma once

#include <QDialog>

class QLabel;

namespace vl {

class AppState;

// The client's name, this build's version and number, a word about it and the site's address.
class AboutDialog : public QDialog {
    Q_OBJECT
public:
    AboutDialog(AppState& appState, const QString& site, QWidget* parent = nullptr);

private:
    void retext();

    AppState& m_appState;
    QLabel* m_versionLabel = nullptr;
    QLabel* m_about = nullptr;
};

} // namespace vl
