#pragma once

#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

// The job seeker's own standing in the season, all words already chosen by the service.
struct HsMe {
    struct Tickets {
        int available = 0;
        std::optional<int> nextIn;
        int filled = 0;
        int every = 0;
        VL_JSON_FIELDS(Tickets, available, nextIn, filled, every)
    };
    struct Streak {
        int current = 0;
        bool appliedToday = false;
        bool restUsed = false;
        VL_JSON_FIELDS(Streak, current, appliedToday, restUsed)
    };
    struct Text {
        QString rank;
        QString rankOf;
        QString goal;
        QString pointsNow;
        QString thisSeason;
        QString streak;
        QString streakNote;
        QString tickets;
        QString ticketsSub;
        QString ticketsExpire;
        QString hiddenNote;
        VL_JSON_FIELDS(Text, rank, rankOf, goal, pointsNow, thisSeason, streak, streakNote, tickets,
                       ticketsSub, ticketsExpire, hiddenNote)
    };

    std::optional<int> rank;
    int points = 0;
    int apps = 0;
    bool gold = false;
    bool pass = false;
    int toGold = 0;
    bool hidden = false;
    Tickets tickets;
    Streak streak;
    int goalPct = 0;
    std::vector<QString> honours;
    Text text;
    VL_JSON_FIELDS(HsMe, rank, points, apps, gold, pass, toGold, hidden, tickets, streak, goalPct,
                   honours, text)
};

// What the apply sheet may say about the season before a send: `auto`, `ticket` or `none`.
struct HsHint {
    QString kind;
    QString title;
    QString sub;
    int tickets = 0;
    QString board;
    VL_JSON_FIELDS(HsHint, kind, title, sub, tickets, board)

    bool offersTicket() const { return kind == QLatin1StringView("ticket"); }
};

// The small read of one's own standing.
struct HsMeOnly {
    std::optional<HsMe> me;
    std::optional<HsHint> hint;
    VL_JSON_FIELDS(HsMeOnly, me, hint)
};

// What a successful application did to the standing, in the service's words.
struct HsMoment {
    QString gold;
    QString rank;
    QString move;
    QString points;
    QString passed;
    QString goal;
    int goalPct = 0;
    std::vector<QString> chips;
    QString see;
    VL_JSON_FIELDS(HsMoment, gold, rank, move, points, passed, goal, goalPct, chips, see)
};

} // namespace vl
