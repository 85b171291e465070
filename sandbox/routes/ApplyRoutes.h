#pragma once

namespace vl {

class Router;
struct Context;

// Sending applications and questions, the CV check, and the job seeker's season standing.
namespace ApplyRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
