#include "app/kit/ConfirmRow.h"

#include "app/kit/Theme.h"

#include <QMessageBox>

namespace vl {

ConfirmRow::ConfirmRow(const QIcon& icon, std::function<void()> action, QWidget* parent)
    : QPushButton(icon, QString(), parent)
    , m_action(std::move(action))
{
    setAutoDefault(false);
    Theme::setRole(this, "link");
    connect(this, &QPushButton::clicked, this, &ConfirmRow::ask);
}

void ConfirmRow::setTexts(Texts texts)
{
    m_texts = std::move(texts);
    setText(m_texts.label);
}

ConfirmRow::~ConfirmRow()
{
    if (m_question) {
        m_question->disconnect(this);
        m_question->deleteLater();
    }
}

void ConfirmRow::ask()
{
    if (m_asking)
        return;
    m_asking = true;
    Q_EMIT askingChanged(true);
    m_question = new QMessageBox(QMessageBox::NoIcon, QString(), m_texts.confirm,
                                 QMessageBox::NoButton, window());
    m_question->setObjectName(objectName() + QStringLiteral(".confirm"));
    m_question->setInformativeText(m_texts.body);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    m_question->setWindowModality(Qt::WindowModal);
    QPushButton* yes = m_question->addButton(m_texts.yes, QMessageBox::AcceptRole);
    yes->setObjectName(objectName() + QStringLiteral(".confirm.yes"));
    Theme::setRole(yes, "primary");
    QPushButton* no = m_question->addButton(m_texts.no, QMessageBox::RejectRole);
    no->setObjectName(objectName() + QStringLiteral(".confirm.no"));
    m_question->setDefaultButton(no);
    // Every way of closing the question ends in finished: a button, Escape, the window's close.
    connect(m_question, &QDialog::finished, this, [this, question = m_question.data(), yes] {
        question->disconnect(this);
        answered(question->clickedButton() == yes);
    });
    m_question->open();
}

void ConfirmRow::answered(bool yes)
{
    m_question = nullptr;
    m_asking = false;
    // The action runs last, from a copy: it may end this row and with it m_action.
    const std::function<void()> action = yes ? m_action : nullptr;
    Q_EMIT askingChanged(false);
    if (action)
        action();
}

} // namespace vl
