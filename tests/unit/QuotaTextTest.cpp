#include "core/l10n/QuotaText.h"

#include "core/format/Translit.h"

#include <gtest/gtest.h>

using namespace vl;
using QuotaText::Key;

TEST(QuotaText, EveryKeyInEveryLanguage)
{
    for (int i = 0; i <= static_cast<int>(Key::writeBlocked); ++i) {
        const auto key = static_cast<Key>(i);
        const QString en = QuotaText::text(key, Lang::en);
        const QString ka = QuotaText::text(key, Lang::ka);
        const QString ru = QuotaText::text(key, Lang::ru);
        EXPECT_FALSE(en.isEmpty()) << i;
        EXPECT_TRUE(Translit::hasGeorgian(ka)) << i;
        EXPECT_TRUE(Translit::hasCyrillic(ru)) << i;
        for (const QLatin1StringView mark : {QLatin1StringView("{0}"), QLatin1StringView("{1}")}) {
            EXPECT_EQ(ka.count(mark), en.count(mark)) << i;
            EXPECT_EQ(ru.count(mark), en.count(mark)) << i;
        }
    }
}

TEST(QuotaText, EnglishAndSubstitution)
{
    EXPECT_EQ(QuotaText::text(Key::locked, Lang::en), QStringLiteral("Not opened yet"));
    EXPECT_EQ(QuotaText::text(Key::count, Lang::en, 2, 5),
              QStringLiteral("Free applications this week: 2 of 5"));
    EXPECT_EQ(QuotaText::text(Key::useCredit, Lang::en, 12),
              QStringLiteral("This uses 1 of your 12 credits"));
    EXPECT_EQ(QuotaText::text(Key::count, Lang::en, 2),
              QStringLiteral("Free applications this week: 2 of {1}"));
    for (const Lang lang : allLangs) {
        const QString count = QuotaText::text(Key::count, lang, 3, 10);
        EXPECT_TRUE(count.contains(QStringLiteral("3")) && count.contains(QStringLiteral("10")));
        EXPECT_FALSE(count.contains(u'{'));
    }
}

TEST(QuotaText, ValueOutsideTheEnumGivesNothing)
{
    const auto outside = static_cast<Key>(static_cast<int>(Key::writeBlocked) + 1);
    EXPECT_EQ(QuotaText::text(outside, Lang::en), QString());
    EXPECT_EQ(QuotaText::text(outside, Lang::ka, 1, 2), QString());
}
