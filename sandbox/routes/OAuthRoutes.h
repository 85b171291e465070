#pragma once

namespace vl {

class Router;
struct Context;

// The stand-in for Google's sign-in: a page of test accounts, each a link that ends in the
// client's `velm://auth` callback with a fresh ticket, as the real provider's round trip would.
namespace OAuthRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
