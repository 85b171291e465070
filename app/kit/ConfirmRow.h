#pragma once

#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <functional>

class QMessageBox;

namespace vl {

// A row that acts only after the person confirms: a tap asks `confirm` (with `body` below it,
// when given), and only the positive answer runs the action.
class ConfirmRow : public QPushButton {
    Q_OBJECT
public:
    struct Texts {
        QString label;
        QString confirm;
        QString body;
        QString yes;
        QString no;
    };

    ConfirmRow(const QIcon& icon, std::function<void()> action, QWidget* parent = nullptr);
    ~ConfirmRow() override;

    void setTexts(Texts texts);
    bool asking() const { return m_asking; }

Q_SIGNALS:
    void askingChanged(bool asking);

private:
    void ask();
    void answered(bool yes);

    std::function<void()> m_action;
    Texts m_texts;
    bool m_asking = false;
    // The question belongs to the window, not to the row: the action may delete the row (a
    // screen rebuilding its rows after a sign-out) while the question is still closing.
    QPointer<QMessageBox> m_question;
};

} // namespace vl
