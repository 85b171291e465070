#include "app/discovery/SavedJobs.h"

#include "app/platform/Preferences.h"

#include <algorithm>

namespace vl {

namespace {

const QDateTime referenceDate = QDateTime::fromSecsSinceEpoch(978307200, Qt::UTC);

} // namespace

SavedJobs::SavedJobs(Preferences& preferences, Clock now, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_now(now ? std::move(now) : Clock([] { return QDateTime::currentDateTimeUtc(); }))
{
}

double SavedJobs::referenceSeconds(const QDateTime& date)
{
    return double(referenceDate.msecsTo(date)) / 1000.0;
}

// Unreadable data leaves the list empty but stays stored: nothing is written until the list
// changes.
void SavedJobs::loadOnce() const
{
    if (m_loaded)
        return;
    m_loaded = true;
    const QVariant stored = m_preferences.value(QString::fromLatin1(key));
    if (!stored.isValid())
        return;
    if (auto decoded = json::decode<std::vector<Entry>>(stored.toByteArray()))
        m_entries = std::move(*decoded);
}

const std::vector<SavedJobs::Entry>& SavedJobs::entries() const
{
    loadOnce();
    return m_entries;
}

bool SavedJobs::contains(const QString& ref) const
{
    const auto& all = entries();
    return std::any_of(all.begin(), all.end(), [&](const Entry& e) { return e.ref == ref; });
}

QStringList SavedJobs::refs() const
{
    QStringList out;
    for (const Entry& entry : entries())
        out << entry.ref;
    return out;
}

void SavedJobs::toggle(const JobSummary& job)
{
    toggle(Entry{job.ref, job.title, job.employerName, job.city, job.kind, 0});
}

void SavedJobs::toggle(const JobDetail& job)
{
    toggle(Entry{job.ref, job.title, job.employerName, job.city, job.kind, 0});
}

void SavedJobs::toggle(Entry entry)
{
    loadOnce();
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& e) { return e.ref == entry.ref; });
    if (found != m_entries.end()) {
        m_entries.erase(found);
    } else {
        entry.savedAt = referenceSeconds(m_now());
        m_entries.insert(m_entries.begin(), std::move(entry));
    }
    store();
}

void SavedJobs::remove(const QString& ref)
{
    loadOnce();
    const auto before = m_entries.size();
    std::erase_if(m_entries, [&](const Entry& e) { return e.ref == ref; });
    if (m_entries.size() != before)
        store();
}

void SavedJobs::restore(const std::vector<Placed>& removed)
{
    loadOnce();
    bool changedAny = false;
    for (const Placed& placed : removed) {
        if (contains(placed.entry.ref))
            continue;
        const auto at = std::min(placed.at, m_entries.size());
        m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(at), placed.entry);
        changedAny = true;
    }
    if (changedAny)
        store();
}

std::vector<SavedJobs::Placed> SavedJobs::placesOf(const QStringList& refs) const
{
    loadOnce();
    std::vector<Placed> placed;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (refs.contains(m_entries[i].ref))
            placed.push_back(Placed{i, m_entries[i]});
    }
    return placed;
}

void SavedJobs::store()
{
    m_preferences.setValue(QString::fromLatin1(key), json::encode(m_entries));
    Q_EMIT changed();
}

} // namespace vl
