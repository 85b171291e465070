#pragma once

namespace vl {

class Router;
struct Context;

// The job seeker's first factor and session under /api/app/v1: the mailed code, its ticket,
// and adoption of an employer's address.
namespace CandidateRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
