#include "core/service/Answer.h"

#include "core/service/JsonBody.h"
#include "core/service/MultipartForm.h"
#include "core/service/SmallResults.h"

#include <gtest/gtest.h>

using namespace vl;

TEST(Answer, EnvelopeDecidesBeforeStatus)
{
    const auto rate = answer::read<Done>(R"({"ok":false,"error":"rate"})", 500);
    ASSERT_FALSE(rate);
    EXPECT_EQ(rate.error(), APIError::server(QStringLiteral("rate")));

    const auto unauthorised = answer::read<Done>(R"({"ok":true,"data":{"done":true}})", 401);
    ASSERT_TRUE(unauthorised);
    EXPECT_TRUE(unauthorised->done);

    EXPECT_EQ(answer::read<Done>("<html>proxy</html>", 200).error(), APIError::http(200));
    EXPECT_EQ(answer::read<Done>(R"({"ok":true})", 200).error(),
              APIError::server(QStringLiteral("generic")));
    EXPECT_EQ(answer::read<Done>(R"({"ok":false})", 200).error(),
              APIError::server(QStringLiteral("generic")));
    EXPECT_EQ(answer::read<Done>(R"({"data":{"done":true}})", 200).error(), APIError::http(200));
    // A payload that does not fit its record fails the whole answer, whatever `ok` says.
    EXPECT_EQ(answer::read<Done>(R"({"ok":true,"data":{"done":"yes"}})", 200).error(),
              APIError::http(200));
    EXPECT_EQ(answer::read<Nothing>(R"({"ok":true,"data":{"anything":1}})", 200).ok(), true);
    EXPECT_EQ(answer::read<Nothing>(R"({"ok":true,"data":[]})", 200).error(), APIError::http(200));
}

TEST(Answer, ListsCarryTheirPaging)
{
    const auto page = answer::readPage<Done>(
        R"({"ok":true,"data":[{"done":true}],"meta":{"page":1,"per":30,"total":31,"more":true,"postedToday":4}})",
        200);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->items.size(), 1u);
    EXPECT_TRUE(page->more());
    EXPECT_EQ(page->meta->postedToday, 4);

    const auto bare = answer::readPage<Done>(R"({"ok":true,"data":[]})", 200);
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->more());
    EXPECT_EQ(answer::readPage<Done>(R"({"ok":true,"meta":null})", 200).error(),
              APIError::server(QStringLiteral("generic")));
}

TEST(Answer, ChatSendsAreReadLoosely)
{
    const auto tooLarge = answer::readChatSend<Done>("<html>413</html>", 413);
    ASSERT_FALSE(tooLarge);
    EXPECT_EQ(tooLarge.error(), (ChatRefusal{QStringLiteral("size"), std::nullopt, 413}));
    EXPECT_EQ(answer::readChatSend<Done>("<html>502</html>", 502).error().code,
              QStringLiteral("http"));

    const auto refused = answer::readChatSend<Done>(
        R"({"ok":false,"error":"offplatform","message":"","text":"Keep it on Velmora"})", 422);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), (ChatRefusal{QStringLiteral("offplatform"),
                                            QStringLiteral("Keep it on Velmora"), 422}));
    EXPECT_EQ(answer::readChatSend<Done>(R"({"ok":false})", 400).error().code,
              QStringLiteral("generic"));

    // Sent, but the conversation in the answer does not read: still done, with nothing.
    const auto odd = answer::readChatSend<Done>(R"({"ok":true,"data":{"x":1}})", 200);
    ASSERT_TRUE(odd);
    EXPECT_FALSE(odd.value());
    const auto full = answer::readChatSend<Done>(R"({"ok":true,"data":{"done":true}})", 200);
    ASSERT_TRUE(full);
    EXPECT_TRUE(full.value()->done);
}

TEST(Bodies, MultipartIsWrittenByteForByte)
{
    MultipartForm form(QStringLiteral("vl-B"));
    form.text(QStringLiteral("key"), QStringLiteral("k1"));
    form.textIfAny(QStringLiteral("note"), QString());
    form.file(QStringLiteral("cv"), QStringLiteral("a\"b\r\n.pdf"),
              QStringLiteral("application/pdf"), QByteArray("%PDF\x00\x01", 6));
    EXPECT_EQ(form.contentType(), "multipart/form-data; boundary=vl-B");
    static const char expected[] =
        "--vl-B\r\nContent-Disposition: form-data; name=\"key\"\r\n\r\nk1\r\n"
        "--vl-B\r\nContent-Disposition: form-data; name=\"cv\"; filename=\"a'b.pdf\"\r\n"
        "Content-Type: application/pdf\r\n\r\n%PDF\x00\x01\r\n--vl-B--\r\n";
    EXPECT_EQ(form.body(), QByteArray(expected, sizeof(expected) - 1));
    EXPECT_TRUE(MultipartForm().boundary().startsWith(QStringLiteral("vl-")));
    EXPECT_NE(MultipartForm().boundary(), MultipartForm().boundary());
}

TEST(Bodies, AbsentStringsAreLeftOut)
{
    EXPECT_EQ(stringBody({{QStringLiteral("a"), std::nullopt},
                          {QStringLiteral("b"), QStringLiteral("x")}}),
              QByteArray(R"({"b":"x"})"));
    EXPECT_EQ(stringBody({{QStringLiteral("a"), QString()}}), QByteArray(R"({"a":""})"));
}
