#pragma once

#include "core/l10n/L10nKey.h"

#include <QFrame>

class QLabel;
class QMenu;
class QPushButton;
class QToolButton;

namespace vl {

class AccountMenuModel;
class AppState;

// The account area at the sidebar's foot: who is signed in and as what, the ways in for the
// employer and the job seeker, and a menu with the side the panel shows, the ways out (each
// asking first) and the account itself.
class AccountMenu : public QFrame {
    Q_OBJECT
public:
    AccountMenu(AccountMenuModel& model, AppState& appState, QWidget* parent = nullptr);

Q_SIGNALS:
    // The way in to whichever side is not signed in yet.
    void doorRequested();
    void accountRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void retext();
    // Wrapped lines need their whole height, which the sidebar's layout does not ask for.
    void fitHeight();
    void confirmSignOut(L10n::Key entry);
    void fillMenu();

    AccountMenuModel& m_model;
    AppState& m_appState;
    QLabel* m_avatar;
    QLabel* m_name;
    QLabel* m_role;
    QPushButton* m_signIn;
    QPushButton* m_signOut;
    QLabel* m_seekerSignIn;
    QToolButton* m_more;
    QMenu* m_menu;
};

} // namespace vl
