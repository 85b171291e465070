#pragma once

#include "app/hiring/EmployerLoginForm.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace vl {

class AppState;

// The employer's sign-in sheet over the window: the address, then the code. It shows the form's
// state and forwards what the person does; the form decides. No passkey button: this desktop
// has no platform authenticator, and the code path is complete without one.
class LoginSheet : public QDialog {
    Q_OBJECT
public:
    LoginSheet(EmployerLoginForm::Parts parts, QWidget* parent = nullptr);

    const EmployerLoginForm& form() const { return m_form; }

private:
    void retext();
    void refresh();

    EmployerLoginForm m_form;
    AppState& m_appState;
    QLabel* m_title;
    QLabel* m_subtitle;
    QWidget* m_emailStage;
    QWidget* m_codeStage;
    QLineEdit* m_email;
    QLabel* m_sentTo;
    QPushButton* m_changeEmail;
    QLineEdit* m_code;
    QLabel* m_error;
    QProgressBar* m_busy;
    QPushButton* m_close;
    QPushButton* m_sendCode;
    QPushButton* m_verify;
};

} // namespace vl
