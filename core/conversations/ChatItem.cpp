#include "core/conversations/ChatItem.h"

#include "core/format/Iso8601.h"

#include <algorithm>

namespace vl {

namespace {

// An unreadable time counts as the distant past.
qint64 timeOf(const QString& text)
{
    const auto parsed = parseIso8601(text);
    return parsed ? parsed->toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

} // namespace

QString ChatItem::identity() const
{
    if (const auto* m = message())
        return QStringLiteral("m-") + m->id;
    return QStringLiteral("c-") + call()->id;
}

std::vector<ChatItem> ChatItem::merged(const std::vector<AppMessageDTO>& messages,
                                       const std::optional<std::vector<CallLogDTO>>& calls)
{
    std::vector<ChatItem> out;
    out.reserve(messages.size() + (calls ? calls->size() : 0));
    std::vector<std::pair<qint64, const CallLogDTO*>> pending;
    if (calls) {
        for (const auto& call : *calls)
            pending.emplace_back(timeOf(call.rangAt), &call);
    }
    std::stable_sort(pending.begin(), pending.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    auto next = pending.begin();
    for (const auto& message : messages) {
        const qint64 at = timeOf(message.createdAt);
        for (; next != pending.end() && next->first <= at; ++next)
            out.emplace_back(*next->second);
        out.emplace_back(message);
    }
    for (; next != pending.end(); ++next)
        out.emplace_back(*next->second);
    return out;
}

} // namespace vl
