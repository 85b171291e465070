#pragma once

#include "app/shell/AccountMenuModel.h"
#include "app/shell/UpdateBannerModel.h"

#include <QMainWindow>
#include <QPointer>

class QAction;
class QActionGroup;
class QMenu;
class QStackedWidget;

class QDialog;

namespace vl {

class AppContext;
class LoginSheet;

// The one main window: the sidebar with its sections and the account area at its foot, and the
// content with the update banner above it. When the service refuses this build the window shows
// only the update screen, until the next launch.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(AppContext& context, QWidget* parent = nullptr);

    // Opens the employer's sign-in sheet over the window, or brings the open one forward.
    void openSignIn();

private:
    void buildMenus();
    QWidget* buildShell();
    void retext();
    void closeGateIfRequired();
    // The job seeker's sign-in in front of the account, or the account itself.
    void openAccount(bool signInFirst);

    AppContext& m_context;
    AccountMenuModel m_account;
    UpdateBannerModel m_banner;
    QStackedWidget* m_root = nullptr;
    QMenu* m_appMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QAction* m_checkUpdates = nullptr;
    QAction* m_quit = nullptr;
    QActionGroup* m_languages = nullptr;
    QPointer<LoginSheet> m_loginSheet;
    QPointer<QDialog> m_accountSheet;
    bool m_gateClosed = false;
};

} // namespace vl
