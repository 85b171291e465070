#pragma once

#include "core/session/ConfigPayload.h"
#include "core/session/UpdateGate.h"

#include <QCoroTask>
#include <QObject>
#include <optional>
#include <vector>

namespace vl {

class APIClient;

// The service's taxonomy and version gates, read from config once per run.
class Taxonomy : public QObject {
    Q_OBJECT
public:
    Taxonomy(const APIClient& api, qint64 build, QObject* parent = nullptr);

    // Never fails to the caller: on failure the lists stay empty and a later call tries again.
    // Once a taxonomy is held, config is never read again in this process.
    QCoro::Task<> load();

    const std::vector<ConfigPayload::Entry>& categories() const { return m_categories; }
    const std::vector<ConfigPayload::Entry>& cities() const { return m_cities; }
    const std::vector<ConfigPayload::Entry>& employmentTypes() const { return m_employmentTypes; }
    // A key's label in the language; the key itself when the taxonomy doesn't hold it.
    QString categoryLabel(const QString& key, Lang lang) const;
    QString cityLabel(const QString& key, Lang lang) const;
    const std::optional<ConfigPayload::Features>& features() const { return m_features; }
    const std::optional<UpdateRequired>& updateRequired() const { return m_updateRequired; }
    const std::optional<UpdateAvailable>& updateAvailable() const { return m_updateAvailable; }
    // Where "check for updates" leads; the site until config has answered.
    QString updatePage() const;

Q_SIGNALS:
    void changed();

private:
    const APIClient& m_api;
    qint64 m_build;
    std::vector<ConfigPayload::Entry> m_categories;
    std::vector<ConfigPayload::Entry> m_cities;
    std::vector<ConfigPayload::Entry> m_employmentTypes;
    std::optional<ConfigPayload::Features> m_features;
    std::optional<UpdateRequired> m_updateRequired;
    std::optional<UpdateAvailable> m_updateAvailable;
    QString m_updatePage;
};

} // namespace vl
