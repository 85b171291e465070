#pragma once

#include <QString>
#include <QVariant>

namespace vl {

// The user's preferences under `vl.` keys.
class Preferences {
public:
    virtual ~Preferences() = default;
    virtual QVariant value(const QString& key) const = 0;
    virtual void setValue(const QString& key, const QVariant& value) = 0;
    virtual void remove(const QString& key) = 0;

    QString string(const QString& key) const { return value(key).toString(); }
    bool contains(const QString& key) const { return value(key).isValid(); }
};

} // namespace vl
