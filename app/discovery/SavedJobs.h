#pragma once

#include "core/discovery/JobDetail.h"
#include "core/discovery/JobSummary.h"
#include "core/json/Json.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <functional>
#include <vector>

namespace vl {

class Preferences;

// The starred listings, kept on this machine only, newest first. They survive signing out.
class SavedJobs : public QObject {
    Q_OBJECT
public:
    struct Entry {
        QString ref;
        QString title;
        QString employer;
        QString city;
        QString kind;
        // Seconds since 2001-01-01 00:00 UTC.
        double savedAt = 0;

        VL_JSON_FIELDS(Entry, ref, title, employer, city, kind, savedAt)
        bool operator==(const Entry&) const = default;
    };

    // An entry with the place it held in the list when it was removed.
    struct Placed {
        std::size_t at = 0;
        Entry entry;
    };

    using Clock = std::function<QDateTime()>;
    static constexpr const char* key = "vl.savedJobs";

    explicit SavedJobs(Preferences& preferences, Clock now = {}, QObject* parent = nullptr);

    const std::vector<Entry>& entries() const;
    bool contains(const QString& ref) const;
    QStringList refs() const;

    void toggle(const JobSummary& job);
    void toggle(const JobDetail& job);
    void remove(const QString& ref);
    // Puts removed entries back where they were, in one write; `removed` is in ascending order of
    // place. An entry saved again meanwhile stays where it is now.
    void restore(const std::vector<Placed>& removed);
    std::vector<Placed> placesOf(const QStringList& refs) const;

    static double referenceSeconds(const QDateTime& date);

Q_SIGNALS:
    void changed();

private:
    void loadOnce() const;
    void toggle(Entry entry);
    void store();

    Preferences& m_preferences;
    Clock m_now;
    mutable bool m_loaded = false;
    mutable std::vector<Entry> m_entries;
};

} // namespace vl
