#include "core/navigation/HandOverReader.h"

#include <gtest/gtest.h>

using namespace vl;

TEST(HandOverReader, LinksEndAtNewlinesWhereverTheBytesAreCut)
{
    HandOverReader reader;
    EXPECT_TRUE(reader.feed("velm://auth?t=1").isEmpty()); // not complete yet
    EXPECT_EQ(reader.feed("&e=a\r\n\nhttps://velmora.ge/ka/vacancy/x1\npartial"),
              (QStringList{QStringLiteral("velm://auth?t=1&e=a"), QString(),
                           QStringLiteral("https://velmora.ge/ka/vacancy/x1")}));
    EXPECT_EQ(reader.feed("\n"), QStringList{QStringLiteral("partial")});
    EXPECT_EQ(reader.feed("\xc3\x28\n").size(), 1); // bad UTF-8 still ends one link
    EXPECT_FALSE(reader.overflowed());
}

TEST(HandOverReader, AnOverlongLineStopsTheReader)
{
    HandOverReader reader;
    const QByteArray longest(HandOverReader::maxLink, 'a');
    EXPECT_EQ(reader.feed(longest + "\n").value(0).size(), HandOverReader::maxLink);

    EXPECT_TRUE(reader.feed(longest).isEmpty());
    EXPECT_FALSE(reader.overflowed());
    // One byte past the bound, even without a newline yet: no link, and nothing after it.
    EXPECT_TRUE(reader.feed("b").isEmpty());
    EXPECT_TRUE(reader.overflowed());
    EXPECT_TRUE(reader.feed("\nvelm://later\n").isEmpty());
}
