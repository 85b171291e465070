#include "app/applying/CvUpdateSheet.h"

#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QVBoxLayout>

namespace vl {

CvUpdateSheet::CvUpdateSheet(ApplyServices services, QString ref, QString key, CandidateCvDTO cv,
                             QWidget* parent)
    : QWidget(parent)
    , m_model(services, std::move(ref), std::move(key), std::move(cv))
    , m_state(services.state)
{
    setObjectName(QStringLiteral("cvUpdateSheet"));
    auto* layout = new QVBoxLayout(this);
    m_hint = make::label(this, "caption");
    m_left = make::label(this, "name");
    auto* row = new QHBoxLayout;
    m_file = make::label(this, "plain");
    m_choose = make::button(this, "quiet");
    row->addWidget(m_file, 1);
    row->addWidget(m_choose);
    m_note = new QLineEdit(this);
    m_error = make::label(this, "error");
    m_send = make::button(this, "primary");
    m_busy = make::busyBar(this);
    layout->addWidget(m_hint);
    layout->addWidget(m_left);
    layout->addLayout(row);
    for (QWidget* part : {static_cast<QWidget*>(m_note), static_cast<QWidget*>(m_error),
                          static_cast<QWidget*>(m_send), static_cast<QWidget*>(m_busy)})
        layout->addWidget(part);
    layout->addStretch();

    connect(&m_model, &CvUpdateSheetModel::changed, this, &CvUpdateSheet::refresh);
    connect(&m_model, &CvUpdateSheetModel::sent, this, &CvUpdateSheet::closed);
    connect(&m_state, &AppState::langChanged, this, &CvUpdateSheet::refresh);
    connect(m_choose, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, L10n::text(L10n::Key::cvSendUpdated, m_state.lang()), QString(),
            QStringLiteral("PDF, DOC, DOCX (*.pdf *.doc *.docx *.PDF *.DOC *.DOCX)"));
        if (!path.isEmpty())
            m_model.choose(path);
    });
    connect(m_send, &QPushButton::clicked, this, [this] {
        m_model.note = m_note->text();
        m_model.send();
    });
    refresh();
}

void CvUpdateSheet::refresh()
{
    using L10n::Key;
    const Lang lang = m_state.lang();
    m_hint->setText(L10n::text(Key::cvUpdateHint, lang));
    m_left->setText(L10n::textNMax(Key::cvUpdatesLeft, lang, m_model.cv().left, m_model.cv().max));
    m_file->setText(m_model.file() ? m_model.file()->filename : QString());
    m_choose->setText(L10n::text(m_model.file() ? Key::cvCheckAnother : Key::cvAdd, lang));
    m_note->setPlaceholderText(L10n::text(Key::cvUpdateNote, lang));
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_send->setText(L10n::text(Key::cvUpdateSend, lang));
    m_send->setEnabled(m_model.file().has_value() && !m_model.refused());
    m_send->setVisible(!m_model.sending());
    m_busy->setVisible(m_model.sending());
}

} // namespace vl
