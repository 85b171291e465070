#include "app/window/MainWindow.h"

#include "app/applying/ApplyingDialog.h"
#include "app/discovery/BoardScreen.h"
#include "app/discovery/SavedScreen.h"
#include "app/hiring/LoginSheet.h"
#include "app/identity/CandidateGateView.h"
#include "app/kit/SidebarDelegate.h"
#include "app/kit/Theme.h"
#include "app/shell/AppContext.h"
#include "app/shell/BuildNumber.h"
#include "app/window/AboutDialog.h"
#include "app/window/AccountMenu.h"
#include "app/window/AccountScreen.h"
#include "app/window/DoorSheet.h"
#include "app/window/SettingsWindow.h"
#include "app/window/UpdateBanner.h"
#include "app/window/UpdateRequiredScreen.h"
#include "core/l10n/DesktopText.h"
#include "core/l10n/L10n.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

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
    , m_toolkit(context.appState)
    , m_account(context.auth, context.candidate, context.preferences())
    , m_banner(context.taxonomy, context.preferences())
{
    setObjectName(QStringLiteral("vl.main"));
    setWindowTitle(QStringLiteral("Velmora"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("org.velmora.Velmora"),
                                   QIcon(QStringLiteral(":/icons/org.velmora.Velmora.png"))));
    resize(1180, 820);
    setMinimumSize(720, 560);

    m_root = new QStackedWidget(this);
    m_root->addWidget(buildShell());
    setCentralWidget(m_root);
    buildMenus();
    ApplyingDialog::follow(m_context, this);

    connect(&m_context.appState, &AppState::langChanged, this, &MainWindow::retext);
    connect(&m_context.taxonomy, &Taxonomy::changed, this, &MainWindow::closeGateIfRequired);
    connect(&m_context.auth, &AuthManager::sessionChanged, this, &MainWindow::rebuildSections);
    connect(&m_context.auth, &AuthManager::meChanged, this, &MainWindow::rebuildSections);
    connect(&m_context.inbox, &InboxState::unreadChanged, this, &MainWindow::rebuildSections);
    connect(&m_context.nav, &MacNav::sectionChanged, this, &MainWindow::showSection);
    connect(&m_context.nav, &MacNav::sidebarShownChanged, this, [this] {
        showSidebar();
        retext();
    });
    connect(&m_context.router, &Router::readingJobChanged, this, &MainWindow::refreshListingMenu);
    connect(&m_context.saved, &SavedJobs::changed, this, &MainWindow::refreshListingMenu);
    retext();
    showSection();
    closeGateIfRequired();
}

QWidget* MainWindow::buildShell()
{
    auto* shell = new QWidget(m_root);

    auto* sidebar = new QFrame(shell);
    m_sidebar = sidebar;
    sidebar->setObjectName(QStringLiteral("vl.sidebar"));
    Theme::setRole(sidebar, "sidebar");
    sidebar->setFixedWidth(248);
    auto* brand = new QLabel(QStringLiteral("Velmora"), sidebar);
    brand->setObjectName(QStringLiteral("vl.sidebar.brand"));
    Theme::setRole(brand, "brand");
    auto* sections = new QListWidget(sidebar);
    m_sections = sections;
    sections->setObjectName(QStringLiteral("vl.sidebar.sections"));
    sections->setFrameShape(QFrame::NoFrame);
    sections->setItemDelegate(new SidebarDelegate(sections));
    sections->setMouseTracking(true);
    sections->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Theme::setRole(sections, "sections");
    connect(sections, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (m_showingSections || !item)
            return;
        if (const auto section =
                macSectionFromRaw(item->data(SidebarDelegate::SectionRole).toString()))
            m_context.nav.setSection(*section);
    });
    auto* account = new AccountMenu(m_account, m_context.appState, sidebar);
    connect(account, &AccountMenu::doorRequested, this, &MainWindow::openDoor);
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
    m_pages = pages;
    pages->setObjectName(QStringLiteral("vl.content.pages"));
    m_board = new BoardScreen(m_context, pages);
    connect(m_board, &BoardScreen::signInRequested, this, &MainWindow::openSignIn);
    connect(m_board, &BoardScreen::firstPageDrawn, this, &MainWindow::firstPageDrawn);
    pages->addWidget(m_board);
    // Sections whose screens come later show their name.
    auto* placeholderPage = new QWidget(pages);
    m_placeholder = new QLabel(placeholderPage);
    m_placeholder->setObjectName(QStringLiteral("vl.content.placeholder"));
    Theme::setRole(m_placeholder, "display");
    auto* placeholderLayout = new QVBoxLayout(placeholderPage);
    placeholderLayout->addStretch(1);
    placeholderLayout->addWidget(m_placeholder, 0, Qt::AlignHCenter);
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

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    showSidebar();
}

void MainWindow::showSidebar()
{
    // Below this width the sidebar gives its room to the content, whatever the View menu says.
    constexpr int sidebarWidth = 960;
    if (m_sidebar)
        m_sidebar->setVisible(m_context.nav.sidebarShown() && width() >= sidebarWidth);
}

void MainWindow::buildMenus()
{
    // The application's own menu carries its name, as on every desktop that has one.
    m_appMenu = menuBar()->addMenu(QStringLiteral("Velmora"));
    m_appMenu->setObjectName(QStringLiteral("vl.menu.app"));
    m_about = m_appMenu->addAction(QString());
    m_about->setObjectName(QStringLiteral("vl.action.about"));
    m_about->setMenuRole(QAction::AboutRole);
    connect(m_about, &QAction::triggered, this, &MainWindow::openAbout);
    m_checkUpdates = m_appMenu->addAction(QString());
    m_checkUpdates->setObjectName(QStringLiteral("vl.action.checkUpdates"));
    connect(m_checkUpdates, &QAction::triggered, this,
            [this] { QDesktopServices::openUrl(QUrl(m_context.taxonomy.updatePage())); });
    m_settings = m_appMenu->addAction(QString());
    m_settings->setObjectName(QStringLiteral("vl.action.settings"));
    m_settings->setShortcut(QKeySequence::Preferences);
    m_settings->setMenuRole(QAction::PreferencesRole);
    connect(m_settings, &QAction::triggered, this, &MainWindow::openSettings);
    m_appMenu->addSeparator();
    m_help = m_appMenu->addAction(QString());
    m_help->setObjectName(QStringLiteral("vl.action.help"));
    m_help->setShortcut(QKeySequence::HelpContents);
    connect(m_help, &QAction::triggered, this, [this] { openOnSite(QStringLiteral("/faq")); });
    m_support = m_appMenu->addAction(QString());
    m_support->setObjectName(QStringLiteral("vl.action.support"));
    connect(m_support, &QAction::triggered, this,
            [this] { m_context.nav.setSection(MacSection::support); });
    m_terms = m_appMenu->addAction(QString());
    m_terms->setObjectName(QStringLiteral("vl.action.terms"));
    connect(m_terms, &QAction::triggered, this, [this] { openOnSite(QStringLiteral("/terms")); });
    m_privacy = m_appMenu->addAction(QString());
    m_privacy->setObjectName(QStringLiteral("vl.action.privacy"));
    connect(m_privacy, &QAction::triggered, this,
            [this] { openOnSite(QStringLiteral("/privacy")); });
    m_appMenu->addSeparator();
    m_quit = m_appMenu->addAction(QString());
    m_quit->setObjectName(QStringLiteral("vl.action.quit"));
    m_quit->setShortcut(QKeySequence::Quit);
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_quit, &QAction::triggered, qApp, &QApplication::closeAllWindows);

    auto addAction = [this](QMenu* menu, const char* name, QKeySequence shortcut, auto&& slot) {
        QAction* action = menu->addAction(QString());
        action->setObjectName(QStringLiteral("vl.action.") + QLatin1StringView(name));
        if (!shortcut.isEmpty())
            action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, std::forward<decltype(slot)>(slot));
        return action;
    };

    m_listingMenu = menuBar()->addMenu(QString());
    m_listingMenu->setObjectName(QStringLiteral("vl.menu.listing"));
    m_apply = addAction(m_listingMenu, "apply", {}, [this] { m_context.router.askToApply(); });
    m_ask = addAction(m_listingMenu, "ask", {}, [this] { m_context.router.askToEnquire(); });
    m_listingMenu->addSeparator();
    m_save = addAction(m_listingMenu, "save", QKeySequence(QStringLiteral("Ctrl+D")), [this] {
        if (const auto& job = m_context.router.readingJob())
            m_context.saved.toggle(*job);
    });
    m_copyLink =
        addAction(m_listingMenu, "copyLink", QKeySequence(QStringLiteral("Ctrl+Shift+C")), [this] {
            if (const auto& job = m_context.router.readingJob())
                QGuiApplication::clipboard()->setText(job->siteUrl);
        });
    m_openListing = addAction(m_listingMenu, "openOnSite", {}, [this] {
        if (const auto& job = m_context.router.readingJob())
            QDesktopServices::openUrl(QUrl(job->siteUrl));
    });

    m_goMenu = menuBar()->addMenu(QString());
    m_goMenu->setObjectName(QStringLiteral("vl.menu.go"));
    m_search = addAction(m_goMenu, "search", QKeySequence::Find, [this] {
        m_context.nav.setSection(MacSection::vacancies);
        m_context.router.find();
    });
    m_refresh =
        addAction(m_goMenu, "refresh", QKeySequence::Refresh, [this] { m_context.nav.reload(); });
    m_sidebarToggle =
        addAction(m_goMenu, "sidebar", QKeySequence(QStringLiteral("Ctrl+Alt+S")),
                  [this] { m_context.nav.setSidebarShown(!m_context.nav.sidebarShown()); });
    m_goMenu->addSeparator();
    m_nextListing = addAction(m_goMenu, "nextListing", QKeySequence(QStringLiteral("Alt+Down")),
                              [this] { m_context.router.step(1); });
    m_previousListing =
        addAction(m_goMenu, "previousListing", QKeySequence(QStringLiteral("Alt+Up")),
                  [this] { m_context.router.step(-1); });
    m_nextPlace = addAction(m_goMenu, "nextPlace", QKeySequence(QStringLiteral("Ctrl+PgDown")),
                            [this] { m_context.nav.stepSection(1, m_context.auth.hiring()); });
    m_previousPlace =
        addAction(m_goMenu, "previousPlace", QKeySequence(QStringLiteral("Ctrl+PgUp")),
                  [this] { m_context.nav.stepSection(-1, m_context.auth.hiring()); });
    m_goMenu->addSeparator();
    m_openSite = addAction(m_goMenu, "openSite", {}, [this] { openOnSite(QString()); });

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
    m_checkUpdates->setText(L10n::text(Key::macCheckUpdates, lang));
    m_settings->setText(L10n::text(Key::macGeneral, lang));
    m_about->setText(L10n::text(L10n::DesktopKey::aboutApp, lang));
    m_quit->setText(L10n::text(Key::mbQuit, lang));
    m_languageMenu->setTitle(L10n::text(Key::language, lang));
    for (QAction* action : m_languages->actions())
        action->setChecked(action->data().toString() == rawValue(lang));
    if (!m_listingMenu)
        return;
    m_listingMenu->setTitle(L10n::text(Key::macListingMenu, lang));
    m_goMenu->setTitle(L10n::text(Key::macGo, lang));
    m_search->setText(L10n::text(Key::search, lang));
    m_refresh->setText(L10n::text(Key::macRefresh, lang));
    m_sidebarToggle->setText(
        L10n::text(m_context.nav.sidebarShown() ? Key::macHideSidebar : Key::macShowSidebar, lang));
    m_apply->setText(L10n::text(Key::applyTitle, lang));
    m_ask->setText(L10n::text(Key::askTitle, lang));
    m_copyLink->setText(L10n::text(Key::macCopyLink, lang));
    m_openListing->setText(L10n::text(Key::macOpenOnSite, lang));
    m_nextListing->setText(L10n::text(Key::macNextListing, lang));
    m_previousListing->setText(L10n::text(Key::macPreviousListing, lang));
    m_nextPlace->setText(L10n::text(Key::macNextPlace, lang));
    m_previousPlace->setText(L10n::text(Key::macPreviousPlace, lang));
    m_openSite->setText(L10n::text(Key::openSite, lang));
    m_help->setText(L10n::text(Key::macHelp, lang));
    m_support->setText(L10n::text(Key::supportTitle, lang));
    m_terms->setText(L10n::text(Key::terms, lang));
    m_privacy->setText(L10n::text(Key::privacy, lang));
    refreshListingMenu();
    rebuildSections();
    showSection();
}

void MainWindow::rebuildSections()
{
    if (!m_sections)
        return;
    const Lang lang = m_context.appState.lang();
    const bool hiring = m_context.auth.hiring();
    const auto& me = m_context.auth.me();
    auto badge = [&](MacSection section) {
        switch (section) {
        case MacSection::listings:
            return me ? me->pendingListings.value_or(0) : 0;
        case MacSection::applicants:
            return me ? me->newApplications.value_or(0) : 0;
        case MacSection::inbox:
            return m_context.inbox.unread();
        default:
            return 0;
        }
    };
    m_sections->setAccessibleName(L10n::text(Key::macGo, lang));
    m_showingSections = true;
    m_sections->clear();
    for (const MacSectionGroup& group : macSectionGroups(hiring)) {
        auto* head = new QListWidgetItem(L10n::text(group.titleKey, lang), m_sections);
        head->setData(SidebarDelegate::GroupRole, true);
        head->setFlags(Qt::NoItemFlags);
        for (MacSection section : group.items) {
            auto* item = new QListWidgetItem(L10n::text(titleKey(section), lang), m_sections);
            item->setData(SidebarDelegate::SectionRole, rawValue(section));
            item->setData(SidebarDelegate::BadgeRole, badge(section));
        }
    }
    m_showingSections = false;
    // A hiring section that is no longer shown gives way to the board.
    const auto visible = visibleMacSections(hiring);
    if (std::find(visible.begin(), visible.end(), m_context.nav.section()) == visible.end())
        m_context.nav.setSection(MacSection::vacancies);
    showSection();
}

void MainWindow::showSection()
{
    if (!m_pages)
        return;
    const MacSection section = m_context.nav.section();
    m_showingSections = true;
    for (int i = 0; i < m_sections->count(); ++i) {
        QListWidgetItem* item = m_sections->item(i);
        if (item->data(SidebarDelegate::SectionRole).toString() == rawValue(section))
            m_sections->setCurrentItem(item);
    }
    m_showingSections = false;
    if (section == MacSection::vacancies) {
        m_pages->setCurrentWidget(m_board);
    } else if (section == MacSection::saved) {
        // Built when first visited: most launches never open it.
        if (!m_saved) {
            m_saved = new SavedScreen(m_context, m_pages);
            m_pages->addWidget(m_saved);
        }
        m_pages->setCurrentWidget(m_saved);
    } else {
        m_placeholder->setText(L10n::text(titleKey(section), m_context.appState.lang()));
        m_pages->setCurrentWidget(m_placeholder->parentWidget());
    }
    refreshListingMenu();
}

void MainWindow::refreshListingMenu()
{
    if (!m_listingMenu)
        return;
    const Lang lang = m_context.appState.lang();
    const auto& job = m_context.router.readingJob();
    const bool reading = job.has_value() && m_context.nav.section() != MacSection::seekers;
    m_apply->setEnabled(reading && job->canApply);
    m_ask->setEnabled(reading && job->canEnquire);
    m_save->setEnabled(reading);
    m_copyLink->setEnabled(reading);
    m_openListing->setEnabled(reading);
    const bool saved = reading && m_context.saved.contains(job->ref);
    m_save->setText(L10n::text(saved ? Key::macUnsave : Key::macSave, lang));
}

void MainWindow::openDoor()
{
    if (m_gateClosed)
        return;
    auto* door = new DoorSheet(m_context.appState, !m_context.candidate.signedIn(),
                               !m_context.auth.hiring(), this);
    door->setAttribute(Qt::WA_DeleteOnClose);
    connect(door, &DoorSheet::workChosen, this, [this] { openAccount(true); });
    connect(door, &DoorSheet::hiringChosen, this, &MainWindow::openSignIn);
    door->open();
}

void MainWindow::openSettings()
{
    if (!m_settingsWindow) {
        m_settingsWindow = new SettingsWindow(m_context.appState, this);
        m_settingsWindow->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_settingsWindow->show();
    m_settingsWindow->raise();
    m_settingsWindow->activateWindow();
}

void MainWindow::openAbout()
{
    if (!m_aboutDialog) {
        m_aboutDialog = new AboutDialog(m_context.appState, m_context.site(), this);
        m_aboutDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_aboutDialog->show();
    m_aboutDialog->raise();
    m_aboutDialog->activateWindow();
}

void MainWindow::openOnSite(const QString& path)
{
    QDesktopServices::openUrl(
        QUrl(m_context.site() + QLatin1Char('/') + rawValue(m_context.appState.lang()) + path));
}

BoardScreen* MainWindow::board() const
{
    return m_board;
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
    m_accountSheet->setWindowTitle(
        L10n::text(L10n::Key::macYourAccount, m_context.appState.lang()));
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
