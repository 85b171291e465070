#include "core/applying/ApplicationList.h"

#include "core/format/Iso8601.h"

#include <algorithm>
#include <map>

namespace vl {

namespace {

qint64 timeOf(const QString& text)
{
    const auto parsed = parseIso8601(text);
    return parsed ? parsed->toMSecsSinceEpoch() : 0;
}

} // namespace

std::vector<ApplicationRow> mergeApplications(const std::vector<CandidateEntry>& stored,
                                              const std::vector<MyActivityPayload::App>& reported)
{
    std::vector<ApplicationRow> rows;
    std::map<QString, std::size_t> byRef;
    for (const auto& app : reported) {
        if (byRef.contains(app.ref))
            continue;
        byRef.emplace(app.ref, rows.size());
        rows.push_back({.ref = app.ref,
                        .kind = app.kind,
                        .jobTitle = app.jobTitle,
                        .employerName = app.employerName,
                        .status = app.status,
                        .unread = app.unread,
                        .lastAt = app.lastAt,
                        .reported = true});
    }
    for (const auto& entry : stored) {
        const auto found = byRef.find(entry.ref);
        if (found != byRef.end()) {
            ApplicationRow& row = rows[found->second];
            if (!row.stored) {
                row.stored = true;
                row.key = entry.key;
            }
            continue;
        }
        byRef.emplace(entry.ref, rows.size());
        rows.push_back({.ref = entry.ref,
                        .kind = entry.kind,
                        .jobTitle = entry.jobTitle,
                        .employerName = entry.employerName,
                        .lastAt = entry.createdAt.toUTC().toString(Qt::ISODateWithMs),
                        .key = entry.key,
                        .stored = true});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
        return timeOf(a.lastAt) > timeOf(b.lastAt);
    });
    return rows;
}

} // namespace vl
