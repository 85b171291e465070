#pragma once

#include "core/reputation/Highscores.h"

#include <QFrame>

class QCheckBox;
class QLabel;

namespace vl {

// The season's word before a send: a title and a line, and for a ticket the switch that
// spends one.
class HsHintView : public QFrame {
    Q_OBJECT
public:
    explicit HsHintView(QWidget* parent = nullptr);

    void show(const HsHint& hint, bool useTicket);

Q_SIGNALS:
    void useTicketChanged(bool on);

private:
    QLabel* m_title;
    QLabel* m_sub;
    QCheckBox* m_ticket;
};

} // namespace vl
