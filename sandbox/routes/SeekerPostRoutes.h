#pragma once

namespace vl {

class Router;
struct Context;

// Public seeker profiles: posting one, reading one, and an employer writing to its author.
namespace SeekerPostRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
