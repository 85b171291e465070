#pragma once

#include <QString>
#include <optional>

namespace vl {

// Places a link may point at that are neither a listing nor a conversation.
enum class PushPlace { reputation, listings, seekerInbox, support, billing, verify };

QString rawValue(PushPlace place);

// Where a link or a notification's path leads.
struct PushRoute {
    enum class Kind { job, application, thread, candidate, place, unknown };

    Kind kind = Kind::unknown;
    // The ref, id or path the route carries; empty for a place.
    QString value;
    PushPlace place = PushPlace::reputation;

    static PushRoute job(QString ref) { return {Kind::job, std::move(ref), {}}; }
    static PushRoute application(QString id) { return {Kind::application, std::move(id), {}}; }
    static PushRoute thread(QString id) { return {Kind::thread, std::move(id), {}}; }
    static PushRoute candidate(QString ref) { return {Kind::candidate, std::move(ref), {}}; }
    static PushRoute at(PushPlace place) { return {Kind::place, {}, place}; }
    static PushRoute unknown(QString path) { return {Kind::unknown, std::move(path), {}}; }

    bool operator==(const PushRoute&) const = default;
};

} // namespace vl
