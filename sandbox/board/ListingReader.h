#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;
struct JobFilter;

// Reads listings as the board and the detail pane show them, in the reader's language: the
// translation where one is stored (marked as such), else the original text.
class ListingReader {
public:
    static constexpr int pageSize = 30;

    ListingReader(Store& store, const Clock& clock);

    // One page of JobSummary and the number of all matches.
    QJsonArray page(const JobFilter& filter, const QString& lang, int page, int& total) const;
    // The newest listings of a kind, by board date.
    QJsonArray freshest(const QString& kind, const QString& lang, int count) const;
    // Live listings of a kind published since the start of today.
    int postedToday(const QString& kind) const;
    // [{"key":..., "n":...}] of live listings of a kind per value of a column, largest first.
    QJsonArray counts(const QString& kind, const QString& column) const;
    // JobDetail of a live or closed listing; counts the view.
    std::optional<QJsonObject> detail(const QString& ref, const QString& lang, bool forms,
                                      const QString& origin) const;

private:
    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
