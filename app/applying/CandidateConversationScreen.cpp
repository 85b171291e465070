#include "app/applying/CandidateConversationScreen.h"

#include "app/applying/CvUpdateSheet.h"
#include "app/kit/ConfirmRow.h"
#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/applying/ApplicationStatus.h"
#include "core/format/Format.h"
#include "core/l10n/L10n.h"

#include <QDesktopServices>
#include <QDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

CandidateConversationScreen::CandidateConversationScreen(ApplyServices services, QString ref,
                                                         QString key, QWidget* parent)
    : QWidget(parent)
    , m_model(services, std::move(ref), std::move(key))
    , m_services(services)
    , m_state(services.state)
{
    setObjectName(QStringLiteral("candidateConversation"));
    auto* layout = new QVBoxLayout(this);
    m_title = make::label(this, "title");
    m_status = make::label(this, "tag");
    auto* cvRow = new QHBoxLayout;
    m_cv = make::label(this, "name");
    m_cvUpdate = make::button(this, "link");
    cvRow->addWidget(m_cv, 1);
    cvRow->addWidget(m_cvUpdate);
    m_cvView = make::button(this, "link");
    cvRow->addWidget(m_cvView);
    m_cvNote = make::label(this, "caption");
    m_withdraw = new ConfirmRow(
        QIcon(), [this] { m_model.withdraw(); }, this);
    m_error = make::label(this, "error");
    m_retry = make::button(this, "quiet");
    m_timeline = new QListWidget(this);
    m_timeline->setSelectionMode(QAbstractItemView::NoSelection);
    layout->addWidget(m_title);
    layout->addWidget(m_status);
    layout->addLayout(cvRow);
    layout->addWidget(m_cvNote);
    layout->addWidget(m_withdraw);
    layout->addWidget(m_error);
    layout->addWidget(m_retry, 0, Qt::AlignLeft);
    layout->addWidget(m_timeline, 1);
    connect(&m_model, &CandidateConversationModel::changed, this,
            &CandidateConversationScreen::refresh);
    connect(&m_state, &AppState::langChanged, this, &CandidateConversationScreen::refresh);
    connect(m_retry, &QPushButton::clicked, this, [this] { m_model.load(); });
    connect(m_cvUpdate, &QPushButton::clicked, this, &CandidateConversationScreen::openCvUpdate);
    connect(m_cvView, &QPushButton::clicked, this, &CandidateConversationScreen::viewCv);
    m_model.load();
    refresh();
}

QCoro::Task<> CandidateConversationScreen::viewCv()
{
    QPointer self(this);
    const auto path = co_await m_model.cvCopy();
    if (self && path)
        QDesktopServices::openUrl(QUrl::fromLocalFile(*path));
}

void CandidateConversationScreen::openCvUpdate()
{
    const auto& conversation = m_model.conversation();
    if (!conversation || !conversation->application.cv)
        return;
    auto* dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    auto* sheet = new CvUpdateSheet(m_services, m_model.ref(), m_model.key(),
                                    *conversation->application.cv, dialog);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(sheet);
    connect(&sheet->model(), &CvUpdateSheetModel::sent, &m_model,
            &CandidateConversationModel::cvUpdated);
    connect(sheet, &CvUpdateSheet::closed, dialog, &QDialog::accept);
    dialog->show();
}

void CandidateConversationScreen::refresh()
{
    using L10n::Key;
    const Lang lang = m_state.lang();
    const auto& conversation = m_model.conversation();
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_retry->setVisible(m_model.error().has_value() && !conversation);
    m_retry->setText(L10n::text(Key::retry, lang));
    m_withdraw->setTexts({L10n::text(Key::withdraw, lang),
                          L10n::text(Key::withdrawConfirm, lang),
                          {},
                          L10n::text(Key::withdraw, lang),
                          L10n::text(Key::close, lang)});
    for (QWidget* part : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_status),
                          static_cast<QWidget*>(m_cv), static_cast<QWidget*>(m_cvNote),
                          static_cast<QWidget*>(m_cvUpdate), static_cast<QWidget*>(m_withdraw),
                          static_cast<QWidget*>(m_timeline)})
        part->setVisible(conversation.has_value());
    if (!conversation)
        return;
    const CandidateApplicationDTO& application = conversation->application;
    m_title->setText(application.jobTitle + QStringLiteral(" · ") + application.employerName);
    m_status->setText(applicationStatusText(application.status, lang));
    m_withdraw->setVisible(application.open &&
                           application.kind == QLatin1StringView("application"));
    const auto& cv = application.cv;
    QString cvLine = cv ? cv->name.value_or(QString()) : L10n::text(Key::cvAdd, lang);
    if (cv && m_model.newCv())
        cvLine += QStringLiteral("  [") + L10n::text(Key::cvNewChip, lang) + u']';
    else if (cv && cv->updatedAt)
        cvLine += QStringLiteral("  [") +
                  L10n::text(Key::cvUpdatedChip, lang)
                      .replace(QStringLiteral("{date}"), Format::date(cv->updatedAt, lang)) +
                  u']';
    m_cv->setText(cvLine);
    m_cvUpdate->setVisible(cv && cv->canUpdate);
    m_cvUpdate->setText(L10n::text(cv ? Key::cvSendUpdated : Key::cvAdd, lang));
    m_cvView->setVisible(cv.has_value());
    m_cvView->setText(L10n::text(Key::cvView, lang));
    m_cvNote->setText(!cv             ? QString()
                      : cv->canUpdate ? L10n::textNMax(Key::cvUpdatesLeft, lang, cv->left, cv->max)
                      : cv->blocked == QStringLiteral("limit")
                          ? L10n::textNMax(Key::cvUpdateLimit, lang, cv->max, cv->max)
                          : L10n::text(Key::cvUpdateClosed, lang));
    m_timeline->clear();
    for (const ChatItem& item : m_model.timeline()) {
        if (const auto* message = item.message())
            m_timeline->addItem(Format::dateTime(message->createdAt, lang) + QStringLiteral("\n") +
                                message->body);
        else
            m_timeline->addItem(Format::dateTime(item.call()->rangAt, lang) + QStringLiteral(" ☎"));
    }
}

} // namespace vl
