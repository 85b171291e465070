#pragma once

namespace vl {

class Router;
struct Context;

// Development-only routes under /dev/: the outbox, the request log, faults and the clock.
namespace DevRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
