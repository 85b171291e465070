// Every decoder of the service's answers, fed the same bytes: none may crash, hang or read out of
// bounds, whatever arrives.

#include "core/applying/CandidateActivityPayload.h"
#include "core/applying/CandidateApplication.h"
#include "core/applying/CandidateCredential.h"
#include "core/applying/CvCheckPayload.h"
#include "core/applying/MyActivityPayload.h"
#include "core/applying/SeekerRecords.h"
#include "core/conversations/ChatItem.h"
#include "core/discovery/BoardSummary.h"
#include "core/discovery/JobDetail.h"
#include "core/format/Iso8601.h"
#include "core/identity/CandidateReplies.h"
#include "core/identity/OAuthCallback.h"
#include "core/identity/WebAuthn.h"
#include "core/service/Answer.h"
#include "core/service/SmallResults.h"
#include "core/session/ConfigPayload.h"
#include "core/session/MePayload.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vl;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const int status : {200, 413}) {
        (void)answer::read<ConfigPayload>(bytes, status);
        (void)answer::read<JobDetail>(bytes, status);
        (void)answer::read<BoardSummary>(bytes, status);
        (void)answer::read<MePayload>(bytes, status);
        (void)answer::read<AuthVerifyPayload>(bytes, status);
        (void)answer::read<Nothing>(bytes, status);
        (void)answer::read<CandidateCredential>(bytes, status);
        (void)answer::read<CvCheckPayload>(bytes, status);
        (void)answer::read<MyActivityPayload>(bytes, status);
        (void)answer::read<CandidateActivityPayload>(bytes, status);
        (void)answer::read<CandidateCvUpdate>(bytes, status);
        (void)answer::read<CvTextPayload>(bytes, status);
        (void)answer::read<SeekerDetail>(bytes, status);
        (void)answer::read<HsMeOnly>(bytes, status);
        (void)answer::readPage<JobSummary>(bytes, status);
        (void)answer::readChatSend<Done>(bytes, status);
        (void)candidateReply::readEnvelope<Adopted>(bytes, status);
        (void)candidateReply::readEnvelope<Ticket>(bytes, status);
        (void)candidateReply::readFactor<FactorState>(bytes, status);
        (void)candidateReply::readFactor<FactorDone>(bytes, status);
        (void)candidateReply::readFactor<RegOptions>(bytes, status);
        (void)candidateReply::readFactor<candidateReply::Done>(bytes, status);
    }
    if (const auto conversation = answer::read<CandidateConversation>(bytes, 200))
        (void)ChatItem::merged(conversation->messages, conversation->calls);
    if (const auto page = answer::readPage<JobSummary>(bytes, 200)) {
        for (const JobSummary& job : page->items)
            (void)job.boardDate();
    }
    (void)parseIso8601(QString::fromUtf8(bytes));
    (void)parseOAuthCallback(QUrl(QString::fromUtf8(bytes)));
    (void)decodeChallenge(QString::fromUtf8(bytes));
    return 0;
}
