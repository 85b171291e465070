#pragma once

#include <QDialog>

namespace vl {

class AppContext;

// A window-modal sheet over the main window that holds one of the applying screens.
class ApplyingDialog : public QDialog {
    Q_OBJECT
public:
    ApplyingDialog(QWidget* content, QWidget* window);

    // Opens the apply and question sheets when the router asks for them, on the listing being
    // read, and the seeker post sheet when the navigation shows it.
    static void follow(AppContext& context, QWidget* window);
    // My applications, and from there an application's conversation.
    static void showMyApplications(AppContext& context, QWidget* window);
};

} // namespace vl
