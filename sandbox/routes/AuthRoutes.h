#pragma once

namespace vl {

class Router;
struct Context;

// The employer's identity: code sign-in, the account summary, profile, sign-out, deletion.
namespace AuthRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
