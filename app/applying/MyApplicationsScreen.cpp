#include "app/applying/MyApplicationsScreen.h"

#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/applying/ApplicationStatus.h"
#include "core/format/Format.h"
#include "core/l10n/L10n.h"

#include <QListWidget>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace vl {

namespace {

enum Page { loadingPage, emptyPage, listPage };

} // namespace

MyApplicationsScreen::MyApplicationsScreen(ApplyServices services, QWidget* parent)
    : QWidget(parent)
    , m_model(services)
    , m_state(services.state)
{
    setObjectName(QStringLiteral("myApplications"));
    auto* layout = new QVBoxLayout(this);
    m_title = make::label(this, "title");
    m_error = make::label(this, "error");
    m_retry = make::button(this, "quiet");
    layout->addWidget(m_title);
    layout->addWidget(m_error);
    layout->addWidget(m_retry, 0, Qt::AlignLeft);
    auto* busy = make::busyBar(this);
    m_loading = busy;
    m_empty = make::label(this, "subtitle");
    m_empty->setAlignment(Qt::AlignCenter);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("applicationList"));
    auto* stack = new QWidget(this);
    m_pages = new QStackedLayout(stack);
    m_pages->addWidget(m_loading);
    m_pages->addWidget(m_empty);
    m_pages->addWidget(m_list);
    layout->addWidget(stack, 1);

    connect(&m_model, &MyApplicationsModel::changed, this, &MyApplicationsScreen::refresh);
    connect(&m_state, &AppState::langChanged, this, &MyApplicationsScreen::refresh);
    connect(m_retry, &QPushButton::clicked, this, [this] { m_model.load(); });
    connect(m_list, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        const auto& row = m_model.rows().at(std::size_t(m_list->row(item)));
        Q_EMIT openApplication(row.ref, row.key);
    });
    m_model.load();
    refresh();
}

void MyApplicationsScreen::refresh()
{
    using L10n::Key;
    const Lang lang = m_state.lang();
    m_title->setText(L10n::text(Key::myApplications, lang));
    m_empty->setText(L10n::text(L10n::macVariant(Key::noApplications), lang));
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_retry->setVisible(m_model.error().has_value());
    m_retry->setText(L10n::text(Key::retry, lang));
    m_list->clear();
    for (const ApplicationRow& row : m_model.rows()) {
        QString line = row.jobTitle + QStringLiteral("\n") + row.employerName;
        if (!row.status.isEmpty())
            line += QStringLiteral(" · ") + applicationStatusText(row.status, lang);
        line += QStringLiteral(" · ") + Format::date(row.lastAt, lang);
        if (row.unread > 0)
            line += QStringLiteral("  ●%1").arg(row.unread);
        m_list->addItem(line);
    }
    if (m_model.loading() && m_model.rows().empty())
        m_pages->setCurrentIndex(loadingPage);
    else
        m_pages->setCurrentIndex(m_model.rows().empty() ? emptyPage : listPage);
}

} // namespace vl
