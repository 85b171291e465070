#pragma once

namespace vl {

class Router;
struct Context;

// GET config: taxonomy, feature flags and the version gate.
namespace ConfigRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
