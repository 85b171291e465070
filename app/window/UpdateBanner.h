#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

namespace vl {

class AppState;
class UpdateBannerModel;

// The line above the content that offers a newer build.
class UpdateBanner : public QFrame {
    Q_OBJECT
public:
    UpdateBanner(UpdateBannerModel& model, AppState& appState, QWidget* parent = nullptr);

private:
    void retext();
    void refresh();

    UpdateBannerModel& m_model;
    AppState& m_appState;
    QLabel* m_text;
    QPushButton* m_get;
    QToolButton* m_dismiss;
};

} // namespace vl
