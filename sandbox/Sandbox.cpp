#include "sandbox/Sandbox.h"

#include "sandbox/routes/ApplyRoutes.h"
#include "sandbox/routes/AuthRoutes.h"
#include "sandbox/routes/BoardRoutes.h"
#include "sandbox/routes/CandidateRoutes.h"
#include "sandbox/routes/ConfigRoutes.h"
#include "sandbox/routes/DevRoutes.h"
#include "sandbox/routes/MfaRoutes.h"
#include "sandbox/routes/MyApplicationRoutes.h"
#include "sandbox/routes/OAuthRoutes.h"
#include "sandbox/routes/SeekerPostRoutes.h"
#include "sandbox/seed/ApplicationSeed.h"
#include "sandbox/seed/EmployerSeed.h"
#include "sandbox/seed/ListingSeed.h"
#include "sandbox/seed/SeekerPostSeed.h"
#include "sandbox/seed/SeekerSeed.h"

#include <QTextStream>

namespace vl {

Sandbox::Sandbox(SandboxOptions options)
    : m_options(std::move(options))
    , m_clock(m_options.now)
    , m_outbox(m_clock)
    , m_context{m_store, m_clock, m_outbox, m_requests, m_faults, m_options}
    , m_server(m_router, m_requests, m_faults)
{
}

bool Sandbox::start()
{
    if (!m_store.open(m_options.database))
        return false;
    if (m_store.seededAt())
        ListingSeed::keepCurrent(m_store, m_clock);
    else
        seed();
    installRoutes();
    const quint16 port = m_server.start(m_options.port);
    if (port == 0) {
        QTextStream(stderr) << "velmora-sandbox: cannot listen on 127.0.0.1:" << m_options.port
                            << '\n';
        return false;
    }
    QTextStream out(stdout);
    out << "velmora-sandbox listening on http://127.0.0.1:" << port << '\n';
    out.flush();
    return true;
}

void Sandbox::seed()
{
    m_store.begin();
    ListingSeed::write(m_store, m_clock, EmployerSeed::write(m_store, m_clock));
    SeekerSeed::write(m_store, m_clock);
    ApplicationSeed::write(m_store, m_clock);
    SeekerPostSeed::write(m_store, m_clock);
    m_store.markSeeded(m_clock.now());
    m_store.commit();
}

void Sandbox::installRoutes()
{
    DevRoutes::install(m_router, m_context);
    ConfigRoutes::install(m_router, m_context);
    AuthRoutes::install(m_router, m_context);
    BoardRoutes::install(m_router, m_context);
    CandidateRoutes::install(m_router, m_context);
    MfaRoutes::install(m_router, m_context);
    OAuthRoutes::install(m_router, m_context);
    ApplyRoutes::install(m_router, m_context);
    MyApplicationRoutes::install(m_router, m_context);
    SeekerPostRoutes::install(m_router, m_context);
}

} // namespace vl
