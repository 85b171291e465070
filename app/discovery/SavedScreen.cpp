#include "app/discovery/SavedScreen.h"

#include "app/kit/SavedRowDelegate.h"
#include "app/kit/Theme.h"
#include "app/kit/UndoBar.h"
#include "app/shell/AppContext.h"
#include "core/l10n/DesktopText.h"
#include "core/l10n/L10n.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

namespace vl {

using L10n::Key;

SavedScreen::SavedScreen(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
    setObjectName(QStringLiteral("vl.saved"));
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("vl.saved.title"));
    Theme::setRole(m_title, "title");

    m_states = new QStackedWidget(this);
    m_list = new QListWidget(m_states);
    m_list->setObjectName(QStringLiteral("vl.saved.list"));
    Theme::setRole(m_list, "ledger");
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->setItemDelegate(new SavedRowDelegate(m_list));
    m_list->setMouseTracking(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->installEventFilter(this);
    connect(m_list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { open(item->data(Qt::UserRole).toString()); });
    connect(m_list, &QListWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        const QListWidgetItem* item = m_list->itemAt(at);
        if (!item)
            return;
        QMenu menu(this);
        menu.setObjectName(QStringLiteral("vl.saved.menu"));
        fillMenu(menu, item->data(Qt::UserRole).toString());
        menu.exec(m_list->viewport()->mapToGlobal(at));
    });
    m_states->addWidget(m_list);

    m_empty = new QLabel(m_states);
    m_empty->setObjectName(QStringLiteral("vl.saved.empty"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setContentsMargins(60, 0, 60, 80);
    Theme::setRole(m_empty, "subtitle");
    m_states->addWidget(m_empty);

    m_undo = new UndoBar(this);
    connect(m_undo, &UndoBar::undoRequested, this, &SavedScreen::undoRemoval);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 12);
    layout->setSpacing(12);
    layout->addWidget(m_title);
    layout->addWidget(m_states, 1);
    layout->addWidget(m_undo);

    connect(&context.saved, &SavedJobs::changed, this, &SavedScreen::rebuild);
    connect(&context.appState, &AppState::langChanged, this, &SavedScreen::retext);
    connect(&context.taxonomy, &Taxonomy::changed, this, &SavedScreen::rebuild);
    retext();
}

void SavedScreen::retext()
{
    const Lang lang = m_context.appState.lang();
    m_title->setText(L10n::text(Key::savedJobs, lang));
    m_empty->setText(QStringLiteral("☆\n\n") + L10n::text(Key::savedEmpty, lang));
    m_undo->setButtonText(L10n::text(L10n::DesktopKey::undo, lang));
    rebuild();
}

void SavedScreen::rebuild()
{
    const Lang lang = m_context.appState.lang();
    m_list->clear();
    for (const SavedJobs::Entry& entry : m_context.saved.entries()) {
        const QString place = entry.employer + QStringLiteral("  ·  ") +
                              m_context.taxonomy.cityLabel(entry.city, lang);
        auto* item = new QListWidgetItem(entry.title + QLatin1Char('\n') + place, m_list);
        item->setData(Qt::UserRole, entry.ref);
        item->setData(SavedRowDelegate::TitleRole, entry.title);
        item->setData(SavedRowDelegate::PlaceRole, place);
    }
    m_states->setCurrentIndex(m_list->count() > 0 ? 0 : 1);
}

// The listing opens on the board, in the detail pane beside the list.
void SavedScreen::open(const QString& ref)
{
    m_context.nav.setSection(MacSection::vacancies);
    m_context.router.selectJob(ref);
}

QString SavedScreen::webLink(const QString& ref) const
{
    return m_context.site() + QStringLiteral("/vacancy/") + ref;
}

// The row's menu: Open shows it here; then the link, the site and removal.
void SavedScreen::fillMenu(QMenu& menu, const QString& ref)
{
    const Lang lang = m_context.appState.lang();
    QAction* open = menu.addAction(L10n::text(L10n::DesktopKey::open, lang));
    open->setObjectName(QStringLiteral("vl.saved.menu.open"));
    QFont bold = open->font();
    bold.setBold(true);
    open->setFont(bold);
    connect(open, &QAction::triggered, this, [this, ref] { this->open(ref); });
    menu.addSeparator();
    QAction* copy = menu.addAction(L10n::text(Key::macCopyLink, lang));
    copy->setObjectName(QStringLiteral("vl.saved.menu.copyLink"));
    connect(copy, &QAction::triggered, this,
            [this, ref] { QGuiApplication::clipboard()->setText(webLink(ref)); });
    QAction* site = menu.addAction(L10n::text(Key::macOpenOnSite, lang));
    site->setObjectName(QStringLiteral("vl.saved.menu.site"));
    connect(site, &QAction::triggered, this,
            [this, ref] { QDesktopServices::openUrl(QUrl(webLink(ref))); });
    menu.addSeparator();
    QAction* remove = menu.addAction(L10n::text(Key::macRemove, lang));
    remove->setObjectName(QStringLiteral("vl.saved.menu.remove"));
    connect(remove, &QAction::triggered, this, &SavedScreen::removeSelected);
}

void SavedScreen::removeSelected()
{
    QStringList refs;
    for (const QListWidgetItem* item : m_list->selectedItems())
        refs << item->data(Qt::UserRole).toString();
    if (refs.isEmpty())
        return;
    m_removed = m_context.saved.placesOf(refs);
    QStringList titles;
    for (const SavedJobs::Placed& placed : m_removed)
        titles << placed.entry.title;
    for (const QString& ref : refs)
        m_context.saved.remove(ref);
    m_undo->offer(titles.join(QStringLiteral(", ")));
}

void SavedScreen::undoRemoval()
{
    m_context.saved.restore(std::exchange(m_removed, {}));
}

bool SavedScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
            removeSelected();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace vl
