#pragma once

#include <QString>

namespace vl {

class Outbox;

// The mails that carry a sign-in code, in the language the code was asked in.
namespace CodeMail {

void sendEmployerCode(Outbox& outbox, const QString& to, const QString& code,
                      const QString& locale);
void sendCandidateCode(Outbox& outbox, const QString& to, const QString& code,
                       const QString& locale);

} // namespace CodeMail

} // namespace vl
