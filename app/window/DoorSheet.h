#pragma once

#include <QDialog>

namespace vl {

class AppState;

// The way in: the two sides of the client, each with its own sign-in, offered side by side so
// neither looks like the only door. Only the sides not yet signed in are offered.
class DoorSheet : public QDialog {
    Q_OBJECT
public:
    DoorSheet(AppState& appState, bool offerWork, bool offerHiring, QWidget* parent = nullptr);

Q_SIGNALS:
    void workChosen();
    void hiringChosen();
};

} // namespace vl
