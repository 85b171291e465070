#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace vl {

class AccountMenuModel;
class AppState;

// The account area at the sidebar's foot: who is signed in and as what, the employer's way in,
// and the way out, which asks first.
class AccountMenu : public QFrame {
    Q_OBJECT
public:
    AccountMenu(AccountMenuModel& model, AppState& appState, QWidget* parent = nullptr);

Q_SIGNALS:
    void signInRequested();

private:
    void retext();
    void confirmSignOut();

    AccountMenuModel& m_model;
    AppState& m_appState;
    QLabel* m_avatar;
    QLabel* m_name;
    QLabel* m_role;
    QPushButton* m_signIn;
    QPushButton* m_signOut;
};

} // namespace vl
