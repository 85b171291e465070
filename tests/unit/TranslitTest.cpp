#include "core/format/Translit.h"

#include <gtest/gtest.h>

using namespace vl;

TEST(TranslitScripts, DetectsByBlock)
{
    EXPECT_TRUE(Translit::hasGeorgian(u"Nino ნინო"));
    EXPECT_TRUE(Translit::hasGeorgian(u"\u10A0"));
    EXPECT_TRUE(Translit::hasGeorgian(u"\u10FF"));
    EXPECT_FALSE(Translit::hasGeorgian(u"Нино Nino"));
    EXPECT_TRUE(Translit::hasCyrillic(u"Nino Нино"));
    EXPECT_TRUE(Translit::hasCyrillic(u"\u04FF"));
    EXPECT_FALSE(Translit::hasCyrillic(u"ნინო"));
    EXPECT_FALSE(Translit::hasCyrillic(u""));
}

TEST(TranslitLatin, WordsStartWithCapitals)
{
    EXPECT_EQ(Translit::latin(u"თბილისი ბათუმი"), QStringLiteral("Tbilisi Batumi"));
    EXPECT_EQ(Translit::latin(u"щука"), QStringLiteral("Shchuka"));
    EXPECT_EQ(Translit::latin(u"შოთა"), QStringLiteral("Shota"));
    EXPECT_EQ(Translit::latin(u"Юлия Щербакова"), QStringLiteral("Yuliya Shcherbakova"));
    EXPECT_EQ(Translit::latin(u"ნინო-ანა"), QStringLiteral("Nino-Ana"));
    EXPECT_EQ(Translit::latin(u"(ღვინო)"), QStringLiteral("(Ghvino)"));
}

TEST(TranslitLatin, EmptyReplacementsAndOtherLetters)
{
    EXPECT_EQ(Translit::latin(u""), QString());
    EXPECT_EQ(Translit::latin(u"ъ"), QString());
    // A hard sign still ends the word start, so the next letter stays small.
    EXPECT_EQ(Translit::latin(u"ъя"), QStringLiteral("ya"));
    EXPECT_EQ(Translit::latin(u"подъезд"), QStringLiteral("Podezd"));
    // A Latin letter inside a word leaves the next replacement small.
    EXPECT_EQ(Translit::latin(u"Xნ"), QStringLiteral("Xn"));
    EXPECT_EQ(Translit::latin(u"2ნ"), QStringLiteral("2N"));
    EXPECT_EQ(Translit::latin(u"Tbilisi"), QStringLiteral("Tbilisi"));
}

TEST(TranslitLatin, CapitalsAreLookedUpInLowerCase)
{
    EXPECT_EQ(Translit::latin(u"ЁЛКА"), QStringLiteral("Yolka"));
    EXPECT_EQ(Translit::latin(u"Щ"), QStringLiteral("Shch"));
}

TEST(TranslitSubtitle, ByReaderAndScript)
{
    EXPECT_FALSE(Translit::subtitle(QStringLiteral("Nino"), Lang::en));
    EXPECT_EQ(Translit::subtitle(QStringLiteral("Нино"), Lang::ka), QStringLiteral("Nino"));
    EXPECT_FALSE(Translit::subtitle(QStringLiteral("ნინო"), Lang::ka));
    EXPECT_EQ(Translit::subtitle(QStringLiteral("ნინო"), Lang::ru), QStringLiteral("Nino"));
    EXPECT_EQ(Translit::subtitle(QStringLiteral("ნინო"), Lang::en), QStringLiteral("Nino"));
    EXPECT_FALSE(Translit::subtitle(QStringLiteral("Нино"), Lang::ru));
    EXPECT_EQ(Translit::subtitle(QStringLiteral("Нино"), Lang::en), QStringLiteral("Nino"));
}

TEST(TranslitSubtitle, TrimmedAndMixedNames)
{
    EXPECT_EQ(Translit::subtitle(QStringLiteral("  ნინო ბერიძე\n"), Lang::en),
              QStringLiteral("Nino Beridze"));
    EXPECT_FALSE(Translit::subtitle(QStringLiteral(" \n\t"), Lang::en));
    EXPECT_FALSE(Translit::subtitle(QString(), Lang::ru));
    // A Georgian reader gets no subtitle for a name with any Georgian in it.
    EXPECT_FALSE(Translit::subtitle(QStringLiteral("Café ნინო"), Lang::ka));
    // Cyrillic letters outside the Russian table stay as they are, so the name reads the same.
    EXPECT_FALSE(Translit::subtitle(QStringLiteral("Її"), Lang::en));
    EXPECT_EQ(Translit::subtitle(QStringLiteral("Anaъ"), Lang::en), QStringLiteral("Ana"));
}

TEST(TranslitLatin, GoesByTheCharactersAReaderSees)
{
    // "й" typed as "и" and a combining breve is the table's "й", and so is "Ё" made of two.
    EXPECT_EQ(Translit::latin(u"\u0438\u0306\u043E\u0433\u0430"), QStringLiteral("Yoga"));
    EXPECT_EQ(Translit::latin(u"\u0415\u0308\u043B\u043A\u0430"), QStringLiteral("Yolka"));
    // A mark on a Latin letter belongs to it (and joins it): the word goes on, the next letter
    // stays small.
    EXPECT_EQ(Translit::latin(u"Cafe\u0301ნ"), QStringLiteral("Caf\u00E9n"));
    // A letter outside the first plane is one letter, not two halves that end a word.
    EXPECT_EQ(Translit::latin(u"\U0001D49Cნ"), QStringLiteral("\U0001D49Cn"));
    // An emoji is no letter: what follows it starts a word.
    EXPECT_EQ(Translit::latin(u"\U0001F600ნინო"), QStringLiteral("\U0001F600Nino"));
}
