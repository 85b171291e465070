#pragma once

namespace vl {

class Router;
struct Context;

// What anybody can read: the board's pages, its summary, and one listing in full.
namespace BoardRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
