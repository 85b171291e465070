#pragma once

// How the body of an HTTP answer becomes a record or an error. The status is not looked at first:
// a 401 or a 429 with a valid envelope reads the same as a 200.

#include "core/conversations/ChatRefusal.h"
#include "core/json/Json.h"
#include "core/service/Envelope.h"
#include "core/service/Result.h"

#include <optional>
#include <variant>
#include <vector>

namespace vl {

// A list answer: the rows with the paging that came with them.
template <class T>
struct Page {
    std::vector<T> items;
    std::optional<PageMeta> meta;

    // No paging at all counts as a complete page.
    bool more() const { return meta && meta->more; }
};

namespace answer {

template <class T>
Result<T> fromEnvelope(Envelope<T>&& envelope)
{
    if (envelope.ok && envelope.data)
        return std::move(*envelope.data);
    return APIError::server(envelope.error.value_or(QStringLiteral("generic")));
}

template <class T>
Result<T> read(const QByteArray& body, int status)
{
    auto envelope = json::decode<Envelope<T>>(body);
    if (!envelope)
        return APIError::http(status);
    return fromEnvelope(std::move(*envelope));
}

template <class T>
Result<Page<T>> readPage(const QByteArray& body, int status)
{
    auto envelope = json::decode<Envelope<std::vector<T>>>(body);
    if (!envelope)
        return APIError::http(status);
    auto meta = std::move(envelope->meta);
    auto items = fromEnvelope(std::move(*envelope));
    if (!items)
        return items.error();
    return Page<T>{std::move(items).value(), std::move(meta)};
}

// A chat send is done (maybe with a payload the service added), or refused.
template <class T>
using ChatSendResult = Result<std::optional<T>, ChatRefusal>;

template <class T>
ChatSendResult<T> readChatSend(const QByteArray& body, int status)
{
    const auto loose = json::decode<LooseEnvelope>(body);
    if (!loose) {
        return ChatRefusal{status == 413 ? QStringLiteral("size") : QStringLiteral("http"),
                           std::nullopt, status};
    }
    if (!loose->ok) {
        std::optional<QString> text;
        for (const auto* candidate : {&loose->message, &loose->text, &loose->refusal}) {
            if (*candidate && !(*candidate)->isEmpty()) {
                text = **candidate;
                break;
            }
        }
        return ChatRefusal{loose->error.value_or(QStringLiteral("generic")), std::move(text),
                           status};
    }
    auto envelope = json::decode<Envelope<T>>(body);
    if (!envelope || !envelope->data)
        return std::optional<T>();
    return std::optional<T>(std::move(*envelope->data));
}

} // namespace answer
} // namespace vl
