#include "app/applying/SeekerContactSheet.h"

#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace vl {

namespace {

enum Page { signInPage, formPage, sentPage };

} // namespace

SeekerContactSheet::SeekerContactSheet(ApplyServices services, SeekerDetail seeker, QWidget* parent)
    : QWidget(parent)
    , m_model(services, std::move(seeker))
    , m_state(services.state)
{
    setObjectName(QStringLiteral("seekerContactSheet"));
    auto* gate = new QWidget;
    auto* gateLayout = new QVBoxLayout(gate);
    m_signIn = make::label(gate, "subtitle");
    m_signInButton = make::button(gate, "primary");
    gateLayout->addWidget(m_signIn);
    gateLayout->addWidget(m_signInButton);
    gateLayout->addStretch();
    auto* form = new QWidget;
    auto* layout = new QVBoxLayout(form);
    m_title = make::label(form, "title");
    m_sub = make::label(form, "caption");
    m_message = new QPlainTextEdit(form);
    m_error = make::label(form, "error");
    m_send = make::button(form, "primary");
    m_busy = make::busyBar(form);
    for (QWidget* part : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_sub),
                          static_cast<QWidget*>(m_message), static_cast<QWidget*>(m_error),
                          static_cast<QWidget*>(m_send), static_cast<QWidget*>(m_busy)})
        layout->addWidget(part);
    QWidget* done = make::sentPage(m_sent, m_close);
    m_pages = new QStackedLayout(this);
    m_pages->addWidget(gate);
    m_pages->addWidget(form);
    m_pages->addWidget(done);

    connect(&m_model, &SeekerContactSheetModel::changed, this, &SeekerContactSheet::refresh);
    connect(&m_state, &AppState::langChanged, this, &SeekerContactSheet::refresh);
    connect(m_signInButton, &QPushButton::clicked, this, [this] {
        m_model.askSignIn();
        Q_EMIT signInAsked();
    });
    connect(m_send, &QPushButton::clicked, this, [this] {
        m_model.message = m_message->toPlainText();
        m_model.send();
    });
    connect(m_close, &QPushButton::clicked, this, &SeekerContactSheet::closed);
    refresh();
}

void SeekerContactSheet::refresh()
{
    using L10n::Key;
    const Lang lang = m_state.lang();
    m_signIn->setText(L10n::text(Key::signInToContact, lang));
    m_signInButton->setText(L10n::text(Key::candSignTitle, lang));
    m_title->setText(L10n::text(Key::contactTitle, lang) + QStringLiteral(" · ") +
                     m_model.seeker().name);
    m_sub->setText(L10n::text(Key::contactSub, lang));
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_send->setText(L10n::text(Key::send, lang));
    m_send->setVisible(!m_model.working());
    m_busy->setVisible(m_model.working());
    m_sent->setText(L10n::text(Key::contactSent, lang));
    m_close->setText(L10n::text(Key::close, lang));
    m_pages->setCurrentIndex(m_model.sent()          ? sentPage
                             : m_model.needsSignIn() ? signInPage
                                                     : formPage);
}

} // namespace vl
