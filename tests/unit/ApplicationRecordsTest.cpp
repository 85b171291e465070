#include "core/applying/ApplicationList.h"
#include "core/applying/CandidateApplication.h"
#include "core/applying/CandidateCredential.h"
#include "core/conversations/ChatItem.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace vl;

namespace {

AppMessageDTO message(const char* id, const char* at)
{
    AppMessageDTO m;
    m.id = QString::fromLatin1(id);
    m.sender = QStringLiteral("employer");
    m.createdAt = QString::fromLatin1(at);
    return m;
}

CallLogDTO call(const char* id, const char* at)
{
    CallLogDTO c;
    c.id = QString::fromLatin1(id);
    c.rangAt = QString::fromLatin1(at);
    return c;
}

QStringList identities(const std::vector<ChatItem>& items)
{
    QStringList out;
    for (const auto& item : items)
        out.append(item.identity());
    return out;
}

} // namespace

TEST(ConversationRecords, CallLogsReadTolerantlyUnderEitherKey)
{
    const auto read = json::decode<std::vector<CallLogDTO>>(
        R"([{"id":"1","caller_side":"employer","rang_at":"2026-03-01T09:00:00Z","duration_s":61.9},
            {"id":"2","kind":7,"durationS":"long"},
            {"id":"3","callerSide":"candidate","caller_side":"employer"}])");
    ASSERT_TRUE(read);
    EXPECT_EQ((*read)[0].callerSide, QStringLiteral("employer"));
    EXPECT_EQ((*read)[0].durationS, 61);
    EXPECT_EQ((*read)[0].kind, QStringLiteral("voice"));
    EXPECT_EQ((*read)[1].status, QStringLiteral("missed"));
    EXPECT_EQ((*read)[1].durationS, 0);
    EXPECT_EQ((*read)[2].callerSide, QStringLiteral("candidate"));
    EXPECT_FALSE(json::decode<std::vector<CallLogDTO>>(R"([{"kind":"voice"}])"));
}

TEST(ConversationRecords, ACandidateConversationNeedsItsApplicationAndMessages)
{
    const QByteArray text = R"({"application":{"ref":"R","kind":"application","status":"new",
        "name":"N","email":"e","message":"m","createdAt":"2026-03-01T09:00:00Z","jobTitle":"J",
        "jobRef":"VL-1","employerName":"E","open":true,
        "cv":{"name":"cv.pdf","canUpdate":true,"left":3,"max":3}},
        "messages":[],"calls":[{"id":"c"}],"hsText":null})";
    const auto read = json::decode<CandidateConversation>(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->application.cv->left, 3);
    EXPECT_FALSE(json::decode<CandidateConversation>(R"({"messages":[]})"));
    EXPECT_TRUE(json::decode<CandidateCredential>(R"({"ref":"R","token":"T"})"));
}

TEST(ChatItem, CallsStandBeforeTheFirstMessageNotOlderThanThem)
{
    const auto items = ChatItem::merged(
        {message("a", "2026-03-01T10:00:00Z"), message("b", "garbled"),
         message("c", "2026-03-01T12:00:00Z")},
        std::vector<CallLogDTO>{call("late", "2026-03-02T00:00:00Z"),
                                call("tie", "2026-03-01T12:00:00Z"), call("old", "nope"),
                                call("early", "2026-03-01T09:00:00Z")});
    EXPECT_EQ(identities(items),
              (QStringList{"c-old", "c-early", "m-a", "m-b", "c-tie", "m-c", "c-late"}));
    EXPECT_EQ(identities(ChatItem::merged({message("a", "x")}, std::nullopt)), QStringList{"m-a"});
}

TEST(ApplicationList, MergesByRefWithTheServicesWordsAndTheStoredKeyNewestFirst)
{
    const auto utc = [](const char* at) {
        return QDateTime::fromString(QString::fromLatin1(at), Qt::ISODate);
    };
    const std::vector<CandidateEntry> stored{
        {"R2", "key2", "Old title", "Old employer", "application", utc("2026-03-05T09:00:00Z")},
        {"R9", "key9", "Device only", "E9", "enquiry", utc("2026-03-03T09:00:00Z")},
        {"R1", "key1", "T1", "E1", "application", utc("2026-03-01T09:00:00Z")}};
    std::vector<MyActivityPayload::App> reported(2);
    reported[0].ref = QStringLiteral("R1");
    reported[0].lastAt = QStringLiteral("2026-03-06T09:00:00Z");
    reported[0].status = QStringLiteral("replied");
    reported[1].ref = QStringLiteral("R5");
    reported[1].jobTitle = QStringLiteral("From the web");
    reported[1].lastAt = QStringLiteral("2026-03-04T09:00:00Z");

    const auto rows = mergeApplications(stored, reported);
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].ref, QStringLiteral("R1"));
    EXPECT_EQ(rows[0].status, QStringLiteral("replied"));
    EXPECT_EQ(rows[0].key, QStringLiteral("key1"));
    EXPECT_TRUE(rows[0].stored && rows[0].reported);
    EXPECT_EQ(rows[1].ref, QStringLiteral("R2"));
    EXPECT_FALSE(rows[1].reported);
    EXPECT_EQ(rows[2].ref, QStringLiteral("R5"));
    EXPECT_TRUE(rows[2].key.isEmpty());
    EXPECT_EQ(rows[3].ref, QStringLiteral("R9"));
}
