#include "app/discovery/BoardScreen.h"

#include "app/discovery/FilterSheet.h"
#include "app/discovery/JobDetailView.h"
#include "app/discovery/PostGateSheet.h"
#include "app/kit/LedgerDelegate.h"
#include "app/kit/Theme.h"
#include "app/shell/AppContext.h"
#include "core/l10n/L10n.h"
#include "core/navigation/MacSection.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

namespace {

// Rows from the end at which the next page is asked for.
constexpr int loadMoreMargin = 12;
// Below this width the list and the open listing no longer fit side by side.
constexpr int narrowWidth = 860;
// Below this height the head would take more than half of the column.
constexpr int shortHeight = 640;
// The pages of the board's body.
constexpr int listPage = 0;
constexpr int emptyPage = 1;
constexpr int errorPage = 2;
constexpr int loadingPage = 3;

struct ChipSpec {
    const char* name;
    Key key;
};

// The quick-pick chips in their order; the first is bound to `direct`, the rest to the picks.
constexpr ChipSpec chipSpecs[] = {
    {"direct", Key::directBadge}, {"today", Key::qpToday},
    {"remote", Key::qpRemote},    {"noExperience", Key::qpNoExp},
    {"english", Key::qpEnglish},  {"partTime", Key::qpPart},
    {"pay", Key::qpPay},
};

bool* pickField(QuickPicks& picks, size_t chip)
{
    bool* fields[] = {&picks.today,   &picks.remote,   &picks.noExperience,
                      &picks.english, &picks.partTime, &picks.pay};
    return fields[chip - 1];
}

QToolButton* makeChip(QWidget* parent, const QString& name)
{
    auto* chip = new QToolButton(parent);
    chip->setObjectName(name);
    chip->setCheckable(true);
    chip->setCursor(Qt::PointingHandCursor);
    Theme::setRole(chip, "chip");
    return chip;
}

void clearRow(QHBoxLayout* row)
{
    while (QLayoutItem* item = row->takeAt(0)) {
        if (QWidget* widget = item->widget())
            widget->deleteLater();
        delete item;
    }
}

// A single line of chips that scrolls sideways when it is wider than the column.
QScrollArea* railArea(QWidget* parent, QHBoxLayout*& row)
{
    auto* area = new QScrollArea(parent);
    Theme::setRole(area, "rail");
    // The chips take the focus, one by one; the rail itself is only their frame.
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFrameShape(QFrame::NoFrame);
    auto* inner = new QWidget(area);
    row = new QHBoxLayout(inner);
    // Room under the chips for the thin scroll bar.
    row->setContentsMargins(0, 0, 0, 6);
    row->setSpacing(6);
    area->setWidget(inner);
    return area;
}

// A rail is as tall as its chips, whatever the scroll area would choose. Chips added to a shown
// rail count only once shown themselves.
void fitHeight(QScrollArea* area)
{
    area->setFixedHeight(area->widget()->sizeHint().height());
}

} // namespace

BoardScreen::BoardScreen(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(JobKind::vacancy, context.api(), context.scheduler())
    , m_ledger(m_model, context.scheduler())
{
    setObjectName(QStringLiteral("vl.board"));
    // The first page is asked for before the widgets are built, so the answer travels meanwhile.
    loadFirst(false);
    auto* split = new QSplitter(Qt::Horizontal, this);
    split->setObjectName(QStringLiteral("vl.board.split"));
    split->setChildrenCollapsible(false);
    split->setHandleWidth(1);

    m_column = new QWidget(split);
    auto* columnLayout = new QVBoxLayout(m_column);
    columnLayout->setContentsMargins(0, 0, 0, 0);
    columnLayout->setSpacing(0);
    columnLayout->addWidget(buildHead());
    columnLayout->addWidget(buildBody(), 1);

    // On a narrow window the listing takes the list's place, with a way back above it.
    m_detailSide = new QWidget(split);
    m_back = new QPushButton(m_detailSide);
    m_back->setObjectName(QStringLiteral("vl.board.back"));
    Theme::setRole(m_back, "link");
    connect(m_back, &QPushButton::clicked, this, [this] {
        m_detailInFront = false;
        arrangePanes();
        m_list->setFocus(Qt::OtherFocusReason);
    });
    m_detail = new JobDetailView(context, m_detailSide);
    auto* sideLayout = new QVBoxLayout(m_detailSide);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(0);
    auto* backRow = new QHBoxLayout;
    backRow->setContentsMargins(18, 10, 18, 0);
    backRow->addWidget(m_back, 0, Qt::AlignLeft);
    sideLayout->addLayout(backRow);
    sideLayout->addWidget(m_detail, 1);
    split->addWidget(m_column);
    split->addWidget(m_detailSide);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    split->setSizes({560, 420});

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(split);

    connect(&m_model, &BoardModel::changed, this, &BoardScreen::refresh);
    connect(&m_model, &BoardModel::itemsChanged, this, [this] {
        QStringList refs;
        refs.reserve(qsizetype(m_model.items().size()));
        for (const JobSummary& job : m_model.items())
            refs << job.ref;
        m_context.router.setVisibleJobs(std::move(refs));
        followSelection();
        QTimer::singleShot(0, this, &BoardScreen::maybeLoadMore);
    });
    connect(&context.appState, &AppState::langChanged, this, [this] {
        retext();
        loadFirst(false);
    });
    connect(&context.nav, &MacNav::reloadsChanged, this, [this] { loadFirst(true); });
    connect(&context.router, &Router::findTickChanged, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    connect(&context.router, &Router::selectedJobChanged, this, [this] {
        followSelection();
        if (m_context.router.selectedJob())
            bringDetailForward();
    });
    // Choosing the row already open brings it back too.
    connect(m_list, &QListView::activated, this, &BoardScreen::bringDetailForward);
    connect(m_list, &QListView::clicked, this, &BoardScreen::bringDetailForward);
    connect(&context.auth, &AuthManager::sessionChanged, this, &BoardScreen::refresh);
    connect(&context.candidate, &CandidateAuth::changed, this, &BoardScreen::refresh);
    connect(&context.taxonomy, &Taxonomy::changed, this, [this] {
        refreshRails();
        m_list->viewport()->update();
    });

    retext();
    arrangePanes();
}

QWidget* BoardScreen::buildHead()
{
    auto* head = new QWidget(this);
    auto* layout = new QVBoxLayout(head);
    layout->setContentsMargins(18, 12, 18, 6);
    layout->setSpacing(8);

    auto* searchRow = new QHBoxLayout;
    searchRow->setSpacing(8);
    m_search = new QLineEdit(head);
    m_search->setObjectName(QStringLiteral("vl.board.search"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_model.setQuery(text, m_context.appState.lang()); });
    m_filters = new QPushButton(head);
    m_filters->setObjectName(QStringLiteral("vl.board.filters"));
    connect(m_filters, &QPushButton::clicked, this, &BoardScreen::openFilters);
    m_post = new QPushButton(QStringLiteral("+"), head);
    m_post->setObjectName(QStringLiteral("vl.board.post"));
    Theme::setRole(m_post, "primary");
    m_post->setFixedWidth(40);
    connect(m_post, &QPushButton::clicked, this, &BoardScreen::openPostGate);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_filters);
    searchRow->addWidget(m_post);
    layout->addLayout(searchRow);

    QHBoxLayout* chipRow = nullptr;
    QScrollArea* chipArea = railArea(head, chipRow);
    m_chipArea = chipArea;
    chipArea->setObjectName(QStringLiteral("vl.board.chips"));
    for (size_t i = 0; i < std::size(chipSpecs); ++i) {
        QToolButton* chip =
            makeChip(chipRow->parentWidget(),
                     QStringLiteral("vl.board.chip.") + QLatin1StringView(chipSpecs[i].name));
        connect(chip, &QToolButton::clicked, this, [this, i](bool on) {
            if (i == 0) {
                m_model.setDirect(on);
            } else {
                QuickPicks picks = m_model.picks();
                *pickField(picks, i) = on;
                m_model.setPicks(picks);
            }
            reload();
        });
        m_chips.push_back(chip);
        chipRow->addWidget(chip);
    }
    chipRow->addStretch(1);
    fitHeight(chipArea);
    layout->addWidget(chipArea);

    m_headline = new QLabel(head);
    m_headline->setObjectName(QStringLiteral("vl.board.headline"));
    Theme::setRole(m_headline, "subtitle");
    layout->addWidget(m_headline);

    m_nudge = new QLabel(head);
    m_nudge->setObjectName(QStringLiteral("vl.board.nudge"));
    m_nudge->setWordWrap(true);
    Theme::setRole(m_nudge, "nudge");
    layout->addWidget(m_nudge);

    m_fresh = new QWidget(head);
    m_fresh->setObjectName(QStringLiteral("vl.board.fresh"));
    auto* freshLayout = new QVBoxLayout(m_fresh);
    freshLayout->setContentsMargins(0, 0, 0, 0);
    freshLayout->setSpacing(4);
    m_freshTitle = new QLabel(m_fresh);
    Theme::setRole(m_freshTitle, "section");
    freshLayout->addWidget(m_freshTitle);
    m_freshArea = railArea(m_fresh, m_freshRow);
    freshLayout->addWidget(m_freshArea);
    layout->addWidget(m_fresh);

    // Each rail's title stands at its start, so a rail takes one line.
    m_categoriesArea = railArea(head, m_categoriesRow);
    m_categoriesArea->setObjectName(QStringLiteral("vl.board.categories"));
    m_categoriesTitle = new QLabel(head);
    Theme::setRole(m_categoriesTitle, "section");
    auto* categoriesLine = new QHBoxLayout;
    categoriesLine->addWidget(m_categoriesTitle);
    categoriesLine->addWidget(m_categoriesArea, 1);
    layout->addLayout(categoriesLine);
    m_citiesArea = railArea(head, m_citiesRow);
    m_citiesArea->setObjectName(QStringLiteral("vl.board.cities"));
    m_citiesTitle = new QLabel(head);
    Theme::setRole(m_citiesTitle, "section");
    auto* citiesLine = new QHBoxLayout;
    citiesLine->addWidget(m_citiesTitle);
    citiesLine->addWidget(m_citiesArea, 1);
    layout->addLayout(citiesLine);
    return head;
}

QWidget* BoardScreen::buildBody()
{
    auto* body = new QWidget(this);
    // A reload keeps the rows and shows only this thin bar; a failed one keeps them too, under
    // one line that says so with a way to try again.
    m_reloading = new QProgressBar(body);
    m_reloading->setObjectName(QStringLiteral("vl.board.reloading"));
    m_reloading->setRange(0, 0);
    m_reloading->setTextVisible(false);
    Theme::setRole(m_reloading, "busy");
    QSizePolicy keepRoom = m_reloading->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    m_reloading->setSizePolicy(keepRoom);
    m_failLine = new QWidget(body);
    m_failLine->setObjectName(QStringLiteral("vl.board.failLine"));
    m_failText = new QLabel(m_failLine);
    m_failText->setObjectName(QStringLiteral("vl.board.failText"));
    Theme::setRole(m_failText, "caption");
    m_failRetry = new QPushButton(m_failLine);
    m_failRetry->setObjectName(QStringLiteral("vl.board.failRetry"));
    Theme::setRole(m_failRetry, "link");
    connect(m_failRetry, &QPushButton::clicked, this, &BoardScreen::retry);
    auto* failLayout = new QHBoxLayout(m_failLine);
    failLayout->setContentsMargins(18, 4, 18, 4);
    failLayout->addWidget(m_failText, 1);
    failLayout->addWidget(m_failRetry);
    m_failLine->hide();

    m_states = new QStackedWidget(body);
    m_states->setObjectName(QStringLiteral("vl.board.states"));

    m_list = new QListView(m_states);
    m_list->setObjectName(QStringLiteral("vl.board.list"));
    Theme::setRole(m_list, "ledger");
    m_list->setModel(&m_ledger);
    m_delegate = new LedgerDelegate(m_list);
    m_delegate->setCityLabel(
        [this](const QString& key) { return m_context.taxonomy.cityLabel(key, m_ledger.lang()); });
    m_ledger.setCityLabel(
        [this](const QString& key) { return m_context.taxonomy.cityLabel(key, m_ledger.lang()); });
    m_list->setItemDelegate(m_delegate);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->setLayoutMode(QListView::Batched);
    m_list->setBatchSize(200);
    m_list->viewport()->installEventFilter(this);
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &BoardScreen::maybeLoadMore);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (m_selecting)
                    return;
                if (const JobSummary* job = m_ledger.jobAt(current.row()))
                    m_context.router.selectJob(job->ref);
            });
    m_states->addWidget(m_list);

    m_empty = new QLabel(m_states);
    m_empty->setObjectName(QStringLiteral("vl.board.empty"));
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setContentsMargins(40, 0, 40, 0);
    Theme::setRole(m_empty, "subtitle");
    m_states->addWidget(m_empty);

    auto* error = new QWidget(m_states);
    error->setObjectName(QStringLiteral("vl.board.error"));
    auto* errorLayout = new QVBoxLayout(error);
    errorLayout->addStretch(1);
    m_errorTitle = new QLabel(error);
    Theme::setRole(m_errorTitle, "title");
    m_errorBody = new QLabel(error);
    Theme::setRole(m_errorBody, "subtitle");
    m_retry = new QPushButton(error);
    m_retry->setObjectName(QStringLiteral("vl.board.retry"));
    Theme::setRole(m_retry, "primary");
    connect(m_retry, &QPushButton::clicked, this, &BoardScreen::retry);
    errorLayout->addWidget(m_errorTitle, 0, Qt::AlignHCenter);
    errorLayout->addWidget(m_errorBody, 0, Qt::AlignHCenter);
    errorLayout->addSpacing(8);
    errorLayout->addWidget(m_retry, 0, Qt::AlignHCenter);
    errorLayout->addStretch(1);
    m_states->addWidget(error);

    // The first load shows this in place of the rows, and no count until the answer comes.
    auto* loadingPage = new QWidget(m_states);
    loadingPage->setObjectName(QStringLiteral("vl.board.loading"));
    auto* loadingBar = new QProgressBar(loadingPage);
    loadingBar->setRange(0, 0);
    loadingBar->setTextVisible(false);
    loadingBar->setFixedWidth(160);
    Theme::setRole(loadingBar, "busy");
    auto* loadingLayout = new QVBoxLayout(loadingPage);
    loadingLayout->addStretch(1);
    loadingLayout->addWidget(loadingBar, 0, Qt::AlignHCenter);
    loadingLayout->addStretch(2);
    m_states->addWidget(loadingPage);

    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_reloading);
    layout->addWidget(m_failLine);
    layout->addWidget(m_states, 1);
    return body;
}

void BoardScreen::retext()
{
    const Lang lang = m_context.appState.lang();
    m_ledger.setLang(lang);
    m_delegate->setLang(lang);
    m_search->setPlaceholderText(L10n::text(Key::search, lang));
    m_search->setAccessibleName(L10n::text(Key::search, lang));
    m_list->setAccessibleName(L10n::text(titleKey(MacSection::vacancies), lang));
    for (size_t i = 0; i < m_chips.size(); ++i)
        m_chips[i]->setText(L10n::text(chipSpecs[i].key, lang));
    m_nudge->setText(L10n::text(Key::boardSignInNudge, lang));
    m_freshTitle->setText(L10n::text(Key::bdFresh, lang));
    m_categoriesTitle->setText(L10n::text(Key::bdBrowse, lang));
    m_citiesTitle->setText(L10n::text(Key::bdCities, lang));
    m_empty->setText(L10n::text(Key::boardEmpty, lang));
    m_back->setText(QStringLiteral("‹ ") + L10n::text(Key::allListings, lang));
    m_errorTitle->setText(L10n::text(Key::errLoadTitle, lang));
    m_errorBody->setText(L10n::text(Key::errLoadBody, lang));
    m_retry->setText(L10n::text(Key::retry, lang));
    m_failText->setText(L10n::text(Key::errLoadTitle, lang));
    m_failRetry->setText(L10n::text(Key::retry, lang));
    m_post->setToolTip(L10n::text(Key::macNewVacancy, lang));
    m_post->setAccessibleName(L10n::text(Key::macNewVacancy, lang));
    refresh();
    m_list->viewport()->update();
}

void BoardScreen::refresh()
{
    const Lang lang = m_context.appState.lang();
    const int active = m_model.activeFilters();
    m_filters->setText(
        active > 0 ? QStringLiteral("%1 · %2").arg(L10n::text(Key::filters, lang)).arg(active)
                   : L10n::text(Key::filters, lang));
    m_chips[0]->setChecked(m_model.direct());
    QuickPicks picks = m_model.picks();
    for (size_t i = 1; i < m_chips.size(); ++i)
        m_chips[i]->setChecked(*pickField(picks, i));

    QString headline = L10n::text(Key::bdPostedToday, lang, m_model.postedToday());
    if (active > 0 || !m_model.query().isEmpty())
        headline =
            L10n::text(Key::bdFound, lang, m_model.total()) + QStringLiteral("  ·  ") + headline;
    m_headline->setText(headline);
    m_headline->setVisible(m_model.loadedQuery().has_value());
    // Only a reader with no identity at all is asked to sign in.
    m_nudge->setVisible(!m_context.auth.hiring() && !m_context.candidate.signedIn());
    showLoadState();
    refreshRails();
    refreshFresh();
    orderTabs();
}

void BoardScreen::showLoadState()
{
    const bool loading = m_model.loading();
    const bool failed = m_model.failed();
    const bool empty = m_model.items().empty();
    if (failed && empty)
        m_states->setCurrentIndex(errorPage);
    else if (loading && empty)
        m_states->setCurrentIndex(loadingPage);
    else if (!loading && empty && m_model.loadedQuery())
        m_states->setCurrentIndex(emptyPage);
    else
        m_states->setCurrentIndex(listPage);
    m_reloading->setVisible(loading && !empty);
    m_failLine->setVisible(failed && !empty && !loading);
    if (m_wasLoading && !loading) {
        // A listing that failed beside a list that now loads is asked for again.
        if (!failed && m_detail->model().failed())
            m_detail->reload();
        QAccessibleEvent done(failed ? static_cast<QWidget*>(m_failText) : m_headline,
                              failed ? QAccessible::Alert : QAccessible::NameChanged);
        QAccessible::updateAccessibility(&done);
    }
    m_wasLoading = loading;
}

void BoardScreen::retry()
{
    // A failed next page is asked for again; a failed first page reloads the list.
    if (m_model.items().empty())
        loadFirst(false);
    else
        m_model.load(m_context.appState.lang(), false, false);
    if (m_context.router.selectedJob())
        m_detail->reload();
}

void BoardScreen::refreshRails()
{
    const Lang lang = m_context.appState.lang();
    const auto& summary = m_model.summary();
    m_categoriesTitle->setVisible(summary.has_value());
    m_citiesTitle->setVisible(summary.has_value());
    m_categoriesArea->setVisible(summary.has_value());
    m_citiesArea->setVisible(summary.has_value());
    if (!summary)
        return;

    struct Rail {
        QHBoxLayout* row;
        const std::vector<BoardSummary::Count>* counts;
        const std::optional<QString>* chosen;
        bool city;
    };
    for (const Rail& rail :
         {Rail{m_categoriesRow, &summary->categories, &m_model.category(), false},
          Rail{m_citiesRow, &summary->cities, &m_model.city(), true}}) {
        // The chips stay while the counts and the language stay; only their marks follow.
        QStringList wanted;
        for (const auto& count : *rail.counts) {
            const QString label = rail.city ? m_context.taxonomy.cityLabel(count.key, lang)
                                            : m_context.taxonomy.categoryLabel(count.key, lang);
            wanted << QStringLiteral("%1  %2").arg(label).arg(count.n);
        }
        QStringList shown;
        for (int i = 0; i < rail.row->count(); ++i) {
            if (auto* chip = qobject_cast<QToolButton*>(rail.row->itemAt(i)->widget()))
                shown << chip->text();
        }
        if (shown != wanted) {
            clearRow(rail.row);
            QWidget* owner = rail.row->parentWidget();
            for (size_t i = 0; i < rail.counts->size(); ++i) {
                const QString key = (*rail.counts)[i].key;
                QToolButton* chip = makeChip(
                    owner,
                    QString::fromLatin1(rail.city ? "vl.board.city." : "vl.board.category.") + key);
                chip->setText(wanted[qsizetype(i)]);
                chip->setProperty("vlKey", key);
                const bool city = rail.city;
                connect(chip, &QToolButton::clicked, this, [this, key, city](bool on) {
                    const std::optional<QString> value =
                        on ? std::optional<QString>(key) : std::nullopt;
                    if (city)
                        m_model.setCity(value);
                    else
                        m_model.setCategory(value);
                    reload();
                });
                rail.row->addWidget(chip);
                chip->show();
            }
            rail.row->addStretch(1);
            fitHeight(rail.city ? m_citiesArea : m_categoriesArea);
        }
        for (int i = 0; i < rail.row->count(); ++i) {
            auto* chip = qobject_cast<QToolButton*>(rail.row->itemAt(i)->widget());
            if (!chip)
                continue;
            chip->setChecked(*rail.chosen == chip->property("vlKey").toString());
            if (chip->isChecked())
                (rail.city ? m_citiesArea : m_categoriesArea)->ensureWidgetVisible(chip);
        }
    }
    orderTabs();
}

// Tab follows the eye: search, quick picks, filters, the fresh strip, the rails, the list, the
// open listing. Rails fill in later, so the order is set again whenever they change.
void BoardScreen::orderTabs()
{
    QWidgetList chain{m_search};
    for (QToolButton* chip : m_chips)
        chain << chip;
    chain << m_filters << m_post;
    for (QHBoxLayout* row : {m_freshRow, m_categoriesRow, m_citiesRow}) {
        for (int i = 0; i < row->count(); ++i) {
            if (QWidget* widget = row->itemAt(i)->widget())
                chain << widget;
        }
    }
    chain << m_list;
    for (QWidget* widget : m_detailSide->findChildren<QWidget*>()) {
        if (widget->focusPolicy() & Qt::TabFocus)
            chain << widget;
    }
    for (qsizetype i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void BoardScreen::refreshFresh()
{
    const auto& summary = m_model.summary();
    const bool show = !m_short && m_model.activeFilters() == 0 && m_model.query().isEmpty() &&
                      summary && !summary->fresh.empty();
    m_fresh->setVisible(show);
    if (!show)
        return;
    QStringList refs;
    for (const JobSummary& job : summary->fresh)
        refs << job.ref + job.title;
    if (m_fresh->property("vlShown").toStringList() == refs)
        return;
    m_fresh->setProperty("vlShown", refs);
    clearRow(m_freshRow);
    QWidget* owner = m_freshRow->parentWidget();
    for (const JobSummary& job : summary->fresh) {
        auto* ticket = new QPushButton(owner);
        ticket->setObjectName(QStringLiteral("vl.board.ticket.") + job.ref);
        Theme::setRole(ticket, "ticket");
        ticket->setCursor(Qt::PointingHandCursor);
        const QFontMetrics metrics(ticket->font());
        ticket->setText(metrics.elidedText(job.title, Qt::ElideRight, 200) + QLatin1Char('\n') +
                        metrics.elidedText(job.employerName, Qt::ElideRight, 200));
        const QString ref = job.ref;
        connect(ticket, &QPushButton::clicked, this,
                [this, ref] { m_context.router.selectJob(ref); });
        m_freshRow->addWidget(ticket);
        ticket->show();
    }
    m_freshRow->addStretch(1);
    fitHeight(m_freshArea);
}

void BoardScreen::loadFirst(bool fresh)
{
    m_model.load(m_context.appState.lang(), true, fresh);
}

void BoardScreen::reload()
{
    loadFirst(false);
}

void BoardScreen::maybeLoadMore()
{
    const int rows = m_ledger.rowCount();
    if (rows == 0 || !m_model.more() || m_model.loading())
        return;
    const QModelIndex last = m_list->indexAt(QPoint(4, m_list->viewport()->height() - 2));
    const int lastShown = last.isValid() ? last.row() : rows - 1;
    if (lastShown >= rows - loadMoreMargin)
        m_model.loadMore(m_context.appState.lang());
}

void BoardScreen::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // On a short window the fresh strip gives its room to the list.
    if (const bool isShort = height() < shortHeight; isShort != m_short) {
        m_short = isShort;
        refreshFresh();
    }
    const bool narrow = width() < narrowWidth;
    if (narrow == m_narrow)
        return;
    m_narrow = narrow;
    arrangePanes();
}

void BoardScreen::bringDetailForward()
{
    if (!m_narrow || m_detailInFront)
        return;
    m_detailInFront = true;
    arrangePanes();
}

void BoardScreen::arrangePanes()
{
    const bool front = m_narrow && m_detailInFront;
    m_back->setVisible(m_narrow);
    m_column->setVisible(!front);
    m_detailSide->setVisible(!m_narrow || front);
}

void BoardScreen::followSelection()
{
    const auto& ref = m_context.router.selectedJob();
    const int row = ref ? m_ledger.rowOfRef(*ref) : -1;
    m_selecting = true;
    if (row >= 0) {
        const QModelIndex index = m_ledger.index(row);
        m_list->setCurrentIndex(index);
        m_list->scrollTo(index);
    } else {
        m_list->clearSelection();
    }
    m_selecting = false;
}

void BoardScreen::openFilters()
{
    if (m_filterSheet) {
        m_filterSheet->raise();
        return;
    }
    m_filterSheet = new FilterSheet(
        m_model, m_context.taxonomy, m_context.appState, [this] { reload(); }, this);
    m_filterSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_filterSheet->open();
}

void BoardScreen::openPostGate()
{
    if (m_context.auth.hiring()) {
        m_context.nav.setShowPostVacancy(true);
        return;
    }
    auto* gate = new PostGateSheet(m_context.appState.lang(), this);
    gate->setAttribute(Qt::WA_DeleteOnClose);
    connect(gate, &PostGateSheet::signInRequested, this, &BoardScreen::signInRequested);
    gate->open();
}

bool BoardScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        return true;
    }
    if (!m_drawn && m_list && watched == m_list->viewport() && event->type() == QEvent::Paint &&
        m_ledger.rowCount() > 0) {
        m_drawn = true;
        QTimer::singleShot(0, this, &BoardScreen::firstPageDrawn);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace vl
