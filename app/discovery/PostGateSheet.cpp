#include "app/discovery/PostGateSheet.h"

#include "app/kit/Theme.h"
#include "core/l10n/L10n.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

PostGateSheet::PostGateSheet(Lang lang, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("vl.postGate"));
    setWindowTitle(L10n::text(Key::macNewVacancy, lang));
    auto* text = new QLabel(L10n::text(Key::signInToPost, lang), this);
    text->setObjectName(QStringLiteral("vl.postGate.text"));
    text->setWordWrap(true);
    text->setMinimumWidth(360);
    auto* signIn = new QPushButton(L10n::text(Key::signInTitle, lang), this);
    signIn->setObjectName(QStringLiteral("vl.postGate.signIn"));
    Theme::setRole(signIn, "primary");
    connect(signIn, &QPushButton::clicked, this, [this] {
        accept();
        Q_EMIT signInRequested();
    });
    auto* later = new QPushButton(L10n::text(Key::close, lang), this);
    Theme::setRole(later, "quiet");
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(later);
    buttons->addWidget(signIn);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 18);
    layout->setSpacing(16);
    layout->addWidget(text);
    layout->addLayout(buttons);
}

} // namespace vl
