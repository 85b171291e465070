#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QPushButton;

namespace vl {

// A line that tells what was just done, with a button to take it back. It stays a few seconds,
// then hides and the action stands.
class UndoBar : public QFrame {
    Q_OBJECT
public:
    static constexpr int shownMs = 6000;

    explicit UndoBar(QWidget* parent = nullptr);

    void setButtonText(const QString& text);
    // Shows `what` and starts the wait again; an earlier action can no longer be taken back.
    void offer(const QString& what);

Q_SIGNALS:
    void undoRequested();

private:
    QLabel* m_what = nullptr;
    QPushButton* m_undo = nullptr;
    QTimer m_timer;
};

} // namespace vl
