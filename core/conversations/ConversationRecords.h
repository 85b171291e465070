#pragma once

#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

// A voice or document attachment; `kind` "audio" is a voice message.
struct ChatMediaDTO {
    QString url;
    QString kind;
    std::optional<QString> name;
    std::optional<QString> transcript;
    VL_JSON_FIELDS(ChatMediaDTO, url, kind, name, transcript)
};

struct AppMessageDTO {
    QString id;
    QString sender;
    QString body;
    QString createdAt;
    std::optional<QString> readAt;
    std::optional<QString> imageUrl;
    std::optional<QString> bodyTranslated;
    std::optional<ChatMediaDTO> media;
    std::optional<bool> edited;
    std::optional<bool> removed;
    std::optional<QString> risk;
    VL_JSON_FIELDS(AppMessageDTO, id, sender, body, createdAt, readAt, imageUrl, bodyTranslated,
                   media, edited, removed, risk)
};

// One call shown as a line of the chat. Read tolerantly: each field under any of its keys, a
// default where none fits; only a missing `id` fails.
struct CallLogDTO {
    QString id;
    QString kind = QStringLiteral("voice");
    QString status = QStringLiteral("missed");
    QString callerSide;
    QString rangAt;
    int durationS = 0;
};

struct InterviewDTO {
    QString id;
    QString scheduledAt;
    QString mode;
    QString location;
    QString note;
    QString status;
    std::optional<QString> confirmedAt;
    VL_JSON_FIELDS(InterviewDTO, id, scheduledAt, mode, location, note, status, confirmedAt)
};

struct InterviewSlotDTO {
    QString id;
    QString at;
    QString mode;
    QString location;
    VL_JSON_FIELDS(InterviewSlotDTO, id, at, mode, location)
};

struct DealStateDTO {
    struct TheirRating {
        int stars = 0;
        std::vector<QString> tags;
        QString text;
        VL_JSON_FIELDS(TheirRating, stars, tags, text)
    };
    QString state;
    std::optional<QString> dealId;
    std::optional<TheirRating> theirRating;
    VL_JSON_FIELDS(DealStateDTO, state, dealId, theirRating)
};

namespace json {

template <>
struct Codec<CallLogDTO> {
    static bool read(const QJsonValue& v, CallLogDTO& out);
    static bool read(const Item& v, CallLogDTO& out) { return read(QJsonValue(v), out); }
    static QJsonValue write(const CallLogDTO& v);
};

} // namespace json

} // namespace vl
