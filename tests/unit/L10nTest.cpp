#include "core/l10n/L10n.h"

#include "core/format/Translit.h"

#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace vl;
using L10n::Key;

namespace {

QStringList placeholders(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("\\{[a-z0-9]+\\}"));
    QStringList found;
    for (auto it = pattern.globalMatch(text); it.hasNext();)
        found.append(it.next().captured());
    found.sort();
    return found;
}

// Whether anything is left to translate once placeholders, symbols and the names that stay in
// Latin letters are taken out.
bool hasWords(QString text)
{
    static const QRegularExpression kept(QStringLiteral(
        "\\{[a-z0-9]+\\}|Velmora|WhatsApp|Telegram|Signal|Google|TOTP|Pro|CV|PDF|DOCX|DOC|PNG|"
        "JPEG|JPG|WEBP|GIF|MB|ID"));
    text.remove(kept);
    for (const QChar c : text) {
        if (c.isLetter())
            return true;
    }
    return false;
}

std::string name(Key key)
{
    return QString(L10n::keyName(key)).toStdString();
}

// Runs `check` on every key and lists the keys it failed on, so that one run shows them all.
template <typename Check>
std::vector<std::string> failing(Check check)
{
    std::vector<std::string> failed;
    for (const Key key : L10n::allKeys()) {
        if (!check(key))
            failed.push_back(name(key));
    }
    return failed;
}

} // namespace

TEST(L10nCatalogue, EveryKeyHasTextInEveryLanguage)
{
    for (const Lang lang : allLangs) {
        EXPECT_EQ(failing([&](Key key) { return !L10n::text(key, lang).isEmpty(); }),
                  std::vector<std::string>())
            << "empty in " << rawValue(lang).toStdString();
    }
}

TEST(L10nCatalogue, EachLanguageIsInItsOwnScript)
{
    EXPECT_EQ(failing([](Key key) {
                  const QString ka = L10n::text(key, Lang::ka);
                  return (Translit::hasGeorgian(ka) || !hasWords(ka)) && !Translit::hasCyrillic(ka);
              }),
              std::vector<std::string>());
    EXPECT_EQ(failing([](Key key) {
                  const QString ru = L10n::text(key, Lang::ru);
                  return (Translit::hasCyrillic(ru) || !hasWords(ru)) && !Translit::hasGeorgian(ru);
              }),
              std::vector<std::string>());
    EXPECT_EQ(failing([](Key key) {
                  const QString en = L10n::text(key, Lang::en);
                  return !Translit::hasGeorgian(en) && !Translit::hasCyrillic(en);
              }),
              std::vector<std::string>());
}

TEST(L10nCatalogue, PlaceholdersMatchAcrossLanguages)
{
    EXPECT_EQ(failing([](Key key) {
                  const QStringList en = placeholders(L10n::text(key, Lang::en));
                  return placeholders(L10n::text(key, Lang::ka)) == en &&
                         placeholders(L10n::text(key, Lang::ru)) == en;
              }),
              std::vector<std::string>());
}

TEST(L10nCatalogue, TranslationsKeepTheMarksThatCarryMeaning)
{
    // The lari sign and the middle dot separate parts of a line; an ellipsis says "more comes".
    EXPECT_EQ(failing([](Key key) {
                  const QString en = L10n::text(key, Lang::en);
                  for (const Lang lang : {Lang::ka, Lang::ru}) {
                      const QString text = L10n::text(key, lang);
                      for (const QChar mark : {QChar(0x20BE), QChar(0x00B7), QChar(0x22EF)}) {
                          if (text.count(mark) != en.count(mark))
                              return false;
                      }
                      if (en.contains(QChar(0x2026)) != text.contains(QChar(0x2026)))
                          return false;
                  }
                  return true;
              }),
              std::vector<std::string>());
}

TEST(L10nCatalogue, NoStrayWhitespaceOrAsciiEllipsis)
{
    EXPECT_EQ(failing([](Key key) {
                  for (const Lang lang : allLangs) {
                      const QString text = L10n::text(key, lang);
                      if (text != text.trimmed() || text.contains(QLatin1StringView("  ")) ||
                          text.contains(QLatin1StringView("...")) || text.contains(u'\n'))
                          return false;
                  }
                  return true;
              }),
              std::vector<std::string>());
}

TEST(L10nCatalogue, TranslationsAreNotLeftInEnglish)
{
    EXPECT_EQ(failing([](Key key) {
                  const QString en = L10n::text(key, Lang::en);
                  return !hasWords(en) ||
                         (L10n::text(key, Lang::ka) != en && L10n::text(key, Lang::ru) != en);
              }),
              std::vector<std::string>());
}

TEST(L10nText, EnglishTextsAsWritten)
{
    const std::vector<std::pair<Key, QString>> texts{
        {Key::idvSub, QStringLiteral("Optional. “ID checked” tells employers you are a real, "
                                     "specific person. Applications work exactly the same "
                                     "without it.")},
        {Key::idvVerifiedBody,
         QStringLiteral("Employers now see “ID checked” next to your applications.")},
        {Key::macCheckUpdates, QStringLiteral("Check for Updates…")},
        {Key::voiceSending, QStringLiteral("Sending… transcribing")},
        {Key::qpPay, QStringLiteral("₾1500 and up")},
        {Key::safeStrip, QStringLiteral("Stay on Velmora · never pay to get a job")},
        {Key::macAsBoth, QStringLiteral("Employer · Job seeker")},
        {Key::safeOnce, QStringLiteral("Shown once · the rules stay one tap away in ⋯")},
        {Key::cvUpdatesLeft, QStringLiteral("Updates left: {n} of {max}.")},
        {Key::idvReadLine, QStringLiteral("{doc}, expires {date}")},
        {Key::idvDigitsBad, QStringLiteral("One number does not add up: {what}.")},
        {Key::callRingSub,
         QStringLiteral("{n} gets a ring and a notification. It stops after 45 seconds.")},
        {Key::errCvSize, QStringLiteral("The file is too large (max 5 MB).")},
        {Key::idvInsert, QStringLiteral("Add <")},
        {Key::perMonth, QStringLiteral("/ month")},
        {Key::fyEmployerTitle, QStringLiteral("This is the job seeker's side")},
        {Key::fySavedOnMac, QStringLiteral("Saved on this computer")},
        {Key::reportDanger, QStringLiteral("In danger right now? Call 112.")},
    };
    for (const auto& [key, english] : texts)
        EXPECT_EQ(L10n::text(key, Lang::en), english) << name(key);
}

TEST(L10nText, PlaceholderReplacement)
{
    EXPECT_EQ(L10n::text(Key::pushSentToDevices, Lang::en, 3),
              QStringLiteral("Sent to 3 device(s)."));
    EXPECT_EQ(L10n::text(Key::callMissedFrom, Lang::en, QStringLiteral("Nino")),
              QStringLiteral("Missed call from Nino"));
    EXPECT_EQ(L10n::textNMax(Key::cvUpdatesLeft, Lang::en, 2, 3),
              QStringLiteral("Updates left: 2 of 3."));
    for (const Lang lang : allLangs) {
        const QString filled = L10n::textNMax(Key::cvUpdatesLeft, lang, 2, 3);
        EXPECT_FALSE(filled.contains(u'{')) << filled.toStdString();
        EXPECT_TRUE(filled.contains(u'2') && filled.contains(u'3')) << filled.toStdString();
        EXPECT_TRUE(L10n::text(Key::pushSentToDevices, lang, -7).contains(QStringLiteral("-7")));
    }
}

TEST(L10nText, OtherPlaceholdersAreLeftForTheCaller)
{
    EXPECT_EQ(L10n::text(Key::idvReadLine, Lang::en, 5), QStringLiteral("{doc}, expires {date}"));
    EXPECT_EQ(L10n::text(Key::posted, Lang::en, QStringLiteral("x")),
              QStringLiteral("Posted {date}"));
}

TEST(L10nText, KeyOutsideTheTablesGivesNothing)
{
    const auto outside = static_cast<Key>(L10n::keyCount);
    for (const Lang lang : allLangs) {
        EXPECT_EQ(L10n::text(outside, lang), QString());
        EXPECT_EQ(L10n::text(outside, lang, 4), QString());
    }
    EXPECT_TRUE(L10n::keyName(outside).isEmpty());
}

TEST(L10nText, SameTextFromManyThreadsAtFirstUse)
{
    std::vector<std::vector<QString>> seen(4);
    std::vector<std::thread> threads;
    for (auto& texts : seen) {
        threads.emplace_back([&texts] {
            for (const Key key : L10n::allKeys())
                texts.push_back(L10n::text(key, Lang::ru));
        });
    }
    for (auto& thread : threads)
        thread.join();
    for (const auto& texts : seen)
        EXPECT_EQ(texts, seen.front());
}

TEST(L10nKeys, NamesRoundTrip)
{
    EXPECT_EQ(L10n::keyName(Key::tabJobs), QLatin1StringView("tabJobs"));
    EXPECT_EQ(L10n::keyName(Key::reportDanger), QLatin1StringView("reportDanger"));
    EXPECT_EQ(
        failing([](Key key) { return L10n::keyFromName(QString(L10n::keyName(key))) == key; }),
        std::vector<std::string>());
    EXPECT_FALSE(L10n::keyFromName(u""));
    EXPECT_FALSE(L10n::keyFromName(u"tabjobs"));
    EXPECT_FALSE(L10n::keyFromName(u"tabJobsX"));
    EXPECT_FALSE(L10n::keyFromName(u"zzz"));
}

TEST(L10nKeys, AllKeysInDeclarationOrder)
{
    const auto keys = L10n::allKeys();
    ASSERT_EQ(static_cast<int>(keys.size()), L10n::keyCount);
    for (std::size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(keys[i]), i);
    EXPECT_EQ(keys.front(), Key::tabJobs);
    EXPECT_EQ(keys.back(), Key::reportDanger);
}

TEST(L10nMacVariant, DeviceWordedTextsSwapToTheDesktop)
{
    const std::vector<std::pair<Key, Key>> pairs{
        {Key::fySavedOnPhone, Key::fySavedOnMac},
        {Key::candNoPasskey, Key::candNoPasskeyMac},
        {Key::noApplications, Key::noApplicationsMac},
        {Key::seekerNoAccountNote, Key::seekerNoAccountNoteMac},
        {Key::gigAlertsSub, Key::gigAlertsSubMac},
        {Key::appsOnPhone, Key::appsOnMac},
    };
    for (const auto& [phone, desktop] : pairs) {
        EXPECT_EQ(L10n::macVariant(phone), desktop) << name(phone);
        EXPECT_EQ(L10n::macVariant(desktop), desktop) << name(desktop);
        for (const Lang lang : allLangs)
            EXPECT_NE(L10n::text(phone, lang), L10n::text(desktop, lang)) << name(phone);
    }
    std::size_t unchanged = 0;
    for (const Key key : L10n::allKeys())
        unchanged += L10n::macVariant(key) == key ? 1 : 0;
    EXPECT_EQ(unchanged, L10n::allKeys().size() - pairs.size());
    EXPECT_EQ(L10n::text(L10n::macVariant(Key::appsOnPhone), Lang::en),
              QStringLiteral("Sent from this computer"));
}

TEST(L10n, NoTextNamesAnotherPlatformOrItsVendor)
{
    static const QRegularExpression vendor(
        QStringLiteral("\\bMac\\b|Mac-|macOS|Apple|App Store|iPhone|iCloud"));
    for (const Key key : L10n::allKeys()) {
        for (const Lang lang : allLangs)
            EXPECT_FALSE(L10n::text(key, lang).contains(vendor))
                << name(key) << " " << rawValue(lang).toStdString();
    }
}
