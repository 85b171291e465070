#pragma once

#include "core/navigation/PushRoute.h"

#include <QHash>
#include <QString>
#include <optional>

namespace vl {

// A destination in the account and inbox areas' navigation path.
struct AccountRoute {
    enum class Kind {
        application,
        thread,
        candidate,
        seekerThread,
        inbox,
        listings,
        applicants,
        profile,
        myApplications,
        seekerInbox,
        candidateProfile,
        verify,
        savedJobs,
        news,
        support,
        reputation,
        seekers,
        alerts,
    };

    Kind kind = Kind::inbox;
    QString first;
    QString second;

    static AccountRoute application(QString id) { return {Kind::application, std::move(id), {}}; }
    static AccountRoute thread(QString id) { return {Kind::thread, std::move(id), {}}; }
    static AccountRoute candidate(QString ref) { return {Kind::candidate, std::move(ref), {}}; }
    static AccountRoute seekerThread(QString a, QString b)
    {
        return {Kind::seekerThread, std::move(a), std::move(b)};
    }
    static AccountRoute plain(Kind kind) { return {kind, {}, {}}; }

    bool operator==(const AccountRoute&) const = default;

    // What the inbox pushes for a pending route; nothing for a listing or an unknown path.
    // Billing has no place of its own in this client and lands on the listings.
    static std::optional<AccountRoute> forPush(const PushRoute& route);
};

inline size_t qHash(const AccountRoute& route, size_t seed = 0)
{
    return qHashMulti(seed, int(route.kind), route.first, route.second);
}

} // namespace vl
