#pragma once

#include "app/applying/EnquirySheetModel.h"
#include "app/identity/CandidateGate.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace vl {

// A question to the employer, behind the job seeker's gate.
class EnquirySheet : public QWidget {
    Q_OBJECT
public:
    EnquirySheet(ApplyServices services, JobDetail job, CandidateGate::UrlOpener openUrl,
                 QWidget* parent = nullptr);

    EnquirySheetModel& model() { return m_model; }

Q_SIGNALS:
    void closed();

private:
    void refresh();

    EnquirySheetModel m_model;
    AppState& m_state;
    QStackedLayout* m_pages;
    QLabel* m_title;
    QLineEdit* m_name;
    QLineEdit* m_phone;
    QPlainTextEdit* m_message;
    QLabel* m_error;
    QPushButton* m_send;
    QProgressBar* m_busy;
    QLabel* m_sent;
    QPushButton* m_close;
};

} // namespace vl
