#include "core/identity/CandidateReplies.h"
#include "core/identity/OAuthCallback.h"
#include "core/identity/StoredEntries.h"
#include "core/identity/TotpKey.h"
#include "core/identity/WebAuthn.h"

#include <gtest/gtest.h>

using namespace vl;

TEST(WebAuthn, ChallengesArePaddedToWholeQuadsAndSignaturesLoseTheirPadding)
{
    // 32 bytes give 43 characters, 31 give 42, 33 give 44.
    for (int size : {31, 32, 33}) {
        QByteArray bytes(size, '\0');
        for (int i = 0; i < size; ++i)
            bytes[i] = char(0xfb + i * 7);
        const QString encoded = encodeWebAuthn(bytes);
        EXPECT_FALSE(encoded.contains(u'=')) << size;
        EXPECT_FALSE(encoded.contains(u'+') || encoded.contains(u'/')) << size;
        EXPECT_EQ(decodeChallenge(encoded), bytes) << size;
    }
    // Two bytes give "==" in standard base64; none of it goes out.
    EXPECT_EQ(encodeWebAuthn(QByteArray::fromHex("fbff")), QStringLiteral("-_8"));
    EXPECT_EQ(decodeChallenge(QStringLiteral("-_8")), QByteArray::fromHex("fbff"));
    EXPECT_EQ(decodeChallenge(QStringLiteral("not base64!")), QByteArray());
    EXPECT_EQ(decodeChallenge(QString()), QByteArray());
}

TEST(TotpKey, TheLinkCarriesTheSecretAsIsAndTheDisplayGroupsItByFour)
{
    EXPECT_EQ(otpauthUri(QStringLiteral("ABC+DEF")),
              QStringLiteral("otpauth://totp/Velmora:?secret=ABC+DEF&issuer=Velmora"));
    EXPECT_EQ(groupedSecret(QStringLiteral("ABCDEFGHIJ")), QStringLiteral("ABCD EFGH IJ"));
    EXPECT_EQ(groupedSecret(QStringLiteral("ABCDEFGH")), QStringLiteral("ABCD EFGH"));
    EXPECT_EQ(groupedSecret(QString()), QString());
    EXPECT_EQ(groupedSecret(QStringLiteral("აბგდე")), QStringLiteral("აბგდ ე"));
}

TEST(OAuthCallback, NeedsBothTheTicketAndTheAddressAndTakesTheFirstOfEach)
{
    const auto both = parseOAuthCallback(QUrl(QStringLiteral("velm://auth?t=T1&e=a%40b.ge&t=T2")));
    ASSERT_TRUE(both);
    EXPECT_EQ(both->ticket, QStringLiteral("T1"));
    EXPECT_EQ(both->email, QStringLiteral("a@b.ge"));
    EXPECT_FALSE(parseOAuthCallback(QUrl(QStringLiteral("velm://auth?t=T1"))));
    EXPECT_FALSE(parseOAuthCallback(QUrl(QStringLiteral("velm://auth?e=a@b.ge"))));
    EXPECT_FALSE(parseOAuthCallback(QUrl(QStringLiteral("velm://auth"))));
    EXPECT_FALSE(parseOAuthCallback(QUrl()));
}

TEST(CandidateReplies, FactorCallsReadTheBareRecordOrTheErrorText)
{
    using candidateReply::readFactor;
    EXPECT_EQ(readFactor<vl::Setup>(R"({"secret":"S"})", 200)->secret, QStringLiteral("S"));
    EXPECT_EQ(readFactor<vl::Setup>("<html>", 200).error(), APIError::http(200));
    EXPECT_EQ(readFactor<vl::Setup>(R"({"error":"code mismatch"})", 400).error(),
              APIError::server(QStringLiteral("code")));
    EXPECT_EQ(readFactor<vl::Setup>(R"({"error":"Code mismatch"})", 400).error(),
              APIError::server(QStringLiteral("Code mismatch")));
    EXPECT_EQ(readFactor<vl::Setup>(R"({})", 429).error(),
              APIError::server(QStringLiteral("generic")));
    EXPECT_EQ(readFactor<vl::Setup>("<html>", 502).error(),
              APIError::server(QStringLiteral("generic")));

    const auto state = readFactor<FactorState>(R"({"enrolled":true,"email":"a@b"})", 200);
    ASSERT_TRUE(state);
    EXPECT_FALSE(state->mailOnly.value_or(false));
    const auto done = readFactor<FactorDone>(R"({"next":"/account"})", 200);
    ASSERT_TRUE(done);
    EXPECT_FALSE(done->recovery);
}

TEST(CandidateReplies, EnvelopeCallsReadAnEmptyNoOrAnEmptyYesAsAWrongCode)
{
    using candidateReply::readEnvelope;
    EXPECT_EQ(readEnvelope<Ticket>(R"({"ok":false})", 400).error(),
              APIError::server(QStringLiteral("code")));
    EXPECT_EQ(readEnvelope<Ticket>(R"({"ok":true})", 200).error(),
              APIError::server(QStringLiteral("code")));
    EXPECT_EQ(readEnvelope<Ticket>("not json", 200).error(), APIError::http(200));
    EXPECT_EQ(readEnvelope<Ticket>(R"({"ok":false,"error":"rate"})", 200).error(),
              APIError::server(QStringLiteral("rate")));
    EXPECT_EQ(readEnvelope<Ticket>(R"({"ok":true,"data":{"ticket":"T"}})", 500)->ticket,
              QStringLiteral("T"));
}

TEST(StoredEntries, CreatedAtIsAMomentThatSurvivesTheStore)
{
    const QDateTime sent(QDate(2026, 5, 1), QTime(10, 0, 0, 250), Qt::UTC);
    const CandidateEntry entry{QStringLiteral("A1"),          QStringLiteral("k"),
                               QStringLiteral("Cook"),        QStringLiteral("Kodari"),
                               QStringLiteral("application"), sent};
    const auto back = json::decode<std::vector<CandidateEntry>>(json::encode(std::vector{entry}));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->at(0).createdAt, sent);

    // Another zone is the same moment; a text that is no moment, or a number, fails the list.
    const auto zoned = json::decode<std::vector<SeekerProfileEntry>>(
        R"([{"ref":"S","key":"k","title":"t","createdAt":"2026-05-01T14:00:00.250+04:00"}])");
    ASSERT_TRUE(zoned);
    EXPECT_EQ(zoned->at(0).createdAt, sent);
    EXPECT_FALSE(json::decode<std::vector<SeekerProfileEntry>>(
        R"([{"ref":"S","key":"k","title":"t","createdAt":"yesterday"}])"));
    EXPECT_FALSE(json::decode<std::vector<SeekerProfileEntry>>(
        R"([{"ref":"S","key":"k","title":"t","createdAt":799322400}])"));
}
