#pragma once

#include "app/applying/ApplySheetModel.h"
#include "app/identity/CandidateGate.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace vl {

class ApplyQuestions;
class CandidateGateView;
class CvCheckCard;
class HsHintView;
class SuccessStamp;

// The application form behind the job seeker's gate: who applies, where it goes, the fields,
// the CV with its check, the employer's questions, the index opt-out and the season's hint; then
// the confirmation.
class ApplySheet : public QWidget {
    Q_OBJECT
public:
    ApplySheet(ApplyServices services, JobDetail job, CandidateGate::UrlOpener openUrl,
               QWidget* parent = nullptr);

    ApplySheetModel& model() { return m_model; }
    // What the file chooser does after a pick; the chooser itself is the desktop's.
    void pickFile(const QString& path);

Q_SIGNALS:
    void closed();

private:
    void build();
    void refresh();
    void chooseFile();
    void readFields();

    ApplySheetModel m_model;
    CandidateGate::UrlOpener m_openUrl;
    CandidateGateView* m_gate;
    QStackedLayout* m_pages;
    QLabel* m_title;
    QLabel* m_signedAs;
    QPushButton* m_switch;
    QLabel* m_deliver;
    QLineEdit* m_name;
    QLineEdit* m_email;
    QLineEdit* m_phone;
    QPlainTextEdit* m_message;
    QLabel* m_cvLabel;
    QPushButton* m_cvChoose;
    QPushButton* m_cvLast;
    CvCheckCard* m_check;
    ApplyQuestions* m_questions = nullptr;
    QCheckBox* m_pool;
    HsHintView* m_hint;
    QLabel* m_error;
    QPushButton* m_webForm;
    QPushButton* m_send;
    QProgressBar* m_busy;
    SuccessStamp* m_stamp;
};

} // namespace vl
