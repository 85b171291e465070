#pragma once

#include "core/json/Json.h"
#include "core/session/MePayload.h"

#include <optional>
#include <vector>

namespace vl {

// The signed-in job seeker's summary, for the workspace.
struct CandidateActivityPayload {
    struct Stats {
        int applications = 0;
        int opened = 0;
        int replies = 0;
        int alerts = 0;
        int historyEntries = 0;
        VL_JSON_FIELDS(Stats, applications, opened, replies, alerts, historyEntries)
    };
    struct Item {
        QString key;
        bool done = false;
        VL_JSON_FIELDS(Item, key, done)
    };
    struct Completeness {
        int pct = 0;
        std::vector<Item> items;
        VL_JSON_FIELDS(Completeness, pct, items)
    };
    struct Identity {
        bool enabled = false;
        QString status;
        std::optional<QString> sentAt;
        std::optional<QString> rejectReason;
        VL_JSON_FIELDS(Identity, enabled, status, sentAt, rejectReason)
    };
    struct App {
        QString id;
        QString ref;
        std::optional<QString> jobRef;
        QString jobTitle;
        QString company;
        QString category;
        QString status;
        QString kind;
        QString createdAt;
        QString stage;
        int unread = 0;
        std::optional<QString> interviewStatus;
        std::optional<QString> interviewAt;
        VL_JSON_FIELDS(App, id, ref, jobRef, jobTitle, company, category, status, kind, createdAt,
                       stage, unread, interviewStatus, interviewAt)
    };

    QString email;
    Stats stats;
    std::optional<NextStepDTO> next;
    Completeness completeness;
    std::optional<Identity> identity;
    std::vector<App> applications;
    VL_JSON_FIELDS(CandidateActivityPayload, email, stats, next, completeness, identity,
                   applications)
};

} // namespace vl
