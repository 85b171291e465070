#pragma once

#include "app/shell/AccountMenuModel.h"

#include <QPointer>
#include <QWidget>

class QButtonGroup;
class QLabel;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace vl {

class AppContext;
class ConfirmRow;

// The account both roles share: who is signed in and as what, the side the panel shows, the
// ways out (each confirmed), the company profile and deleting the account.
class AccountScreen : public QWidget {
    Q_OBJECT
public:
    explicit AccountScreen(AppContext& context, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void retext();
    void rebuildSignOuts();
    void openProfile();

    AppContext& m_context;
    AccountMenuModel m_model;
    QLabel* m_name;
    QLabel* m_role;
    QLabel* m_workingAs;
    QRadioButton* m_work;
    QRadioButton* m_hiring;
    QButtonGroup* m_roles;
    QVBoxLayout* m_signOuts;
    QPushButton* m_profile;
    ConfirmRow* m_delete;
    QLabel* m_error;
};

} // namespace vl
