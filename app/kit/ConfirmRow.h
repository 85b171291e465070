#pragma once

#include <QIcon>
#include <QPushButton>
#include <functional>

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

    void setTexts(Texts texts);
    bool asking() const { return m_asking; }

Q_SIGNALS:
    void askingChanged(bool asking);

private:
    void ask();

    std::function<void()> m_action;
    Texts m_texts;
    bool m_asking = false;
};

} // namespace vl
