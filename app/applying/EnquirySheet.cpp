#include "app/applying/EnquirySheet.h"

#include "app/identity/CandidateGateView.h"
#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace vl {

EnquirySheet::EnquirySheet(ApplyServices services, JobDetail job, CandidateGate::UrlOpener openUrl,
                           QWidget* parent)
    : QWidget(parent)
    , m_model(services, std::move(job))
    , m_state(services.state)
{
    setObjectName(QStringLiteral("enquirySheet"));
    auto* form = new QWidget;
    auto* layout = new QVBoxLayout(form);
    m_title = make::label(form, "title");
    m_name = new QLineEdit(form);
    m_phone = new QLineEdit(form);
    m_message = new QPlainTextEdit(form);
    m_error = make::label(form, "error");
    m_send = make::button(form, "primary");
    m_busy = make::busyBar(form);
    for (QWidget* part : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_name),
                          static_cast<QWidget*>(m_phone), static_cast<QWidget*>(m_message),
                          static_cast<QWidget*>(m_error), static_cast<QWidget*>(m_send),
                          static_cast<QWidget*>(m_busy)})
        layout->addWidget(part);
    QWidget* done = make::sentPage(m_sent, m_close);
    auto* pages = new QWidget;
    m_pages = new QStackedLayout(pages);
    m_pages->addWidget(form);
    m_pages->addWidget(done);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(
        new CandidateGateView(services.auth, services.state, std::move(openUrl), pages, this));

    connect(&m_model, &EnquirySheetModel::changed, this, &EnquirySheet::refresh);
    connect(&m_state, &AppState::langChanged, this, &EnquirySheet::refresh);
    connect(m_send, &QPushButton::clicked, this, [this] {
        m_model.name = m_name->text();
        m_model.phone = m_phone->text();
        m_model.message = m_message->toPlainText();
        m_model.send();
    });
    connect(m_close, &QPushButton::clicked, this, &EnquirySheet::closed);
    refresh();
}

void EnquirySheet::refresh()
{
    using L10n::Key;
    const Lang lang = m_state.lang();
    m_title->setText(L10n::text(Key::askTitle, lang) + QStringLiteral(" · ") + m_model.job().title);
    m_name->setPlaceholderText(L10n::text(Key::fieldName, lang));
    m_phone->setPlaceholderText(L10n::text(Key::fieldPhone, lang));
    m_message->setPlaceholderText(L10n::text(Key::fieldMessage, lang));
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_send->setText(L10n::text(Key::send, lang));
    m_send->setVisible(!m_model.sending());
    m_busy->setVisible(m_model.sending());
    m_sent->setText(L10n::text(Key::sentEnquiry, lang));
    m_close->setText(L10n::text(Key::close, lang));
    m_pages->setCurrentIndex(m_model.sent() ? 1 : 0);
}

} // namespace vl
