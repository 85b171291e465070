#pragma once

#include "app/identity/CandidateGate.h"

#include <QWidget>
#include <optional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace vl {

class RecoveryCodesNotice;

// Stands in front of what only a signed-in job seeker may see: the sign-in form while nobody is
// signed in, the guarded content once someone is. The form's state lives as long as this view.
class CandidateGateView : public QWidget {
    Q_OBJECT
public:
    CandidateGateView(CandidateAuth& auth, AppState& appState, CandidateGate::UrlOpener openUrl,
                      QWidget* content, QWidget* parent = nullptr);

    CandidateGate& gate() { return m_gate; }

private:
    void retext();
    void refresh();
    void focusStep(CandidateGate::Step step);

    CandidateAuth& m_auth;
    AppState& m_appState;
    CandidateGate m_gate;
    QStackedLayout* m_pages;
    QWidget* m_form;
    QWidget* m_content;
    RecoveryCodesNotice* m_notice;

    QLabel* m_title;
    QLabel* m_body;
    QWidget* m_steps;
    // email
    QLineEdit* m_email;
    QPushButton* m_sendCode;
    QPushButton* m_google;
    QPushButton* m_passkeyLogin;
    QLabel* m_noPasskey;
    // code
    QLabel* m_codeSent;
    QLabel* m_codePrompt;
    QLineEdit* m_code;
    QPushButton* m_codeContinue;
    // factorEnroll
    QLabel* m_enrollHeading;
    QPushButton* m_passkeyCreate;
    QPushButton* m_authApp;
    QPushButton* m_continueMail;
    // factorVerify
    QLabel* m_verifyHeading;
    QPushButton* m_passkeyUse;
    QLabel* m_orCode;
    QLineEdit* m_factorCode;
    QLabel* m_orRecovery;
    QPushButton* m_verifyContinue;
    // totpEnroll
    QLabel* m_secretHint;
    QLabel* m_secret;
    QLabel* m_qr;
    QPushButton* m_copySecret;
    QLabel* m_thenCode;
    QLineEdit* m_totpCode;
    QPushButton* m_totpContinue;

    QLabel* m_error;
    QProgressBar* m_busy;
    std::optional<CandidateGate::Step> m_focusedStep;
};

} // namespace vl
