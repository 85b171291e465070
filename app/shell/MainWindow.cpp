#include "app/shell/MainWindow.h"

#include "app/hiring/LoginSheet.h"
#include "app/identity/CandidateGateView.h"
#include "app/kit/Theme.h"
#include "app/shell/AccountMenu.h"
#include "app/shell/AccountScreen.h"
#include "app/shell/AppContext.h"
#include "app/shell/BuildNumber.h"
#include "app/shell/UpdateBanner.h"
#include "app/shell/UpdateRequiredScreen.h"
#include "core/l10n/L10n.h"

#include <QActionGroup>
#include <QApplication>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

namespace {

// The languages offered, each under its own name, whatever the current language.
struct LanguageChoice {
    Lang lang;
    const char16_t* name;
};

constexpr LanguageChoice languageChoices[] = {
    {Lang::ka, u"ქართული"},
    {Lang::en, u"English"},
    {Lang::ru, u"Русский"},
};

} // namespace

MainWindow::MainWindow(AppContext& context, QWidget* parent)
    : QMainWindow(parent)
    , m_context(context)
    , m_account(context.auth, context.candidate, context.preferences())
    , m_banner(context.taxonomy, context.preferences())
{
    setObjectName(QStringLiteral("vl.main"));
    setWindowTitle(QStringLiteral("Velmora"));
    resize(1180, 820);
    setMinimumSize(720, 560);

    m_root = new QStackedWidget(this);
    m_root->addWidget(buildShell());
    setCentralWidget(m_root);
    buildMenus();

    connect(&m_context.appState, &AppState::langChanged, this, &MainWindow::retext);
    connect(&m_context.taxonomy, &Taxonomy::changed, this, &MainWindow::closeGateIfRequired);
    retext();
    closeGateIfRequired();
}

QWidget* MainWindow::buildShell()
{
    auto* shell = new QWidget(m_root);

    auto* sidebar = new QFrame(shell);
    sidebar->setObjectName(QStringLiteral("vl.sidebar"));
    Theme::setRole(sidebar, "sidebar");
    sidebar->setFixedWidth(248);
    auto* brand = new QLabel(QStringLiteral("Velmora"), sidebar);
    brand->setObjectName(QStringLiteral("vl.sidebar.brand"));
    Theme::setRole(brand, "brand");
    auto* sections = new QListWidget(sidebar);
    sections->setObjectName(QStringLiteral("vl.sidebar.sections"));
    sections->setFrameShape(QFrame::NoFrame);
    Theme::setRole(sections, "sections");
    auto* account = new AccountMenu(m_account, m_context.appState, sidebar);
    connect(account, &AccountMenu::signInRequested, this, &MainWindow::openSignIn);
    connect(account, &AccountMenu::seekerSignInRequested, this, [this] { openAccount(true); });
    connect(account, &AccountMenu::accountRequested, this, [this] { openAccount(false); });
    auto* sideLayout = new QVBoxLayout(sidebar);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(0);
    auto* brandRow = new QHBoxLayout;
    brandRow->setContentsMargins(20, 20, 20, 12);
    brandRow->addWidget(brand);
    sideLayout->addLayout(brandRow);
    sideLayout->addWidget(sections, 1);
    sideLayout->addWidget(account);

    auto* content = new QWidget(shell);
    content->setObjectName(QStringLiteral("vl.content"));
    auto* banner = new UpdateBanner(m_banner, m_context.appState, content);
    auto* pages = new QStackedWidget(content);
    pages->setObjectName(QStringLiteral("vl.content.pages"));
    auto* placeholderPage = new QWidget(pages);
    auto* placeholder = new QLabel(QStringLiteral("Velmora"), placeholderPage);
    placeholder->setObjectName(QStringLiteral("vl.content.placeholder"));
    Theme::setRole(placeholder, "display");
    auto* placeholderLayout = new QVBoxLayout(placeholderPage);
    placeholderLayout->addStretch(1);
    placeholderLayout->addWidget(placeholder, 0, Qt::AlignHCenter);
    placeholderLayout->addStretch(1);
    pages->addWidget(placeholderPage);
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(0);
    contentLayout->addWidget(banner);
    contentLayout->addWidget(pages, 1);

    auto* layout = new QHBoxLayout(shell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(sidebar);
    layout->addWidget(content, 1);
    return shell;
}

void MainWindow::buildMenus()
{
    // The application's own menu carries its name, as on every desktop that has one.
    m_appMenu = menuBar()->addMenu(QStringLiteral("Velmora"));
    m_appMenu->setObjectName(QStringLiteral("vl.menu.app"));
    m_checkUpdates = m_appMenu->addAction(QString());
    m_checkUpdates->setObjectName(QStringLiteral("vl.action.checkUpdates"));
    connect(m_checkUpdates, &QAction::triggered, this,
            [this] { QDesktopServices::openUrl(QUrl(m_context.taxonomy.updatePage())); });
    m_appMenu->addSeparator();
    m_quit = m_appMenu->addAction(QString());
    m_quit->setObjectName(QStringLiteral("vl.action.quit"));
    m_quit->setShortcut(QKeySequence::Quit);
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_quit, &QAction::triggered, qApp, &QApplication::quit);

    m_languageMenu = menuBar()->addMenu(QString());
    m_languageMenu->setObjectName(QStringLiteral("vl.menu.language"));
    m_languages = new QActionGroup(this);
    m_languages->setExclusive(true);
    for (const LanguageChoice& choice : languageChoices) {
        QAction* action = m_languageMenu->addAction(QString::fromUtf16(choice.name));
        action->setObjectName(QStringLiteral("vl.action.lang.") + rawValue(choice.lang));
        action->setCheckable(true);
        action->setData(rawValue(choice.lang));
        m_languages->addAction(action);
        const Lang lang = choice.lang;
        connect(action, &QAction::triggered, this,
                [this, lang] { m_context.appState.setLang(lang); });
    }
}

void MainWindow::retext()
{
    const Lang lang = m_context.appState.lang();
    m_checkUpdates->setText(L10n::text(L10n::Key::macCheckUpdates, lang));
    m_quit->setText(L10n::text(L10n::Key::mbQuit, lang));
    m_languageMenu->setTitle(L10n::text(L10n::Key::language, lang));
    for (QAction* action : m_languages->actions())
        action->setChecked(action->data().toString() == rawValue(lang));
}

void MainWindow::openSignIn()
{
    if (m_gateClosed)
        return;
    if (m_loginSheet) {
        m_loginSheet->raise();
        m_loginSheet->activateWindow();
        return;
    }
    m_loginSheet = new LoginSheet(
        {m_context.api(), m_context.auth, m_context.candidate, m_context.appState}, this);
    m_loginSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_loginSheet->open();
}

void MainWindow::openAccount(bool signInFirst)
{
    if (m_gateClosed)
        return;
    if (m_accountSheet)
        m_accountSheet->close();
    m_accountSheet = new QDialog(this);
    m_accountSheet->setObjectName(QStringLiteral("vl.accountSheet"));
    m_accountSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_accountSheet->setWindowModality(Qt::WindowModal);
    m_accountSheet->setFixedSize(480, 560);
    auto* account = new AccountScreen(m_context, m_accountSheet);
    QWidget* shown = account;
    if (signInFirst)
        shown = new CandidateGateView(
            m_context.candidate, m_context.appState,
            [](const QUrl& url) { return QDesktopServices::openUrl(url); }, account,
            m_accountSheet);
    auto* close =
        new QPushButton(L10n::text(L10n::Key::close, m_context.appState.lang()), m_accountSheet);
    close->setObjectName(QStringLiteral("vl.accountSheet.close"));
    close->setAutoDefault(false);
    Theme::setRole(close, "quiet");
    connect(close, &QPushButton::clicked, m_accountSheet, &QDialog::reject);
    auto* layout = new QVBoxLayout(m_accountSheet);
    layout->setContentsMargins(0, 0, 0, 12);
    layout->addWidget(shown, 1);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    m_accountSheet->open();
}

void MainWindow::closeGateIfRequired()
{
    const auto& gate = m_context.taxonomy.updateRequired();
    if (m_gateClosed || !gate)
        return;
    m_gateClosed = true;
    if (m_loginSheet)
        m_loginSheet->reject();
    if (m_accountSheet)
        m_accountSheet->reject();
    QWidget* shell = m_root->widget(0);
    auto* screen = new UpdateRequiredScreen(*gate, prereleaseBuild(), m_context.appState, m_root);
    m_root->addWidget(screen);
    m_root->setCurrentWidget(screen);
    m_root->removeWidget(shell);
    shell->deleteLater();
}

} // namespace vl
