#include "app/shell/Taxonomy.h"

#include "app/service/APIClient.h"

#include <QPointer>

namespace vl {

Taxonomy::Taxonomy(const APIClient& api, qint64 build, QObject* parent)
    : QObject(parent)
    , m_api(api)
    , m_build(build)
{
}

QCoro::Task<> Taxonomy::load()
{
    if (!m_categories.empty())
        co_return;
    QPointer self(this);
    auto config = co_await m_api.config(this);
    if (!self || !config || !m_categories.empty())
        co_return;
    m_categories = config->categories;
    m_cities = config->cities;
    m_employmentTypes = config->employmentTypes;
    m_features = config->features;
    m_updateRequired = vl::updateRequired(*config, m_build, m_api.site());
    m_updateAvailable = vl::updateAvailable(*config, m_build);
    m_updatePage = vl::updatePage(*config, m_api.site());
    Q_EMIT changed();
}

QString Taxonomy::updatePage() const
{
    return m_updatePage.isEmpty() ? m_api.site() : m_updatePage;
}

namespace {

QString labelIn(const std::vector<ConfigPayload::Entry>& entries, const QString& key, Lang lang)
{
    for (const auto& entry : entries) {
        if (entry.key == key)
            return entry.label(lang);
    }
    return key;
}

} // namespace

QString Taxonomy::categoryLabel(const QString& key, Lang lang) const
{
    return labelIn(m_categories, key, lang);
}

QString Taxonomy::cityLabel(const QString& key, Lang lang) const
{
    return labelIn(m_cities, key, lang);
}

} // namespace vl
