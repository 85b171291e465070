#include "app/window/DoorSheet.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

namespace {

// One side of the client: what it is, in a line and a few words, and its own way in.
QPushButton* side(QBoxLayout* into, QWidget* parent, const char* name, const QString& title,
                  const QString& body, const QString& action)
{
    auto* card = new QFrame(parent);
    Theme::setRole(card, "card");
    auto* heading = new QLabel(title, card);
    Theme::setRole(heading, "name");
    auto* words = new QLabel(body, card);
    words->setWordWrap(true);
    Theme::setRole(words, "caption");
    auto* button = new QPushButton(action, card);
    button->setObjectName(QString::fromLatin1(name));
    button->setAccessibleDescription(title);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(6);
    layout->addWidget(heading);
    layout->addWidget(words);
    layout->addSpacing(4);
    layout->addWidget(button, 0, Qt::AlignLeft);
    into->addWidget(card);
    return button;
}

} // namespace

DoorSheet::DoorSheet(AppState& appState, bool offerWork, bool offerHiring, QWidget* parent)
    : QDialog(parent)
{
    const Lang lang = appState.lang();
    setObjectName(QStringLiteral("vl.door"));
    setWindowTitle(L10n::text(Key::signInTitle, lang));
    auto* title = new QLabel(L10n::text(Key::doorTitle, lang), this);
    Theme::setRole(title, "title");
    title->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 22);
    layout->setSpacing(12);
    layout->addWidget(title);
    if (offerWork) {
        auto* work = side(layout, this, "vl.door.work", L10n::text(Key::roleWork, lang),
                          L10n::text(Key::doorWorkBody, lang) + QLatin1Char(' ') +
                              L10n::text(Key::doorFree, lang),
                          L10n::text(Key::needCandidate, lang));
        connect(work, &QPushButton::clicked, this, [this] {
            accept();
            Q_EMIT workChosen();
        });
    }
    if (offerHiring) {
        auto* hiring = side(layout, this, "vl.door.hiring", L10n::text(Key::roleHiring, lang),
                            L10n::text(Key::signInSub, lang), L10n::text(Key::signInTitle, lang));
        connect(hiring, &QPushButton::clicked, this, [this] {
            accept();
            Q_EMIT hiringChosen();
        });
    }
    auto* note = new QLabel(L10n::text(Key::otherSideNote, lang), this);
    note->setWordWrap(true);
    Theme::setRole(note, "caption");
    layout->addWidget(note);
    // Wrapped lines need the width fixed before the height is worked out.
    setFixedWidth(460);
    adjustSize();
}

} // namespace vl
