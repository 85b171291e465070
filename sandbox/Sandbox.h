#pragma once

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/SandboxOptions.h"
#include "sandbox/Server.h"
#include "sandbox/Store.h"
#include "sandbox/dev/FaultTable.h"
#include "sandbox/dev/Outbox.h"
#include "sandbox/dev/RequestLog.h"

namespace vl {

// The whole service: store, seed, routes and the HTTP front, in dependency order.
class Sandbox {
public:
    explicit Sandbox(SandboxOptions options);

    // Opens and seeds the store, then listens. Prints the listening line; false on failure.
    bool start();

private:
    void seed();
    void installRoutes();

    SandboxOptions m_options;
    Clock m_clock;
    Store m_store;
    Outbox m_outbox;
    RequestLog m_requests;
    FaultTable m_faults;
    Context m_context;
    Router m_router;
    Server m_server;
};

} // namespace vl
