#pragma once

// The small result records that several operations share.

#include "core/json/Json.h"

#include <optional>

namespace vl {

struct Done {
    bool done = false;
    VL_JSON_FIELDS(Done, done)
    bool operator==(const Done&) const = default;
};

struct BlockState {
    bool blocked = false;
    VL_JSON_FIELDS(BlockState, blocked)
    bool operator==(const BlockState&) const = default;
};

struct DiscardWrap {
    std::optional<bool> discarded;
    VL_JSON_FIELDS(DiscardWrap, discarded)
    bool operator==(const DiscardWrap&) const = default;
};

struct FollowResult {
    bool following = false;
    VL_JSON_FIELDS(FollowResult, following)
    bool operator==(const FollowResult&) const = default;
};

struct PhotoResult {
    QString id;
    QString status;
    VL_JSON_FIELDS(PhotoResult, id, status)
    bool operator==(const PhotoResult&) const = default;
};

struct IdvLinkOut {
    bool ok = false;
    std::optional<QString> url;
    VL_JSON_FIELDS(IdvLinkOut, ok, url)
    bool operator==(const IdvLinkOut&) const = default;
};

struct PasskeyOptions {
    QString nonce;
    QString challenge;
    VL_JSON_FIELDS(PasskeyOptions, nonce, challenge)
    bool operator==(const PasskeyOptions&) const = default;
};

} // namespace vl
