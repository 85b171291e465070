#pragma once

#include <QObject>
#include <QString>

namespace vl {

class Preferences;
class Taxonomy;

// The soft offer of a newer build above the content. Dismissing it remembers that build under
// vl.update.seen, so it stays away until the service names another one.
class UpdateBannerModel : public QObject {
    Q_OBJECT
public:
    UpdateBannerModel(Taxonomy& taxonomy, Preferences& preferences, QObject* parent = nullptr);

    bool visible() const;
    // Where "Get it" leads.
    QString url() const;
    void dismiss();

Q_SIGNALS:
    void changed();

private:
    Taxonomy& m_taxonomy;
    Preferences& m_preferences;
};

} // namespace vl
