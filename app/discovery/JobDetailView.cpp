#include "app/discovery/JobDetailView.h"

#include "app/kit/Theme.h"
#include "app/shell/AppContext.h"
#include "core/l10n/L10n.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

using JobDetailRules::Action;
using L10n::Key;

namespace {

QLabel* label(QWidget* parent, const char* name, const char* role)
{
    auto* out = new QLabel(parent);
    out->setObjectName(QString::fromLatin1(name));
    out->setWordWrap(true);
    out->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Theme::setRole(out, role);
    return out;
}

} // namespace

JobDetailView::JobDetailView(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(context.api(), context.router)
{
    setObjectName(QStringLiteral("vl.detail"));
    Theme::setRole(this, "pane");
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(320);

    m_states = new QStackedWidget(this);

    m_pick = new QLabel(m_states);
    m_pick->setObjectName(QStringLiteral("vl.detail.pick"));
    m_pick->setAlignment(Qt::AlignCenter);
    m_pick->setWordWrap(true);
    Theme::setRole(m_pick, "subtitle");
    m_states->addWidget(m_pick);

    auto* error = new QWidget(m_states);
    error->setObjectName(QStringLiteral("vl.detail.error"));
    auto* errorLayout = new QVBoxLayout(error);
    errorLayout->addStretch(1);
    m_errorTitle = label(error, "vl.detail.errorTitle", "title");
    m_errorTitle->setAlignment(Qt::AlignCenter);
    m_errorBody = label(error, "vl.detail.errorBody", "subtitle");
    m_errorBody->setAlignment(Qt::AlignCenter);
    m_retry = new QPushButton(error);
    m_retry->setObjectName(QStringLiteral("vl.detail.retry"));
    Theme::setRole(m_retry, "primary");
    connect(m_retry, &QPushButton::clicked, this, &JobDetailView::reload);
    errorLayout->addWidget(m_errorTitle);
    errorLayout->addWidget(m_errorBody);
    errorLayout->addWidget(m_retry, 0, Qt::AlignHCenter);
    errorLayout->addStretch(1);
    m_states->addWidget(error);

    auto* scroll = new QScrollArea(m_states);
    // The listing's own controls take the focus; its frame only scrolls.
    scroll->setFocusPolicy(Qt::NoFocus);
    Theme::setRole(scroll, "plain");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* page = new QWidget(scroll);
    page->setObjectName(QStringLiteral("vl.detail.page"));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(8);

    auto* top = new QHBoxLayout;
    m_title = label(page, "vl.detail.title", "title");
    m_star = new QPushButton(page);
    m_star->setObjectName(QStringLiteral("vl.detail.star"));
    m_star->setCheckable(true);
    Theme::setRole(m_star, "star");
    m_star->setCursor(Qt::PointingHandCursor);
    connect(m_star, &QPushButton::clicked, this, [this] {
        if (m_model.detail())
            m_context.saved.toggle(*m_model.detail());
    });
    top->addWidget(m_title, 1, Qt::AlignTop);
    top->addWidget(m_star, 0, Qt::AlignTop);
    layout->addLayout(top);
    m_employer = label(page, "vl.detail.employer", "name");
    m_where = label(page, "vl.detail.where", "subtitle");
    m_pay = label(page, "vl.detail.pay", "name");
    m_gig = label(page, "vl.detail.gig", "subtitle");
    layout->addWidget(m_employer);
    layout->addWidget(m_where);
    layout->addWidget(m_pay);
    layout->addWidget(m_gig);
    layout->addSpacing(6);

    m_actionNote = label(page, "vl.detail.actionNote", "subtitle");
    layout->addWidget(m_actionNote);
    auto* actions = new QHBoxLayout;
    actions->setSpacing(8);
    m_action = new QPushButton(page);
    m_action->setObjectName(QStringLiteral("vl.detail.action"));
    Theme::setRole(m_action, "primary");
    connect(m_action, &QPushButton::clicked, this, [this] {
        const auto& job = m_model.detail();
        if (!job)
            return;
        switch (m_model.action()) {
        case Action::apply:
            m_context.router.askToApply();
            break;
        case Action::applyAndContactsOnSite:
        case Action::applyOnSite:
            QDesktopServices::openUrl(QUrl(job->siteUrl));
            break;
        case Action::external:
            QDesktopServices::openUrl(QUrl(job->applyUrl.value_or(QString())));
            break;
        case Action::none:
        case Action::contactsOnSite:
            break;
        }
    });
    m_ask = new QPushButton(page);
    m_ask->setObjectName(QStringLiteral("vl.detail.ask"));
    connect(m_ask, &QPushButton::clicked, this, [this] { m_context.router.askToEnquire(); });
    actions->addWidget(m_action);
    actions->addWidget(m_ask);
    actions->addStretch(1);
    layout->addLayout(actions);
    layout->addSpacing(6);

    m_notes = new QVBoxLayout;
    m_notes->setSpacing(4);
    layout->addLayout(m_notes);
    layout->addSpacing(6);
    m_description = label(page, "vl.detail.description", "");
    layout->addWidget(m_description);
    layout->addSpacing(10);
    m_report = new QPushButton(page);
    m_report->setObjectName(QStringLiteral("vl.detail.report"));
    Theme::setRole(m_report, "link");
    connect(m_report, &QPushButton::clicked, this, &JobDetailView::openReport);
    layout->addWidget(m_report, 0, Qt::AlignLeft);
    layout->addStretch(1);
    scroll->setWidget(page);
    m_states->addWidget(scroll);

    // A listing on its way shows this quiet bar, never the hint to pick one.
    m_busy = new QProgressBar(this);
    m_busy->setObjectName(QStringLiteral("vl.detail.busy"));
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    Theme::setRole(m_busy, "busy");
    QSizePolicy keepRoom = m_busy->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    m_busy->setSizePolicy(keepRoom);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addWidget(m_busy);
    outer->addWidget(m_states, 1);

    connect(&m_model, &JobDetailModel::changed, this, &JobDetailView::show);
    connect(&context.router, &Router::selectedJobChanged, this, &JobDetailView::reload);
    connect(&context.appState, &AppState::langChanged, this, [this] {
        retext();
        reload();
    });
    connect(&context.saved, &SavedJobs::changed, this, &JobDetailView::showStar);
    connect(&context.taxonomy, &Taxonomy::changed, this, &JobDetailView::show);
    retext();
    reload();
}

void JobDetailView::reload()
{
    m_model.load(m_context.router.selectedJob(), m_context.appState.lang());
}

void JobDetailView::retext()
{
    const Lang lang = m_context.appState.lang();
    m_pick->setText(L10n::text(Key::macPickAListing, lang));
    m_errorTitle->setText(L10n::text(Key::errLoadTitle, lang));
    m_errorBody->setText(L10n::text(Key::errLoadBody, lang));
    m_retry->setText(L10n::text(Key::retry, lang));
    m_ask->setText(L10n::text(Key::askTitle, lang));
    m_report->setText(L10n::text(Key::reportListing, lang));
    show();
}

void JobDetailView::showStar()
{
    const auto& job = m_model.detail();
    const bool saved = job && m_context.saved.contains(job->ref);
    const Lang lang = m_context.appState.lang();
    m_star->setChecked(saved);
    m_star->setText(saved ? QStringLiteral("★") : QStringLiteral("☆"));
    m_star->setToolTip(L10n::text(saved ? Key::macUnsave : Key::macSave, lang));
    m_star->setAccessibleName(m_star->toolTip());
}

void JobDetailView::show()
{
    const auto& job = m_model.detail();
    m_busy->setVisible(m_model.loading());
    if (m_model.failed()) {
        m_states->setCurrentIndex(1);
        QAccessibleEvent alert(m_errorTitle, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
        return;
    }
    if (!job) {
        // While a listing loads the pane stays empty rather than flashing the hint; the stack
        // shows the page it turns to, so the hint is hidden after the turn.
        m_states->setCurrentIndex(0);
        m_pick->setVisible(!m_model.loading());
        return;
    }
    m_states->setCurrentIndex(2);
    const Lang lang = m_context.appState.lang();
    m_title->setText(job->title);
    m_employer->setText(job->employerName);
    QStringList where{m_context.taxonomy.cityLabel(job->city, lang),
                      m_context.taxonomy.categoryLabel(job->category, lang)};
    m_where->setText(where.join(QStringLiteral("  ·  ")));
    m_pay->setText(JobDetailRules::payLine(job->salaryMin, job->salaryMax, job->payType, lang));
    QStringList gig;
    if (job->gigDate)
        gig << L10n::text(Key::gigDate, lang) + QStringLiteral(": ") +
                   JobDetailRules::dateText(job->gigDate, lang);
    if (job->gigHours)
        gig << L10n::text(Key::gigHours, lang, *job->gigHours);
    m_gig->setText(gig.join(QStringLiteral("  ·  ")));
    m_gig->setVisible(!gig.isEmpty());

    const Action action = m_model.action();
    const auto note = JobDetailRules::actionNote(action);
    const auto button = JobDetailRules::actionButton(action);
    m_actionNote->setVisible(note.has_value());
    m_actionNote->setText(note ? L10n::text(*note, lang) : QString());
    m_action->setVisible(button.has_value());
    m_action->setText(button ? L10n::text(*button, lang) : QString());
    m_ask->setVisible(job->canEnquire);

    while (QLayoutItem* item = m_notes->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString& line : JobDetailRules::notes(*job, lang)) {
        QLabel* note = label(this, "vl.detail.note", "caption");
        note->setText(line);
        m_notes->addWidget(note);
    }
    m_description->setText(job->description);
    showStar();
}

void JobDetailView::openReport()
{
    const Lang lang = m_context.appState.lang();
    auto* box = new QMessageBox(QMessageBox::NoIcon, L10n::text(Key::reportTitle, lang),
                                L10n::text(Key::reportListing, lang), QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("vl.detail.reportPlaceholder"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace vl
