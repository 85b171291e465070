#pragma once

#include "app/shell/AccountMenuModel.h"
#include "app/shell/ToolkitTranslator.h"
#include "app/shell/UpdateBannerModel.h"

#include <QMainWindow>
#include <QPointer>

class QAction;
class QActionGroup;
class QFrame;
class QLabel;
class QListWidget;
class QMenu;
class QStackedWidget;

class QDialog;

namespace vl {

class AppContext;
class BoardScreen;
class LoginSheet;
class SavedScreen;

// The one main window: the sidebar with its sections and the account area at its foot, and the
// content with the update banner above it. When the service refuses this build the window shows
// only the update screen, until the next launch.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(AppContext& context, QWidget* parent = nullptr);

    // Opens the employer's sign-in sheet over the window, or brings the open one forward.
    void openSignIn();

    // The board, while the shell stands.
    BoardScreen* board() const;

Q_SIGNALS:
    // The board's first rows have been painted.
    void firstPageDrawn();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showSidebar();
    void buildMenus();
    QWidget* buildShell();
    void retext();
    void closeGateIfRequired();
    void rebuildSections();
    void showSection();
    void refreshListingMenu();
    void openOnSite(const QString& path);
    void openSettings();
    void openAbout();
    void openDoor();
    // The job seeker's sign-in in front of the account, or the account itself.
    void openAccount(bool signInFirst);

    AppContext& m_context;
    ToolkitTranslator m_toolkit;
    AccountMenuModel m_account;
    UpdateBannerModel m_banner;
    QStackedWidget* m_root = nullptr;
    QMenu* m_appMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QAction* m_checkUpdates = nullptr;
    QAction* m_settings = nullptr;
    QAction* m_about = nullptr;
    QAction* m_quit = nullptr;
    QMenu* m_listingMenu = nullptr;
    QMenu* m_goMenu = nullptr;
    QAction* m_search = nullptr;
    QAction* m_refresh = nullptr;
    QAction* m_sidebarToggle = nullptr;
    QAction* m_apply = nullptr;
    QAction* m_ask = nullptr;
    QAction* m_save = nullptr;
    QAction* m_copyLink = nullptr;
    QAction* m_openListing = nullptr;
    QAction* m_nextListing = nullptr;
    QAction* m_previousListing = nullptr;
    QAction* m_nextPlace = nullptr;
    QAction* m_previousPlace = nullptr;
    QAction* m_openSite = nullptr;
    QAction* m_help = nullptr;
    QAction* m_support = nullptr;
    QAction* m_terms = nullptr;
    QAction* m_privacy = nullptr;
    // The shell's parts go when the update gate closes; everything after must find them gone.
    QPointer<QFrame> m_sidebar;
    QPointer<QListWidget> m_sections;
    QPointer<QStackedWidget> m_pages;
    QPointer<BoardScreen> m_board;
    QPointer<SavedScreen> m_saved;
    QPointer<QLabel> m_placeholder;
    bool m_showingSections = false;
    QActionGroup* m_languages = nullptr;
    QPointer<LoginSheet> m_loginSheet;
    QPointer<QDialog> m_accountSheet;
    QPointer<QDialog> m_settingsWindow;
    QPointer<QDialog> m_aboutDialog;
    bool m_gateClosed = false;
};

} // namespace vl
