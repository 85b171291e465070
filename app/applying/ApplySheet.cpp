#include "app/applying/ApplySheet.h"

#include "app/applying/HsHintView.h"
#include "app/identity/CandidateGateView.h"
#include "app/kit/ApplyQuestions.h"
#include "app/kit/CvCheckCard.h"
#include "app/kit/Make.h"
#include "app/kit/SuccessStamp.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QStackedLayout>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

ApplySheet::ApplySheet(ApplyServices services, JobDetail job, CandidateGate::UrlOpener openUrl,
                       QWidget* parent)
    : QWidget(parent)
    , m_model(services, std::move(job))
    , m_openUrl(std::move(openUrl))
{
    setObjectName(QStringLiteral("applySheet"));
    build();
    connect(&m_model, &ApplySheetModel::changed, this, &ApplySheet::refresh);
    connect(&services.state, &AppState::langChanged, this, &ApplySheet::refresh);
    connect(&services.auth, &CandidateAuth::changed, this, [this] {
        if (m_model.email())
            m_model.open();
        refresh();
    });
    m_model.open();
    refresh();
}

void ApplySheet::build()
{
    auto* form = new QWidget;
    auto* layout = new QVBoxLayout(form);
    m_title = make::label(form, "title");
    auto* who = new QHBoxLayout;
    m_signedAs = make::label(form, "caption");
    m_switch = make::button(form, "link");
    who->addWidget(m_signedAs, 1);
    who->addWidget(m_switch);
    m_deliver = make::label(form, "caption");
    m_name = new QLineEdit(form);
    m_email = new QLineEdit(form);
    m_email->setReadOnly(true);
    m_phone = new QLineEdit(form);
    m_message = new QPlainTextEdit(form);
    m_message->setFixedHeight(90);
    m_name->setObjectName(QStringLiteral("applyName"));
    m_phone->setObjectName(QStringLiteral("applyPhone"));
    m_message->setObjectName(QStringLiteral("applyMessage"));
    m_name->setText(m_model.name);
    m_phone->setText(m_model.phone);
    auto* cvRow = new QHBoxLayout;
    m_cvLabel = make::label(form, "name");
    m_cvChoose = make::button(form, "quiet");
    m_cvLast = make::button(form, "link");
    cvRow->addWidget(m_cvLabel, 1);
    cvRow->addWidget(m_cvLast);
    cvRow->addWidget(m_cvChoose);
    m_check = new CvCheckCard(form);
    m_pool = new QCheckBox(form);
    m_hint = new HsHintView(form);
    m_error = make::label(form, "error");
    m_error->setObjectName(QStringLiteral("applyError"));
    m_webForm = make::button(form, "link");
    m_send = make::button(form, "primary");
    m_send->setObjectName(QStringLiteral("applySend"));
    m_busy = make::busyBar(form);

    layout->addWidget(m_title);
    layout->addLayout(who);
    layout->addWidget(m_deliver);
    for (QWidget* field : {static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_email),
                           static_cast<QWidget*>(m_phone), static_cast<QWidget*>(m_message)})
        layout->addWidget(field);
    layout->addLayout(cvRow);
    layout->addWidget(m_check);
    const auto& asked = m_model.job().form;
    if (asked && !asked->fields.empty()) {
        m_questions = new ApplyQuestions(
            asked->fields, m_model.services().state.lang(),
            [this](const QString& id, const QString& value) { m_model.answers[id] = value; }, form);
        layout->addWidget(m_questions);
    }
    layout->addWidget(m_pool);
    layout->addWidget(m_hint);
    layout->addWidget(m_error);
    layout->addWidget(m_webForm);
    layout->addWidget(m_send);
    layout->addWidget(m_busy);
    layout->addStretch();

    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(form);

    m_stamp = new SuccessStamp;
    auto* pages = new QWidget;
    m_pages = new QStackedLayout(pages);
    m_pages->addWidget(scroll);
    m_pages->addWidget(m_stamp);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    m_gate = new CandidateGateView(m_model.services().auth, m_model.services().state, m_openUrl,
                                   pages, this);
    outer->addWidget(m_gate);

    connect(m_switch, &QPushButton::clicked, this, [this] { m_model.switchAccount(); });
    connect(m_cvChoose, &QPushButton::clicked, this, &ApplySheet::chooseFile);
    connect(m_check, &CvCheckCard::anotherFile, this, &ApplySheet::chooseFile);
    connect(m_cvLast, &QPushButton::clicked, this, [this] { m_model.useLastCv(); });
    connect(m_check, &CvCheckCard::lastCv, this, [this] { m_model.useLastCv(); });
    connect(m_pool, &QCheckBox::toggled, this, [this](bool on) { m_model.poolOptOut = on; });
    connect(m_hint, &HsHintView::useTicketChanged, this,
            [this](bool on) { m_model.useTicket = on; });
    connect(m_webForm, &QPushButton::clicked, this,
            [this] { m_openUrl(QUrl(m_model.job().siteUrl)); });
    connect(m_send, &QPushButton::clicked, this, [this] {
        readFields();
        m_model.send();
    });
    connect(m_stamp, &SuccessStamp::closed, this, &ApplySheet::closed);
}

void ApplySheet::readFields()
{
    m_model.name = m_name->text();
    m_model.phone = m_phone->text();
    m_model.message = m_message->toPlainText();
}

void ApplySheet::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(
        this, L10n::text(L10n::Key::cvAdd, m_model.services().state.lang()), QString(),
        QStringLiteral("PDF, DOC, DOCX (*.pdf *.doc *.docx *.PDF *.DOC *.DOCX)"));
    if (!path.isEmpty())
        pickFile(path);
}

void ApplySheet::pickFile(const QString& path)
{
    readFields();
    m_model.pick(path);
}

void ApplySheet::refresh()
{
    using L10n::Key;
    const Lang lang = m_model.services().state.lang();
    auto text = [lang](Key key) { return L10n::text(key, lang); };
    m_title->setText(text(Key::applyTitle) + QStringLiteral(" · ") + m_model.job().title);
    m_signedAs->setText(text(Key::candSignedAs) + u' ' + m_model.email().value_or(QString()));
    m_switch->setText(text(Key::candSwitch));
    const auto& deliverTo = m_model.job().deliverTo;
    m_deliver->setVisible(deliverTo.has_value());
    m_deliver->setText(text(Key::applyDeliverTo) + u' ' + deliverTo.value_or(QString()));
    m_name->setPlaceholderText(text(Key::fieldName));
    m_email->setPlaceholderText(text(Key::fieldEmail));
    m_email->setText(m_model.email().value_or(QString()));
    m_phone->setPlaceholderText(text(Key::fieldPhone));
    m_message->setPlaceholderText(text(Key::fieldMessage));
    const auto& cv = m_model.cv();
    m_cvLabel->setText(cv ? cv->filename : text(Key::cvAdd));
    m_cvChoose->setText(cv ? text(Key::cvCheckAnother) : text(Key::cvAdd));
    m_cvLast->setText(text(Key::cvCheckLastCv));
    m_cvLast->setVisible(m_model.lastCv().has_value() && !cv);
    m_check->setVisible(cv.has_value());
    m_check->show(m_model.check(), m_model.checking(), cv ? cv->filename : QString(),
                  m_model.lastCv().has_value(), lang);
    if (m_questions) {
        m_questions->setLang(lang);
        m_questions->markBad(m_model.badField());
    }
    m_pool->setText(text(Key::poolOptOut));
    m_hint->setVisible(m_model.hint().has_value());
    if (m_model.hint())
        m_hint->show(*m_model.hint(), m_model.useTicket);
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_webForm->setVisible(m_model.webFormOnly());
    m_webForm->setText(text(Key::applyOnSite));
    m_send->setText(text(m_model.sendLabel()));
    m_send->setVisible(!m_model.sending());
    m_busy->setVisible(m_model.sending());
    m_stamp->show(text(Key::sentApply), m_model.moment(), text(Key::close));
    m_pages->setCurrentIndex(m_model.sent() ? 1 : 0);
}

} // namespace vl
