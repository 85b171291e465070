#pragma once

#include "app/discovery/JobDetailModel.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace vl {

class AppContext;

// The listing open beside the board: what the router selected, read in the current language,
// with the one way forward its rules allow, the star and the report.
class JobDetailView : public QWidget {
    Q_OBJECT
public:
    explicit JobDetailView(AppContext& context, QWidget* parent = nullptr);

    JobDetailModel& model() { return m_model; }
    // Asks again for the listing the router has selected.
    void reload();

private:
    void show();
    void retext();
    void showStar();
    void openReport();

    AppContext& m_context;
    JobDetailModel m_model;
    QProgressBar* m_busy = nullptr;
    QStackedWidget* m_states = nullptr;
    QLabel* m_pick = nullptr;
    QLabel* m_errorTitle = nullptr;
    QLabel* m_errorBody = nullptr;
    QPushButton* m_retry = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_employer = nullptr;
    QLabel* m_where = nullptr;
    QLabel* m_pay = nullptr;
    QLabel* m_gig = nullptr;
    QPushButton* m_star = nullptr;
    QLabel* m_actionNote = nullptr;
    QPushButton* m_action = nullptr;
    QPushButton* m_ask = nullptr;
    QVBoxLayout* m_notes = nullptr;
    QLabel* m_description = nullptr;
    QPushButton* m_report = nullptr;
};

} // namespace vl
