#pragma once

#include "core/reputation/Highscores.h"

#include <QFrame>

class QLabel;
class QProgressBar;

namespace vl {

// What an application did to the season: the service's words, each only when it has any.
class HsMomentView : public QFrame {
    Q_OBJECT
public:
    explicit HsMomentView(QWidget* parent = nullptr);

    void show(const HsMoment& moment);

private:
    QLabel* m_lines;
    QProgressBar* m_goal;
    QLabel* m_chips;
    QLabel* m_see;
};

} // namespace vl
