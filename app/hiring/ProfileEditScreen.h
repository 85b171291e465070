#pragma once

#include "app/hiring/ProfileEditForm.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace vl {

// The employer's company profile form.
class ProfileEditScreen : public QWidget {
    Q_OBJECT
public:
    ProfileEditScreen(const APIClient& api, AuthManager& auth, AppState& appState,
                      QWidget* parent = nullptr);

    ProfileEditForm& form() { return m_form; }

private:
    void retext();
    void refresh();

    ProfileEditForm m_form;
    AppState& m_appState;
    QLabel* m_title;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QLabel* m_websiteLabel;
    QLineEdit* m_website;
    QLabel* m_phoneLabel;
    QLineEdit* m_phone;
    QLabel* m_note;
    QPushButton* m_save;
};

} // namespace vl
