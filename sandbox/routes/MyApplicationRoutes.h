#pragma once

namespace vl {

class Router;
struct Context;

// The job seeker's own applications: the activity lists, reading one, withdrawing, a newer CV,
// and the CV's text.
namespace MyApplicationRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
