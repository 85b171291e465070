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

void ConfirmRow::ask()
{
    if (m_asking)
        return;
    m_asking = true;
    Q_EMIT askingChanged(true);
    auto* question = new QMessageBox(QMessageBox::NoIcon, QString(), m_texts.confirm,
                                     QMessageBox::NoButton, this);
    question->setObjectName(objectName() + QStringLiteral(".confirm"));
    question->setInformativeText(m_texts.body);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowModality(Qt::WindowModal);
    QPushButton* yes = question->addButton(m_texts.yes, QMessageBox::AcceptRole);
    yes->setObjectName(objectName() + QStringLiteral(".confirm.yes"));
    Theme::setRole(yes, "primary");
    QPushButton* no = question->addButton(m_texts.no, QMessageBox::RejectRole);
    no->setObjectName(objectName() + QStringLiteral(".confirm.no"));
    question->setDefaultButton(no);
    connect(question, &QMessageBox::buttonClicked, this, [this, yes](QAbstractButton* clicked) {
        if (clicked == yes)
            m_action();
    });
    connect(question, &QObject::destroyed, this, [this] {
        m_asking = false;
        Q_EMIT askingChanged(false);
    });
    question->open();
}

} // namespace vl
