#include "app/window/AccountMenu.h"

#include "app/kit/Theme.h"
#include "app/shell/AccountMenuModel.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace vl {

namespace {

// The first letter or digit of a name: company names often open with a quotation mark.
QString initial(const QString& name)
{
    for (const QChar c : name) {
        if (c.isLetterOrNumber())
            return QString(c).toUpper();
    }
    return QStringLiteral("·");
}

} // namespace

AccountMenu::AccountMenu(AccountMenuModel& model, AppState& appState, QWidget* parent)
    : QFrame(parent)
    , m_model(model)
    , m_appState(appState)
    , m_avatar(new QLabel(this))
    , m_name(new QLabel(this))
    , m_role(new QLabel(this))
    , m_signIn(new QPushButton(this))
    , m_signOut(new QPushButton(this))
    , m_seekerSignIn(new QLabel(this))
    , m_more(new QToolButton(this))
    , m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("vl.account"));
    Theme::setRole(this, "account");
    m_avatar->setObjectName(QStringLiteral("vl.account.avatar"));
    m_avatar->setAlignment(Qt::AlignCenter);
    Theme::setRole(m_avatar, "avatar");
    m_name->setObjectName(QStringLiteral("vl.account.name"));
    Theme::setRole(m_name, "name");
    m_role->setObjectName(QStringLiteral("vl.account.role"));
    Theme::setRole(m_role, "caption");
    m_role->setWordWrap(true);
    m_signIn->setObjectName(QStringLiteral("vl.account.signIn"));
    Theme::setRole(m_signIn, "primary");
    m_signOut->setObjectName(QStringLiteral("vl.account.signOut"));
    Theme::setRole(m_signOut, "link");
    m_seekerSignIn->setObjectName(QStringLiteral("vl.account.seekerSignIn"));
    // A link that wraps: the job seeker's way in is a long phrase in Georgian and Russian.
    m_seekerSignIn->setWordWrap(true);
    m_seekerSignIn->setTextFormat(Qt::RichText);
    m_seekerSignIn->setCursor(Qt::PointingHandCursor);
    m_more->setObjectName(QStringLiteral("vl.account.more"));
    m_more->setText(QStringLiteral("⋯"));
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setMenu(m_menu);
    m_menu->setObjectName(QStringLiteral("vl.account.menu"));

    auto* lines = new QVBoxLayout;
    lines->setSpacing(2);
    lines->addWidget(m_name);
    lines->addWidget(m_role);
    auto* who = new QHBoxLayout;
    who->setSpacing(10);
    who->addWidget(m_avatar, 0, Qt::AlignVCenter);
    who->addLayout(lines, 1);
    who->addWidget(m_more, 0, Qt::AlignVCenter);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 16);
    layout->setSpacing(10);
    // Any height the sidebar gives beyond the wrapped lines' need goes above them, not between.
    layout->addStretch(1);
    layout->addLayout(who);
    layout->addWidget(m_signIn);
    layout->addWidget(m_seekerSignIn);
    layout->addWidget(m_signOut, 0, Qt::AlignLeft);

    connect(m_signIn, &QPushButton::clicked, this, &AccountMenu::doorRequested);
    connect(m_signOut, &QPushButton::clicked, this, [this] {
        if (const auto entry = m_model.employerSignOut())
            confirmSignOut(*entry);
    });
    connect(m_seekerSignIn, &QLabel::linkActivated, this, &AccountMenu::doorRequested);
    connect(m_menu, &QMenu::aboutToShow, this, &AccountMenu::fillMenu);
    connect(&m_model, &AccountMenuModel::changed, this, &AccountMenu::retext);
    connect(&m_appState, &AppState::langChanged, this, &AccountMenu::retext);
    retext();
}

void AccountMenu::retext()
{
    const Lang lang = m_appState.lang();
    const bool signedOut = m_model.signedOut();
    const QString name =
        signedOut ? L10n::text(L10n::Key::macSignedOutTitle, lang) : m_model.name();
    const auto role = m_model.role();
    m_avatar->setVisible(!signedOut);
    m_avatar->setText(initial(name));
    m_name->setText(name);
    m_name->setVisible(!name.isEmpty());
    if (signedOut)
        m_role->setText(L10n::text(L10n::Key::macSignedOutNote, lang));
    else
        m_role->setText(role ? L10n::text(*role, lang) : QString());
    m_role->setVisible(signedOut || role.has_value());
    // Nobody signed in: one door to both sides. One side signed in: a quiet way to the other.
    m_signIn->setText(L10n::text(L10n::Key::signInTitle, lang));
    m_signIn->setVisible(signedOut);
    const auto signOut = m_model.employerSignOut();
    m_signOut->setText(signOut ? L10n::text(*signOut, lang) : QString());
    m_signOut->setVisible(signOut.has_value());
    const bool otherSide =
        !signedOut && (m_model.offersSeekerSignIn() || m_model.offersEmployerSignIn());
    const QString other = L10n::text(
        m_model.offersSeekerSignIn() ? L10n::Key::fySignInSeeker : L10n::Key::signInTitle, lang);
    m_seekerSignIn->setText(
        QStringLiteral("<a href=\"velmora:door\" style=\"text-decoration:none\">") +
        other.toHtmlEscaped() + QStringLiteral("</a>"));
    m_seekerSignIn->setAccessibleName(other);
    m_seekerSignIn->setVisible(otherSide);
    m_more->setToolTip(L10n::text(L10n::Key::macYourAccount, lang));
    m_more->setAccessibleName(m_more->toolTip());
    m_more->setVisible(!signedOut);
    fillMenu();
    fitHeight();
}

void AccountMenu::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    fitHeight();
}

bool AccountMenu::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest)
        fitHeight();
    return handled;
}

void AccountMenu::fitHeight()
{
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > 0 && minimumHeight() != needed)
        setMinimumHeight(needed);
}

void AccountMenu::fillMenu()
{
    using L10n::Key;
    const Lang lang = m_appState.lang();
    m_menu->clear();
    m_menu->addSection(L10n::text(Key::macWorkingAs, lang));
    auto* roles = new QActionGroup(m_menu);
    const QString current = m_model.workingAs();
    for (const auto& [key, raw] : {std::pair{Key::roleWork, QStringLiteral("work")},
                                   std::pair{Key::roleHiring, QStringLiteral("hiring")}}) {
        QAction* role = m_menu->addAction(L10n::text(key, lang));
        role->setObjectName(QStringLiteral("vl.account.role.") + raw);
        role->setCheckable(true);
        role->setChecked(current == raw);
        roles->addAction(role);
        connect(role, &QAction::triggered, this, [this, raw] { m_model.setWorkingAs(raw); });
    }
    const auto entries = m_model.signOutEntries();
    if (!entries.empty())
        m_menu->addSeparator();
    for (const Key entry : entries) {
        QAction* action = m_menu->addAction(L10n::text(entry, lang));
        action->setObjectName(QStringLiteral("vl.account.") + L10n::keyName(entry));
        connect(action, &QAction::triggered, this, [this, entry] { confirmSignOut(entry); });
    }
    m_menu->addSeparator();
    QAction* account = m_menu->addAction(L10n::text(Key::tabAccount, lang));
    account->setObjectName(QStringLiteral("vl.account.open"));
    connect(account, &QAction::triggered, this, &AccountMenu::accountRequested);
}

void AccountMenu::confirmSignOut(L10n::Key entry)
{
    const Lang lang = m_appState.lang();
    auto* ask =
        new QMessageBox(QMessageBox::NoIcon, QString(), L10n::text(L10n::Key::signOutConfirm, lang),
                        QMessageBox::NoButton, this);
    ask->setObjectName(QStringLiteral("vl.account.signOutConfirm"));
    ask->setAttribute(Qt::WA_DeleteOnClose);
    ask->setWindowModality(Qt::WindowModal);
    QPushButton* yes =
        ask->addButton(L10n::text(L10n::Key::signOut, lang), QMessageBox::AcceptRole);
    yes->setObjectName(QStringLiteral("vl.account.signOutConfirm.yes"));
    Theme::setRole(yes, "primary");
    QPushButton* no =
        ask->addButton(L10n::text(L10n::Key::rateLater, lang), QMessageBox::RejectRole);
    no->setObjectName(QStringLiteral("vl.account.signOutConfirm.no"));
    ask->setDefaultButton(no);
    connect(ask, &QMessageBox::buttonClicked, this, [this, yes, entry](QAbstractButton* clicked) {
        if (clicked == yes)
            m_model.signOut(entry);
    });
    ask->open();
}

} // namespace vl
