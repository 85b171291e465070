#pragma once

#include "core/session/UpdateGate.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace vl {

class AppState;

// All there is while the service refuses this build: why, and the way to a newer one. There is
// no way past it; a relaunch after updating is the way out.
class UpdateRequiredScreen : public QWidget {
    Q_OBJECT
public:
    // A pre-release build is sent to the pre-release channel, any other to the store.
    UpdateRequiredScreen(UpdateRequired gate, bool prerelease, AppState& appState,
                         QWidget* parent = nullptr);

private:
    void retext();

    UpdateRequired m_gate;
    bool m_prerelease;
    AppState& m_appState;
    QLabel* m_title;
    QLabel* m_body;
    QPushButton* m_update;
};

} // namespace vl
