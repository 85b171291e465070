#include "core/navigation/AccountRoute.h"

namespace vl {

std::optional<AccountRoute> AccountRoute::forPush(const PushRoute& route)
{
    using K = PushRoute::Kind;
    switch (route.kind) {
    case K::application:
        return application(route.value);
    case K::thread:
        return thread(route.value);
    case K::candidate:
        return candidate(route.value);
    case K::job:
    case K::unknown:
        return std::nullopt;
    case K::place:
        break;
    }
    switch (route.place) {
    case PushPlace::reputation:
        return plain(Kind::reputation);
    case PushPlace::listings:
    case PushPlace::billing:
        return plain(Kind::listings);
    case PushPlace::seekerInbox:
        return plain(Kind::seekerInbox);
    case PushPlace::support:
        return plain(Kind::support);
    case PushPlace::verify:
        break;
    }
    return plain(Kind::verify);
}

} // namespace vl
