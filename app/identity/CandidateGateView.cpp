#include "app/identity/CandidateGateView.h"

#include "app/identity/RecoveryCodesNotice.h"
#include "app/kit/Theme.h"
#include "app/platform/QrImage.h"
#include "app/shell/AppState.h"
#include "core/identity/TotpKey.h"
#include "core/l10n/L10n.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace vl {

namespace {

using Step = CandidateGate::Step;

QLabel* label(QWidget* parent, const char* name, const char* role)
{
    auto* made = new QLabel(parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setWordWrap(true);
    Theme::setRole(made, role);
    return made;
}

QPushButton* button(QWidget* parent, const char* name, const char* role)
{
    auto* made = new QPushButton(parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setAutoDefault(false);
    Theme::setRole(made, role);
    return made;
}

QLineEdit* field(QWidget* parent, const char* name)
{
    auto* made = new QLineEdit(parent);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

// One page per step, stacked in a plain column with only the current one shown, so that wrapped
// lines get their height (a stacked widget sizes its pages without it).
QVBoxLayout* page(QWidget* steps)
{
    auto* made = new QWidget(steps);
    auto* layout = new QVBoxLayout(made);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    steps->layout()->addWidget(made);
    return layout;
}

} // namespace

CandidateGateView::CandidateGateView(CandidateAuth& auth, AppState& appState,
                                     CandidateGate::UrlOpener openUrl, QWidget* content,
                                     QWidget* parent)
    : QWidget(parent)
    , m_auth(auth)
    , m_appState(appState)
    , m_gate(auth, appState, std::move(openUrl))
    , m_pages(new QStackedLayout(this))
    , m_form(new QWidget(this))
    , m_content(new QWidget(this))
{
    setObjectName(QStringLiteral("vl.gate"));
    m_notice = new RecoveryCodesNotice(auth, appState, m_content);
    auto* guarded = new QVBoxLayout(m_content);
    guarded->setContentsMargins(0, 0, 0, 0);
    guarded->addWidget(m_notice);
    guarded->addWidget(content, 1);

    m_title = label(m_form, "vl.gate.title", "title");
    m_body = label(m_form, "vl.gate.body", "subtitle");
    m_steps = new QWidget(m_form);
    auto* stepColumn = new QVBoxLayout(m_steps);
    stepColumn->setContentsMargins(0, 0, 0, 0);

    auto* email = page(m_steps);
    m_email = field(m_steps, "vl.gate.email");
    m_email->setInputMethodHints(Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase);
    m_sendCode = button(m_steps, "vl.gate.sendCode", "primary");
    m_google = button(m_steps, "vl.gate.google", "quiet");
    m_passkeyLogin = button(m_steps, "vl.gate.passkeyLogin", "quiet");
    m_noPasskey = label(m_steps, "vl.gate.noPasskey", "caption");
    email->addWidget(m_noPasskey);
    email->addWidget(m_email);
    email->addWidget(m_sendCode);
    email->addWidget(m_google);
    email->addWidget(m_passkeyLogin);
    email->addStretch(1);

    auto* code = page(m_steps);
    m_codeSent = label(m_steps, "vl.gate.codeSent", "name");
    m_codePrompt = label(m_steps, "vl.gate.codePrompt", "caption");
    m_code = field(m_steps, "vl.gate.code");
    m_code->setPlaceholderText(QStringLiteral("000000"));
    m_code->setInputMethodHints(Qt::ImhDigitsOnly);
    m_codeContinue = button(m_steps, "vl.gate.codeContinue", "primary");
    code->addWidget(m_codeSent);
    code->addWidget(m_codePrompt);
    code->addWidget(m_code);
    code->addWidget(m_codeContinue);
    code->addStretch(1);

    auto* enroll = page(m_steps);
    m_enrollHeading = label(m_steps, "vl.gate.enrollHeading", "name");
    m_passkeyCreate = button(m_steps, "vl.gate.passkeyCreate", "primary");
    m_authApp = button(m_steps, "vl.gate.authApp", "primary");
    m_continueMail = button(m_steps, "vl.gate.continueMail", "quiet");
    enroll->addWidget(m_enrollHeading);
    enroll->addWidget(m_passkeyCreate);
    enroll->addWidget(m_authApp);
    enroll->addWidget(m_continueMail);
    enroll->addStretch(1);

    auto* verify = page(m_steps);
    m_verifyHeading = label(m_steps, "vl.gate.verifyHeading", "name");
    m_passkeyUse = button(m_steps, "vl.gate.passkeyUse", "primary");
    m_orCode = label(m_steps, "vl.gate.orCode", "caption");
    m_factorCode = field(m_steps, "vl.gate.factorCode");
    m_orRecovery = label(m_steps, "vl.gate.orRecovery", "caption");
    m_verifyContinue = button(m_steps, "vl.gate.verifyContinue", "primary");
    verify->addWidget(m_verifyHeading);
    verify->addWidget(m_passkeyUse);
    verify->addWidget(m_orCode);
    verify->addWidget(m_factorCode);
    verify->addWidget(m_orRecovery);
    verify->addWidget(m_verifyContinue);
    verify->addStretch(1);

    auto* totp = page(m_steps);
    m_secretHint = label(m_steps, "vl.gate.secretHint", "caption");
    // The key is copied by hand, group by group: one line of even-width characters.
    m_secret = label(m_steps, "vl.gate.secret", "key");
    m_secret->setWordWrap(false);
    m_secret->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The same key as a code the authenticator's camera reads.
    m_qr = new QLabel(m_steps);
    m_qr->setObjectName(QStringLiteral("vl.gate.qr"));
    m_copySecret = button(m_steps, "vl.gate.copySecret", "quiet");
    connect(m_copySecret, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_gate.totpSecret()); });
    m_thenCode = label(m_steps, "vl.gate.thenCode", "caption");
    m_totpCode = field(m_steps, "vl.gate.totpCode");
    m_totpCode->setPlaceholderText(QStringLiteral("000000"));
    m_totpContinue = button(m_steps, "vl.gate.totpContinue", "primary");
    totp->addWidget(m_secretHint);
    // The code above the key: side by side they would not fit the sheet's width on one line.
    totp->addWidget(m_qr, 0, Qt::AlignLeft);
    totp->addWidget(m_secret);
    totp->addWidget(m_copySecret, 0, Qt::AlignLeft);
    totp->addWidget(m_thenCode);
    totp->addWidget(m_totpCode);
    totp->addWidget(m_totpContinue);
    totp->addStretch(1);

    m_error = label(m_form, "vl.gate.error", "error");
    m_busy = new QProgressBar(m_form);
    m_busy->setObjectName(QStringLiteral("vl.gate.busy"));
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    Theme::setRole(m_busy, "busy");
    QSizePolicy keepRoom = m_busy->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    m_busy->setSizePolicy(keepRoom);

    auto* column = new QWidget(m_form);
    // Wide enough for the key on one line, and for the wrapped texts to keep a sane height.
    column->setMinimumWidth(380);
    column->setMaximumWidth(420);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_title);
    layout->addWidget(m_body);
    layout->addSpacing(6);
    layout->addWidget(m_steps);
    layout->addWidget(m_error);
    layout->addWidget(m_busy);
    // Centred by stretches rather than alignment, so that the column takes its whole width and
    // its wrapped lines the height they need at that width.
    column->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* across = new QHBoxLayout;
    across->addStretch(1);
    across->addWidget(column, 8);
    across->addStretch(1);
    auto* centred = new QVBoxLayout(m_form);
    centred->setContentsMargins(32, 32, 32, 32);
    centred->addStretch(1);
    centred->addLayout(across);
    centred->addStretch(2);

    m_pages->addWidget(m_form);
    m_pages->addWidget(m_content);

    connect(m_email, &QLineEdit::textEdited, this, [this](const QString& t) { m_gate.email = t; });
    for (QLineEdit* box : {m_code, m_factorCode, m_totpCode})
        connect(box, &QLineEdit::textEdited, this, [this](const QString& t) { m_gate.code = t; });
    connect(m_sendCode, &QPushButton::clicked, this, [this] { m_gate.sendCode(); });
    connect(m_email, &QLineEdit::returnPressed, this, [this] { m_gate.sendCode(); });
    connect(m_google, &QPushButton::clicked, this, [this] { m_gate.continueWithGoogle(); });
    connect(m_passkeyLogin, &QPushButton::clicked, this, [this] { m_gate.signInWithPasskey(); });
    connect(m_codeContinue, &QPushButton::clicked, this, [this] { m_gate.verifyCode(); });
    connect(m_code, &QLineEdit::returnPressed, this, [this] { m_gate.verifyCode(); });
    connect(m_passkeyCreate, &QPushButton::clicked, this, [this] { m_gate.createPasskey(); });
    connect(m_authApp, &QPushButton::clicked, this, [this] { m_gate.useAuthenticatorApp(); });
    connect(m_continueMail, &QPushButton::clicked, this, [this] { m_gate.continueMailOnly(); });
    connect(m_passkeyUse, &QPushButton::clicked, this, [this] { m_gate.usePasskey(); });
    connect(m_verifyContinue, &QPushButton::clicked, this, [this] { m_gate.verifyFactor(); });
    connect(m_factorCode, &QLineEdit::returnPressed, this, [this] { m_gate.verifyFactor(); });
    connect(m_totpContinue, &QPushButton::clicked, this, [this] { m_gate.enrollTotp(); });
    connect(m_totpCode, &QLineEdit::returnPressed, this, [this] { m_gate.enrollTotp(); });
    connect(&m_gate, &CandidateGate::changed, this, &CandidateGateView::refresh);
    connect(&m_auth, &CandidateAuth::changed, this, &CandidateGateView::refresh);
    connect(&m_appState, &AppState::langChanged, this, &CandidateGateView::retext);
    retext();
}

void CandidateGateView::retext()
{
    using L10n::Key;
    const Lang lang = m_appState.lang();
    const auto text = [lang](Key key) { return L10n::text(key, lang); };
    m_title->setText(text(Key::candSignTitle));
    m_body->setText(text(Key::candSignBody));
    m_email->setPlaceholderText(text(Key::fieldEmail));
    m_sendCode->setText(text(Key::candSendCode));
    m_google->setText(text(Key::continueGoogle));
    m_passkeyLogin->setText(text(Key::candPasskeyLogin));
    m_noPasskey->setText(text(Key::candNoPasskeyMac));
    m_codePrompt->setText(text(Key::candCode));
    m_codeContinue->setText(text(Key::candContinue));
    m_passkeyCreate->setText(text(Key::candPasskeyCreate));
    m_authApp->setText(text(Key::candAuthApp));
    m_continueMail->setText(text(Key::candContinueMail));
    m_verifyHeading->setText(text(Key::candFactorVerify));
    m_passkeyUse->setText(text(Key::candPasskeyUse));
    m_orCode->setText(text(Key::candOrCode));
    m_orRecovery->setText(text(Key::candOrRecovery));
    m_verifyContinue->setText(text(Key::candContinue));
    m_secretHint->setText(text(Key::candSecretHint));
    m_thenCode->setText(text(Key::candThenCode));
    m_totpContinue->setText(text(Key::candContinue));
    m_copySecret->setText(text(Key::msgCopy));
    refresh();
}

// Each new step puts the cursor where the person types next.
void CandidateGateView::focusStep(CandidateGate::Step step)
{
    if (m_focusedStep == step)
        return;
    m_focusedStep = step;
    QLineEdit* const fields[] = {m_email, m_code, nullptr, m_factorCode, m_totpCode};
    if (QLineEdit* next = fields[int(step)])
        next->setFocus(Qt::OtherFocusReason);
}

void CandidateGateView::refresh()
{
    const bool signedIn = m_auth.signedIn();
    m_pages->setCurrentWidget(signedIn ? m_content : m_form);
    if (signedIn)
        return;
    const Step step = m_gate.step();
    const bool busy = m_gate.busy();
    const bool passkeys = m_gate.passkeysAvailable();
    m_title->setVisible(m_gate.showsIntro && step == Step::email);
    m_body->setVisible(m_gate.showsIntro && step == Step::email);
    for (int index = 0; index < m_steps->layout()->count(); ++index)
        m_steps->layout()->itemAt(index)->widget()->setVisible(index == int(step));
    m_passkeyLogin->setVisible(passkeys);
    m_noPasskey->setVisible(passkeys && m_gate.noPasskey());
    m_passkeyCreate->setVisible(passkeys);
    m_passkeyUse->setVisible(passkeys);
    m_continueMail->setVisible(m_gate.mailOnly());
    m_codeSent->setText(L10n::text(L10n::Key::candCodeSent, m_appState.lang()) + u' ' +
                        m_gate.email.trimmed());
    m_enrollHeading->setText(
        L10n::text(m_gate.mailOnly() ? L10n::Key::candFactorOptional : L10n::Key::candFactorEnroll,
                   m_appState.lang()));
    if (m_secret->text() != m_gate.groupedTotpSecret()) {
        m_secret->setText(m_gate.groupedTotpSecret());
        const QPixmap code = m_gate.totpSecret().isEmpty()
                                 ? QPixmap()
                                 : QPixmap::fromImage(qrImage(otpauthUri(m_gate.totpSecret()), 4));
        m_qr->setPixmap(code);
        m_qr->setFixedSize(code.size());
    }
    focusStep(step);
    if (m_email->text() != m_gate.email)
        m_email->setText(m_gate.email);
    for (QLineEdit* box : {m_code, m_factorCode, m_totpCode}) {
        if (box->text() != m_gate.code)
            box->setText(m_gate.code);
        box->setReadOnly(busy);
    }
    m_email->setReadOnly(busy);
    for (QPushButton* each : m_steps->findChildren<QPushButton*>())
        each->setEnabled(!busy);
    m_error->setText(m_gate.error().value_or(QString()));
    m_error->setVisible(m_gate.error().has_value());
    m_busy->setVisible(busy);
}

} // namespace vl
