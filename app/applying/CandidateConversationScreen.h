#pragma once

#include "app/applying/CandidateConversationModel.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace vl {

class ConfirmRow;

// One of the job seeker's applications: its status, the CV with its update offer, withdrawing,
// and the conversation so far, read only.
class CandidateConversationScreen : public QWidget {
    Q_OBJECT
public:
    CandidateConversationScreen(ApplyServices services, QString ref, QString key,
                                QWidget* parent = nullptr);

    CandidateConversationModel& model() { return m_model; }

private:
    void refresh();
    void openCvUpdate();
    // The CV as the employer has it, opened with the desktop.
    QCoro::Task<> viewCv();

    CandidateConversationModel m_model;
    ApplyServices m_services;
    AppState& m_state;
    QLabel* m_title;
    QLabel* m_status;
    QLabel* m_cv;
    QLabel* m_cvNote;
    QPushButton* m_cvUpdate;
    QPushButton* m_cvView;
    ConfirmRow* m_withdraw;
    QLabel* m_error;
    QPushButton* m_retry;
    QListWidget* m_timeline;
};

} // namespace vl
