#include "app/window/SettingsWindow.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "app/shell/BuildNumber.h"
#include "core/l10n/DesktopText.h"
#include "core/l10n/L10n.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

SettingsWindow::SettingsWindow(AppState& appState, QWidget* parent)
    : QDialog(parent)
    , m_appState(appState)
{
    setObjectName(QStringLiteral("vl.settings"));
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("vl.settings.tabs"));
    m_tabs->setDocumentMode(true);
    auto* general = new QWidget(m_tabs);
    general->setObjectName(QStringLiteral("vl.settings.general"));
    m_language = new QComboBox(general);
    m_language->setObjectName(QStringLiteral("vl.settings.language"));
    // Each language under its own name, whatever the current one.
    m_language->addItem(QStringLiteral("ქართული"), rawValue(Lang::ka));
    m_language->addItem(QStringLiteral("English"), rawValue(Lang::en));
    m_language->addItem(QStringLiteral("Русский"), rawValue(Lang::ru));
    connect(m_language, &QComboBox::activated, this, [this](int index) {
        if (const auto lang = langFromRaw(m_language->itemData(index).toString()))
            m_appState.setLang(*lang);
    });
    m_languageLabel = new QLabel(general);
    m_languageLabel->setBuddy(m_language);
    m_versionLabel = new QLabel(general);
    m_version = new QLabel(general);
    m_version->setObjectName(QStringLiteral("vl.settings.version"));
    m_version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_version->setText(
        QStringLiteral("%1 (%2)").arg(QStringLiteral(VELMORA_VERSION)).arg(runningBuildNumber()));
    m_appearance = new QLabel(general);
    m_appearance->setObjectName(QStringLiteral("vl.settings.appearance"));
    m_appearance->setWordWrap(true);
    Theme::setRole(m_appearance, "caption");
    m_about = new QLabel(general);
    m_about->setObjectName(QStringLiteral("vl.settings.about"));
    m_about->setWordWrap(true);
    Theme::setRole(m_about, "caption");
    auto* brand = new QLabel(QStringLiteral("Velmora"), general);
    Theme::setRole(brand, "brand");

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->addRow(m_languageLabel, m_language);
    form->addRow(m_versionLabel, m_version);
    auto* layout = new QVBoxLayout(general);
    layout->setContentsMargins(24, 20, 24, 24);
    layout->setSpacing(14);
    layout->addLayout(form);
    layout->addWidget(m_appearance);
    layout->addSpacing(8);
    layout->addWidget(brand);
    layout->addWidget(m_about);
    layout->addStretch(1);
    m_tabs->addTab(general, QString());
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 8, 0, 0);
    outer->addWidget(m_tabs);
    setMinimumWidth(420);

    connect(&appState, &AppState::langChanged, this, &SettingsWindow::retext);
    retext();
}

void SettingsWindow::retext()
{
    const Lang lang = m_appState.lang();
    setWindowTitle(L10n::text(Key::tabSettings, lang));
    m_tabs->setTabText(0, L10n::text(L10n::DesktopKey::general, lang));
    m_languageLabel->setText(L10n::text(Key::language, lang));
    m_language->setAccessibleName(L10n::text(Key::language, lang));
    m_language->setCurrentIndex(m_language->findData(rawValue(lang)));
    m_versionLabel->setText(L10n::text(Key::macVersion, lang));
    m_appearance->setText(L10n::text(Key::macAppearance, lang));
    m_about->setText(L10n::text(Key::aboutFooter, lang));
}

} // namespace vl
