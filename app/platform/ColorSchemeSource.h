#pragma once

#include <QObject>

namespace vl {

// Where the desktop says whether it prefers light or dark. The theme follows it while the client
// runs; tests flip a fake one.
class ColorSchemeSource : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    virtual bool dark() const = 0;

Q_SIGNALS:
    void darkChanged();
};

} // namespace vl
