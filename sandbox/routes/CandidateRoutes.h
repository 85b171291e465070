#pragma once

namespace vl {

class Router;
struct Context;

// The job seeker's first factor and session under /api/app/v1: the mailed code, its ticket,
// adoption of an employer's address, and the seeker's own activity.
namespace CandidateRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
