#include "tests/support/ApplyingFixture.h"

#include "app/identity/CandidateGate.h"
#include "app/shell/AppContext.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QDir>

namespace vl::test {

bool signInJobSeeker(AppContext& context, const SandboxProcess& sandbox, const QString& email)
{
    CandidateGate gate(context.candidate, context.appState, [](const QUrl&) { return false; });
    gate.email = email;
    wait(gate.sendCode());
    gate.code = sandbox.lastCode(gate.email);
    wait(gate.verifyCode());
    return context.candidate.signedIn();
}

ApplyServices applyServicesIn(AppContext& context, const QString& folder)
{
    ApplyServices out = ApplyServices::from(context);
    out.lastCvFolder = QDir(folder).filePath(QStringLiteral("lastcv"));
    return out;
}

} // namespace vl::test
