#pragma once

#include "core/l10n/Lang.h"

#include <QDialog>

namespace vl {

// The plus action on the vacancy board for a reader who isn't signed in: posting a vacancy
// needs an employer's sign-in.
class PostGateSheet : public QDialog {
    Q_OBJECT
public:
    explicit PostGateSheet(Lang lang, QWidget* parent = nullptr);

Q_SIGNALS:
    void signInRequested();
};

} // namespace vl
