#include "app/window/AccountScreen.h"

#include "app/applying/ApplyingDialog.h"
#include "app/hiring/ProfileEditScreen.h"
#include "app/kit/ConfirmRow.h"
#include "app/kit/Theme.h"
#include "app/shell/AppContext.h"
#include "app/window/ReviewNotice.h"
#include "core/l10n/L10n.h"

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vl {

AccountScreen::AccountScreen(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(context.auth, context.candidate, context.preferences())
    , m_name(new QLabel(this))
    , m_role(new QLabel(this))
    , m_workingAs(new QLabel(this))
    , m_work(new QRadioButton(this))
    , m_hiring(new QRadioButton(this))
    , m_roles(new QButtonGroup(this))
    , m_signOuts(new QVBoxLayout)
    , m_profile(new QPushButton(this))
    , m_error(new QLabel(this))
{
    setObjectName(QStringLiteral("vl.accountScreen"));
    m_name->setObjectName(QStringLiteral("vl.accountScreen.name"));
    Theme::setRole(m_name, "title");
    m_role->setObjectName(QStringLiteral("vl.accountScreen.role"));
    Theme::setRole(m_role, "caption");
    Theme::setRole(m_workingAs, "caption");
    m_work->setObjectName(QStringLiteral("vl.accountScreen.work"));
    m_hiring->setObjectName(QStringLiteral("vl.accountScreen.hiring"));
    m_roles->addButton(m_work);
    m_roles->addButton(m_hiring);
    m_profile->setObjectName(QStringLiteral("vl.accountScreen.profile"));
    Theme::setRole(m_profile, "link");
    m_delete = new ConfirmRow(
        QIcon(),
        [this] {
            m_context.auth.deleteAccount().then([self = QPointer(this)](bool deleted) {
                if (self) {
                    self->m_error->setVisible(!deleted);
                }
            });
        },
        this);
    m_delete->setObjectName(QStringLiteral("vl.accountScreen.delete"));
    m_error->setObjectName(QStringLiteral("vl.accountScreen.error"));
    Theme::setRole(m_error, "error");
    m_error->hide();

    auto* roles = new QHBoxLayout;
    roles->addWidget(m_work);
    roles->addWidget(m_hiring);
    roles->addStretch(1);
    m_signOuts->setSpacing(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(8);
    layout->addWidget(m_name);
    layout->addWidget(m_role);
    layout->addSpacing(8);
    layout->addWidget(m_workingAs);
    layout->addLayout(roles);
    layout->addSpacing(8);
    layout->addWidget(m_profile, 0, Qt::AlignLeft);
    layout->addLayout(m_signOuts);
    layout->addWidget(m_delete, 0, Qt::AlignLeft);
    layout->addWidget(m_error);
    layout->addSpacing(8);
    layout->addWidget(new ReviewNotice(
        context.review, context.appState,
        [&context] { return ReviewAsk::reviewPage(context.taxonomy.updatePage()); }, this));
    layout->addStretch(1);

    connect(m_work, &QRadioButton::clicked, this,
            [this] { m_model.setWorkingAs(QStringLiteral("work")); });
    connect(m_hiring, &QRadioButton::clicked, this,
            [this] { m_model.setWorkingAs(QStringLiteral("hiring")); });
    connect(m_profile, &QPushButton::clicked, this, &AccountScreen::openProfile);
    auto* applications = new QPushButton(this);
    applications->setObjectName(QStringLiteral("vl.accountScreen.myApplications"));
    Theme::setRole(applications, "link");
    layout->insertWidget(layout->indexOf(m_profile) + 1, applications, 0, Qt::AlignLeft);
    connect(applications, &QPushButton::clicked, this,
            [this] { ApplyingDialog::showMyApplications(m_context, window()); });
    connect(&m_context.appState, &AppState::langChanged, applications, [this, applications] {
        applications->setText(L10n::text(L10n::Key::myApplications, m_context.appState.lang()));
    });
    applications->setText(L10n::text(L10n::Key::myApplications, m_context.appState.lang()));
    connect(&m_model, &AccountMenuModel::changed, this, &AccountScreen::retext);
    connect(&m_context.appState, &AppState::langChanged, this, &AccountScreen::retext);
    retext();
}

void AccountScreen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_context.review.evaluateCard();
}

void AccountScreen::retext()
{
    using L10n::Key;
    const Lang lang = m_context.appState.lang();
    const bool signedOut = m_model.signedOut();
    m_name->setText(signedOut ? L10n::text(Key::macSignedOutTitle, lang) : m_model.name());
    const auto role = m_model.role();
    m_role->setText(role ? L10n::text(*role, lang) : QString());
    m_role->setVisible(role.has_value());
    m_workingAs->setText(L10n::text(Key::macWorkingAs, lang));
    m_work->setText(L10n::text(Key::roleWork, lang));
    m_hiring->setText(L10n::text(Key::roleHiring, lang));
    const QString working = m_model.workingAs();
    m_work->setChecked(working == QLatin1StringView("work"));
    m_hiring->setChecked(working == QLatin1StringView("hiring"));
    m_profile->setText(L10n::text(Key::profileTitle, lang));
    const bool hiring = m_context.auth.hiring();
    m_profile->setVisible(hiring);
    m_delete->setVisible(hiring);
    m_delete->setTexts({L10n::text(Key::deleteAccount, lang),
                        L10n::text(Key::deleteAccountConfirm, lang),
                        L10n::text(Key::deleteAccountBody, lang),
                        L10n::text(Key::deleteAccount, lang), L10n::text(Key::rateLater, lang)});
    m_error->setText(L10n::text(Key::errGeneric, lang));
    rebuildSignOuts();
}

void AccountScreen::rebuildSignOuts()
{
    while (QLayoutItem* item = m_signOuts->takeAt(0)) {
        if (QWidget* row = item->widget()) {
            row->hide();
            row->deleteLater();
        }
        delete item;
    }
    const Lang lang = m_context.appState.lang();
    for (const L10n::Key entry : m_model.signOutEntries()) {
        auto* row = new ConfirmRow(
            QIcon(), [this, entry] { m_model.signOut(entry); }, this);
        row->setObjectName(QStringLiteral("vl.accountScreen.") + L10n::keyName(entry));
        row->setTexts({L10n::text(entry, lang), L10n::text(L10n::Key::signOutConfirm, lang),
                       QString(), L10n::text(L10n::Key::signOut, lang),
                       L10n::text(L10n::Key::rateLater, lang)});
        m_signOuts->addWidget(row, 0, Qt::AlignLeft);
    }
}

void AccountScreen::openProfile()
{
    auto* sheet = new QDialog(this);
    sheet->setObjectName(QStringLiteral("vl.accountScreen.profileSheet"));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    auto* layout = new QVBoxLayout(sheet);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(
        new ProfileEditScreen(m_context.api(), m_context.auth, m_context.appState, sheet));
    sheet->open();
}

} // namespace vl
