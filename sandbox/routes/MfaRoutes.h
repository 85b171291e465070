#pragma once

namespace vl {

class Router;
struct Context;

// The second factor under /api/candidate/: from a ticket to the session cookie, with an
// authenticator app (TOTP) or a recovery code, the mail-only path, and sign-out. Passkeys are
// offered their challenges but never verified here: a sandbox holds no authenticator.
namespace MfaRoutes {
void install(Router& router, Context& context);
}

} // namespace vl
