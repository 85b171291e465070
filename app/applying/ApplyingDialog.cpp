#include "app/applying/ApplyingDialog.h"

#include "app/applying/ApplySheet.h"
#include "app/applying/CandidateConversationScreen.h"
#include "app/applying/EnquirySheet.h"
#include "app/applying/MyApplicationsScreen.h"
#include "app/applying/SeekerPostSheet.h"
#include "app/shell/AppContext.h"

#include <QDesktopServices>
#include <QVBoxLayout>

namespace vl {

namespace {

bool openUrl(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

} // namespace

ApplyingDialog::ApplyingDialog(QWidget* content, QWidget* window)
    : QDialog(window)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    resize(560, 720);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    content->setParent(this);
    layout->addWidget(content);
    show();
}

void ApplyingDialog::follow(AppContext& context, QWidget* window)
{
    QObject::connect(&context.router, &Router::applyTickChanged, window, [&context, window] {
        if (const auto& job = context.router.readingJob()) {
            auto* sheet = new ApplySheet(ApplyServices::from(context), *job, openUrl);
            auto* dialog = new ApplyingDialog(sheet, window);
            QObject::connect(sheet, &ApplySheet::closed, dialog, &QDialog::accept);
        }
    });
    QObject::connect(&context.router, &Router::askTickChanged, window, [&context, window] {
        if (const auto& job = context.router.readingJob()) {
            auto* sheet = new EnquirySheet(ApplyServices::from(context), *job, openUrl);
            auto* dialog = new ApplyingDialog(sheet, window);
            QObject::connect(sheet, &EnquirySheet::closed, dialog, &QDialog::accept);
        }
    });
    QObject::connect(&context.nav, &MacNav::showPostSeekerChanged, window, [&context, window] {
        if (!context.nav.showPostSeeker())
            return;
        auto* sheet = new SeekerPostSheet(ApplyServices::from(context));
        auto* dialog = new ApplyingDialog(sheet, window);
        QObject::connect(sheet, &SeekerPostSheet::closed, dialog, &QDialog::accept);
        QObject::connect(dialog, &QDialog::finished, &context.nav,
                         [&context] { context.nav.setShowPostSeeker(false); });
    });
}

void ApplyingDialog::showMyApplications(AppContext& context, QWidget* window)
{
    auto* screen = new MyApplicationsScreen(ApplyServices::from(context));
    new ApplyingDialog(screen, window);
    QObject::connect(
        screen, &MyApplicationsScreen::openApplication, window,
        [&context, window](const QString& ref, const QString& key) {
            new ApplyingDialog(
                new CandidateConversationScreen(ApplyServices::from(context), ref, key), window);
        });
}

} // namespace vl
