#include "app/window/AboutDialog.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "app/shell/BuildNumber.h"
#include "core/l10n/DesktopText.h"
#include "core/l10n/L10n.h"

#include <QIcon>
#include <QLabel>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

AboutDialog::AboutDialog(AppState& appState, const QString& site, QWidget* parent)
    : QDialog(parent)
    , m_appState(appState)
{
    setObjectName(QStringLiteral("vl.about"));
    auto* icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/org.velmora.Velmora.png")).pixmap(64, 64));
    icon->setAlignment(Qt::AlignCenter);
    auto* name = new QLabel(QStringLiteral("Velmora"), this);
    name->setObjectName(QStringLiteral("vl.about.name"));
    name->setAlignment(Qt::AlignCenter);
    Theme::setRole(name, "brand");
    m_versionLabel = new QLabel(this);
    m_versionLabel->setObjectName(QStringLiteral("vl.about.version"));
    m_versionLabel->setAlignment(Qt::AlignCenter);
    m_versionLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_about = new QLabel(this);
    m_about->setObjectName(QStringLiteral("vl.about.body"));
    m_about->setAlignment(Qt::AlignCenter);
    m_about->setWordWrap(true);
    Theme::setRole(m_about, "caption");
    auto* link = new QLabel(this);
    link->setObjectName(QStringLiteral("vl.about.site"));
    link->setAlignment(Qt::AlignCenter);
    link->setTextFormat(Qt::RichText);
    link->setOpenExternalLinks(true);
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    link->setText(QStringLiteral("<a href=\"%1\">%2</a>")
                      .arg(site.toHtmlEscaped(), QUrl(site).host().toHtmlEscaped()));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(10);
    layout->addWidget(icon);
    layout->addWidget(name);
    layout->addWidget(m_versionLabel);
    layout->addWidget(m_about);
    layout->addWidget(link);
    setMinimumWidth(360);

    connect(&appState, &AppState::langChanged, this, &AboutDialog::retext);
    retext();
}

void AboutDialog::retext()
{
    const Lang lang = m_appState.lang();
    setWindowTitle(L10n::text(L10n::DesktopKey::aboutApp, lang));
    m_versionLabel->setText(
        QStringLiteral("%1 %2 (%3)")
            .arg(L10n::text(Key::macVersion, lang), QStringLiteral(VELMORA_VERSION))
            .arg(runningBuildNumber()));
    m_about->setText(L10n::text(Key::aboutFooter, lang));
}

} // namespace vl
