#pragma once

#include "core/conversations/ConversationRecords.h"
#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

// The CV attached to an application, and whether a newer one may replace it.
struct CandidateCvDTO {
    std::optional<QString> name;
    std::optional<QString> updatedAt;
    bool canUpdate = false;
    int left = 0;
    int max = 0;
    std::optional<QString> blocked;
    VL_JSON_FIELDS(CandidateCvDTO, name, updatedAt, canUpdate, left, max, blocked)
};

// One application or question as its sender sees it.
struct CandidateApplicationDTO {
    std::optional<QString> id;
    QString ref;
    QString kind;
    QString status;
    QString name;
    QString email;
    QString message;
    QString createdAt;
    QString jobTitle;
    std::optional<QString> jobKind;
    QString jobRef;
    QString employerName;
    bool open = false;
    std::optional<CandidateCvDTO> cv;
    VL_JSON_FIELDS(CandidateApplicationDTO, id, ref, kind, status, name, email, message, createdAt,
                   jobTitle, jobKind, jobRef, employerName, open, cv)
};

// An application's conversation, read by its reference and key.
struct CandidateConversation {
    std::optional<DealStateDTO> deal;
    CandidateApplicationDTO application;
    std::vector<AppMessageDTO> messages;
    std::optional<InterviewDTO> interview;
    std::optional<std::vector<InterviewSlotDTO>> offeredSlots;
    std::optional<std::vector<CallLogDTO>> calls;
    std::optional<bool> callsOff;
    std::optional<bool> canCall;
    VL_JSON_FIELDS(CandidateConversation, deal, application, messages, interview, offeredSlots,
                   calls, callsOff, canCall)
};

// A newer CV accepted: the CV as it stands now, and the notice that joined the conversation.
struct CandidateCvUpdate {
    CandidateCvDTO cv;
    AppMessageDTO message;
    VL_JSON_FIELDS(CandidateCvUpdate, cv, message)
};

// A CV's text, translated into the reader's language where the service could.
struct CvTextPayload {
    QString text;
    std::optional<QString> original;
    QString source;
    std::optional<QString> target;
    bool translated = false;
    bool partial = false;
    VL_JSON_FIELDS(CvTextPayload, text, original, source, target, translated, partial)
};

} // namespace vl
