#pragma once

#include <QString>
#include <optional>

namespace vl {

// What a chat request fails with when the service refuses it, possibly in its own words.
struct ChatRefusal {
    QString code;
    std::optional<QString> text;
    int status = 0;

    bool operator==(const ChatRefusal&) const = default;
};

} // namespace vl
