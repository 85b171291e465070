#pragma once

#include "app/applying/SeekerContactSheetModel.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace vl {

// An employer writing to the author of a seeker profile; without an employer signed in, the
// offer to sign in.
class SeekerContactSheet : public QWidget {
    Q_OBJECT
public:
    SeekerContactSheet(ApplyServices services, SeekerDetail seeker, QWidget* parent = nullptr);

    SeekerContactSheetModel& model() { return m_model; }

Q_SIGNALS:
    void signInAsked();
    void closed();

private:
    void refresh();

    SeekerContactSheetModel m_model;
    AppState& m_state;
    QStackedLayout* m_pages;
    QLabel* m_signIn;
    QPushButton* m_signInButton;
    QLabel* m_title;
    QLabel* m_sub;
    QPlainTextEdit* m_message;
    QLabel* m_error;
    QPushButton* m_send;
    QProgressBar* m_busy;
    QLabel* m_sent;
    QPushButton* m_close;
};

} // namespace vl
