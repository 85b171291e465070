#pragma once

#include "core/conversations/ConversationRecords.h"

#include <optional>
#include <variant>
#include <vector>

namespace vl {

// One entry of a conversation's timeline: a message or a call.
class ChatItem {
public:
    explicit ChatItem(AppMessageDTO message)
        : m_item(std::move(message))
    {
    }
    explicit ChatItem(CallLogDTO call)
        : m_item(std::move(call))
    {
    }

    const AppMessageDTO* message() const { return std::get_if<AppMessageDTO>(&m_item); }
    const CallLogDTO* call() const { return std::get_if<CallLogDTO>(&m_item); }
    // "m-" or "c-" and the id, so that a message and a call with one id never collide.
    QString identity() const;

    // Messages keep the service's order; each call stands before the first message that is not
    // older than it, and the rest follow at the end.
    static std::vector<ChatItem> merged(const std::vector<AppMessageDTO>& messages,
                                        const std::optional<std::vector<CallLogDTO>>& calls);

private:
    std::variant<AppMessageDTO, CallLogDTO> m_item;
};

} // namespace vl
