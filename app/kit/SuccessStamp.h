#pragma once

#include "core/reputation/Highscores.h"

#include <QWidget>
#include <optional>

class QLabel;
class QPushButton;

namespace vl {

class HsMomentView;

// The confirmation after a send: its text, the season's moment when there is one, and Close.
class SuccessStamp : public QWidget {
    Q_OBJECT
public:
    explicit SuccessStamp(QWidget* parent = nullptr);

    void show(const QString& sent, const std::optional<HsMoment>& moment, const QString& close);

Q_SIGNALS:
    void closed();

private:
    QLabel* m_text;
    HsMomentView* m_moment;
    QPushButton* m_close;
};

} // namespace vl
