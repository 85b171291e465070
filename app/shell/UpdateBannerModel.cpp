#include "app/shell/UpdateBannerModel.h"

#include "app/platform/Preferences.h"
#include "app/shell/Taxonomy.h"

namespace vl {

namespace {

const QString seenKey = QStringLiteral("vl.update.seen");

} // namespace

UpdateBannerModel::UpdateBannerModel(Taxonomy& taxonomy, Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_taxonomy(taxonomy)
    , m_preferences(preferences)
{
    connect(&m_taxonomy, &Taxonomy::changed, this, &UpdateBannerModel::changed);
}

bool UpdateBannerModel::visible() const
{
    const auto& update = m_taxonomy.updateAvailable();
    return update && update->build != m_preferences.value(seenKey).toLongLong();
}

QString UpdateBannerModel::url() const
{
    const auto& update = m_taxonomy.updateAvailable();
    return update ? update->url : QString();
}

void UpdateBannerModel::dismiss()
{
    const auto& update = m_taxonomy.updateAvailable();
    if (!update)
        return;
    m_preferences.setValue(seenKey, update->build);
    Q_EMIT changed();
}

} // namespace vl
