#include "app/hiring/ProfileEditScreen.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

ProfileEditScreen::ProfileEditScreen(const APIClient& api, AuthManager& auth, AppState& appState,
                                     QWidget* parent)
    : QWidget(parent)
    , m_form(api, auth, appState)
    , m_appState(appState)
    , m_title(new QLabel(this))
    , m_nameLabel(new QLabel(this))
    , m_name(new QLineEdit(this))
    , m_websiteLabel(new QLabel(this))
    , m_website(new QLineEdit(this))
    , m_phoneLabel(new QLabel(this))
    , m_phone(new QLineEdit(this))
    , m_note(new QLabel(this))
    , m_save(new QPushButton(this))
{
    setObjectName(QStringLiteral("vl.profileEdit"));
    Theme::setRole(m_title, "title");
    for (QLabel* caption : {m_nameLabel, m_websiteLabel, m_phoneLabel})
        Theme::setRole(caption, "caption");
    m_name->setObjectName(QStringLiteral("vl.profileEdit.name"));
    m_website->setObjectName(QStringLiteral("vl.profileEdit.website"));
    m_website->setPlaceholderText(QStringLiteral("https://"));
    m_phone->setObjectName(QStringLiteral("vl.profileEdit.phone"));
    m_note->setObjectName(QStringLiteral("vl.profileEdit.note"));
    m_save->setObjectName(QStringLiteral("vl.profileEdit.save"));
    Theme::setRole(m_save, "primary");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(8);
    layout->addWidget(m_title);
    for (auto [caption, box] :
         {std::pair{m_nameLabel, m_name}, std::pair{m_websiteLabel, m_website},
          std::pair{m_phoneLabel, m_phone}}) {
        layout->addWidget(caption);
        layout->addWidget(box);
    }
    layout->addWidget(m_note);
    layout->addWidget(m_save, 0, Qt::AlignRight);
    layout->addStretch(1);

    m_name->setText(m_form.name);
    m_website->setText(m_form.website);
    m_phone->setText(m_form.phone);
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString& t) { m_form.name = t; });
    connect(m_website, &QLineEdit::textEdited, this,
            [this](const QString& t) { m_form.website = t; });
    connect(m_phone, &QLineEdit::textEdited, this, [this](const QString& t) { m_form.phone = t; });
    connect(m_save, &QPushButton::clicked, this, [this] { m_form.save(); });
    connect(&m_form, &ProfileEditForm::changed, this, &ProfileEditScreen::refresh);
    connect(&m_appState, &AppState::langChanged, this, &ProfileEditScreen::retext);
    retext();
}

void ProfileEditScreen::retext()
{
    using L10n::Key;
    const Lang lang = m_appState.lang();
    const QString optional = QStringLiteral(" (") + L10n::text(Key::optional, lang) + u')';
    m_title->setText(L10n::text(Key::profileTitle, lang));
    m_nameLabel->setText(L10n::text(Key::displayName, lang));
    m_websiteLabel->setText(L10n::text(Key::websiteField, lang) + optional);
    m_phoneLabel->setText(L10n::text(Key::fieldPhone, lang) + optional);
    m_save->setText(L10n::text(Key::save, lang));
    refresh();
}

void ProfileEditScreen::refresh()
{
    m_note->setText(m_form.note().value_or(QString()));
    m_note->setVisible(m_form.note().has_value());
    m_save->setEnabled(!m_form.working());
}

} // namespace vl
