#pragma once

#include "app/applying/ApplyServices.h"

#include <QString>

namespace vl {
class AppContext;
}

namespace vl::test {

class SandboxProcess;

// Signs a seeded job seeker in through the gate with the code the sandbox mailed; true once
// signed in.
bool signInJobSeeker(AppContext& context, const SandboxProcess& sandbox, const QString& email);

// What the applying sheets need, with the last CV kept under `folder` instead of the user's
// data folder.
ApplyServices applyServicesIn(AppContext& context, const QString& folder);

} // namespace vl::test
