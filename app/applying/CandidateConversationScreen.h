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

Q_SIGNALS:
    // The person wants to send a newer CV.
    void updateCv();

private:
    void refresh();

    CandidateConversationModel m_model;
    AppState& m_state;
    QLabel* m_title;
    QLabel* m_status;
    QLabel* m_cv;
    QLabel* m_cvNote;
    QPushButton* m_cvUpdate;
    ConfirmRow* m_withdraw;
    QLabel* m_error;
    QPushButton* m_retry;
    QListWidget* m_timeline;
};

} // namespace vl
