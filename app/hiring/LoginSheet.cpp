#include "app/hiring/LoginSheet.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

namespace {

QLabel* label(const char* name, const char* role, QWidget* parent)
{
    auto* made = new QLabel(parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setWordWrap(true);
    Theme::setRole(made, role);
    return made;
}

QPushButton* button(const char* name, const char* role, QWidget* parent)
{
    auto* made = new QPushButton(parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setAutoDefault(false);
    Theme::setRole(made, role);
    return made;
}

} // namespace

LoginSheet::LoginSheet(EmployerLoginForm::Parts parts, QWidget* parent)
    : QDialog(parent)
    , m_form(parts)
    , m_appState(parts.appState)
{
    setObjectName(QStringLiteral("vl.loginSheet"));
    setWindowModality(Qt::WindowModal);
    setModal(true);
    setFixedWidth(440);

    m_title = label("vl.loginSheet.title", "title", this);
    m_subtitle = label("vl.loginSheet.subtitle", "subtitle", this);

    m_emailStage = new QWidget(this);
    m_email = new QLineEdit(m_emailStage);
    m_email->setObjectName(QStringLiteral("vl.loginSheet.email"));
    m_email->setInputMethodHints(Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase);
    auto* emailLayout = new QVBoxLayout(m_emailStage);
    emailLayout->setContentsMargins(0, 0, 0, 0);
    emailLayout->addWidget(m_email);

    m_codeStage = new QWidget(this);
    m_sentTo = label("vl.loginSheet.sentTo", "name", m_codeStage);
    m_changeEmail = button("vl.loginSheet.changeEmail", "link", m_codeStage);
    m_code = new QLineEdit(m_codeStage);
    m_code->setObjectName(QStringLiteral("vl.loginSheet.code"));
    m_code->setPlaceholderText(QStringLiteral("000000"));
    m_code->setInputMethodHints(Qt::ImhDigitsOnly);
    auto* addressRow = new QHBoxLayout;
    addressRow->setSpacing(10);
    addressRow->addWidget(m_sentTo, 1);
    addressRow->addWidget(m_changeEmail);
    auto* codeLayout = new QVBoxLayout(m_codeStage);
    codeLayout->setContentsMargins(0, 0, 0, 0);
    codeLayout->setSpacing(10);
    codeLayout->addLayout(addressRow);
    codeLayout->addWidget(m_code);

    m_error = label("vl.loginSheet.error", "error", this);
    m_busy = new QProgressBar(this);
    m_busy->setObjectName(QStringLiteral("vl.loginSheet.busy"));
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    Theme::setRole(m_busy, "busy");
    // Keeps its room while hidden, so the sheet does not jump when work starts.
    QSizePolicy keepRoom = m_busy->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    m_busy->setSizePolicy(keepRoom);

    m_close = button("vl.loginSheet.close", "quiet", this);
    m_sendCode = button("vl.loginSheet.sendCode", "primary", this);
    m_verify = button("vl.loginSheet.verify", "primary", this);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_close);
    buttons->addStretch(1);
    buttons->addWidget(m_sendCode);
    buttons->addWidget(m_verify);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(10);
    layout->addWidget(m_title);
    layout->addWidget(m_subtitle);
    layout->addSpacing(8);
    layout->addWidget(m_emailStage);
    layout->addWidget(m_codeStage);
    layout->addWidget(m_error);
    layout->addWidget(m_busy);
    layout->addSpacing(4);
    layout->addLayout(buttons);

    connect(m_email, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_form.email = text; });
    connect(m_code, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_form.code = text; });
    connect(m_sendCode, &QPushButton::clicked, this, [this] { m_form.sendCode(); });
    connect(m_verify, &QPushButton::clicked, this, [this] { m_form.verifyCode(); });
    connect(m_changeEmail, &QPushButton::clicked, &m_form, &EmployerLoginForm::changeEmail);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    connect(&m_form, &EmployerLoginForm::changed, this, &LoginSheet::refresh);
    connect(&m_form, &EmployerLoginForm::done, this, &QDialog::accept);
    connect(&m_appState, &AppState::langChanged, this, &LoginSheet::retext);
    retext();
    refresh();
}

void LoginSheet::retext()
{
    const Lang lang = m_appState.lang();
    const bool codeStage = m_form.stage() == EmployerLoginForm::Stage::code;
    setWindowTitle(L10n::text(L10n::Key::signInTitle, lang));
    m_title->setText(L10n::text(codeStage ? L10n::Key::codeTitle : L10n::Key::signInTitle, lang));
    m_subtitle->setText(L10n::text(codeStage ? L10n::Key::codeSub : L10n::Key::signInSub, lang));
    m_email->setPlaceholderText(L10n::text(L10n::Key::fieldEmail, lang));
    m_changeEmail->setText(L10n::text(L10n::Key::idvBack, lang));
    m_close->setText(L10n::text(L10n::Key::close, lang));
    m_sendCode->setText(L10n::text(L10n::Key::sendCode, lang));
    m_verify->setText(L10n::text(L10n::Key::verifyCode, lang));
}

void LoginSheet::refresh()
{
    const bool codeStage = m_form.stage() == EmployerLoginForm::Stage::code;
    const bool working = m_form.working();
    m_emailStage->setVisible(!codeStage);
    m_codeStage->setVisible(codeStage);
    if (m_email->text() != m_form.email)
        m_email->setText(m_form.email);
    if (m_code->text() != m_form.code)
        m_code->setText(m_form.code);
    m_sentTo->setText(m_form.email.trimmed());
    m_error->setText(m_form.error().value_or(QString()));
    m_error->setVisible(m_form.error().has_value());
    m_busy->setVisible(working);

    m_email->setReadOnly(working);
    m_code->setReadOnly(working);
    m_sendCode->setVisible(!codeStage);
    m_verify->setVisible(codeStage);
    m_sendCode->setEnabled(!working);
    m_verify->setEnabled(!working);
    m_changeEmail->setEnabled(!working);
    // Return in a field presses the stage's own button.
    m_sendCode->setDefault(!codeStage);
    m_verify->setDefault(codeStage);
    retext();
    (codeStage ? m_code : m_email)->setFocus();
    adjustSize();
}

} // namespace vl
