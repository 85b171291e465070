#pragma once

#include "core/json/Json.h"

#include <optional>

namespace vl {

// Paging of a list answer.
struct PageMeta {
    int page = 0;
    int per = 0;
    int total = 0;
    bool more = false;
    std::optional<int> postedToday;

    VL_JSON_FIELDS(PageMeta, page, per, total, more, postedToday)
    bool operator==(const PageMeta&) const = default;
};

// The wire shape of every JSON answer.
template <class T>
struct Envelope {
    bool ok = false;
    std::optional<T> data;
    std::optional<PageMeta> meta;
    std::optional<QString> error;

    VL_JSON_FIELDS(Envelope, ok, data, meta, error)
};

// The first reading of a chat send's answer, which may refuse in prose.
struct LooseEnvelope {
    bool ok = false;
    std::optional<QString> error;
    std::optional<QString> message;
    std::optional<QString> text;
    std::optional<QString> refusal;

    VL_JSON_FIELDS(LooseEnvelope, ok, error, message, text, refusal)
};

// The result of operations that answer with an object and nothing in it that the client reads.
struct Nothing {
    VL_JSON_NO_FIELDS
    bool operator==(const Nothing&) const = default;
};

} // namespace vl
