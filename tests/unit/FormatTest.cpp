#include "core/format/Format.h"

#include <QTimeZone>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

using namespace vl;

namespace {

QDateTime utc(int y, int mo, int d, int h, int mi)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi), QTimeZone::utc());
}

} // namespace

TEST(FormatSalary, OneAmountRangeOrNothing)
{
    EXPECT_EQ(Format::salary(1200, 1200), QStringLiteral("₾1200"));
    EXPECT_EQ(Format::salary(std::nullopt, 1500), QStringLiteral("₾1500"));
    EXPECT_EQ(Format::salary(800, std::nullopt), QStringLiteral("₾800"));
    EXPECT_EQ(Format::salary(1000, 1500), QStringLiteral("₾1000–1500"));
    EXPECT_EQ(Format::salary(1000000, 2000000), QStringLiteral("₾1000000–2000000"));
    EXPECT_EQ(Format::salary(std::nullopt, std::nullopt), QString());
    EXPECT_EQ(Format::salary(0, std::nullopt), QStringLiteral("₾0"));
}

TEST(FormatGrouped, SeparatorsByLanguage)
{
    EXPECT_EQ(Format::grouped(1234567, Lang::en), QStringLiteral("1,234,567"));
    EXPECT_EQ(Format::grouped(1234567, Lang::ka), QStringLiteral("1,234,567"));
    EXPECT_EQ(Format::grouped(-1234, Lang::ru), QStringLiteral("-1\u00A0234"));
    EXPECT_EQ(Format::grouped(1234567, Lang::ru), QStringLiteral("1\u00A0234\u00A0567"));
    EXPECT_EQ(Format::grouped(0, Lang::ka), QStringLiteral("0"));
}

TEST(FormatGrouped, GroupBoundaries)
{
    EXPECT_EQ(Format::grouped(999, Lang::en), QStringLiteral("999"));
    EXPECT_EQ(Format::grouped(1000, Lang::en), QStringLiteral("1,000"));
    EXPECT_EQ(Format::grouped(-999, Lang::en), QStringLiteral("-999"));
    EXPECT_EQ(Format::grouped(-100000, Lang::en), QStringLiteral("-100,000"));
    EXPECT_EQ(Format::grouped(std::numeric_limits<qint64>::min(), Lang::en),
              QStringLiteral("-9,223,372,036,854,775,808"));
    EXPECT_EQ(Format::grouped(std::numeric_limits<qint64>::max(), Lang::en),
              QStringLiteral("9,223,372,036,854,775,807"));
}

TEST(FormatParseDate, BothInternetForms)
{
    const QDateTime expected = utc(2026, 3, 1, 9, 0);
    EXPECT_EQ(Format::parseDate(u"2026-03-01T09:00:00Z"), expected);
    EXPECT_EQ(Format::parseDate(u"2026-03-01T09:00:00.000Z"), expected);
    EXPECT_EQ(Format::parseDate(u"2026-03-01T13:00:00+04:00"), expected);
    EXPECT_EQ(Format::parseDate(u"2026-03-01T09:00:00.250Z")->time().msec(), 250);
}

TEST(FormatParseDate, AnythingElseIsNoDate)
{
    for (const char16_t* text :
         {u"", u"soon", u"2026-03-01", u"2026-03-01 09:00:00Z", u"2026-03-01T09:00:00",
          u"2026-02-30T09:00:00Z", u"2026-03-01T09:00:00Zjunk", u"2026-03-01T09:00:00.Z"})
        EXPECT_FALSE(Format::parseDate(QStringView(text)))
            << QStringView(text).toString().toStdString();
}

TEST(FormatStamp, ServiceZoneWallClock)
{
    EXPECT_EQ(Format::stamp(QStringLiteral("2026-03-01T20:30:00Z")),
              QStringLiteral("02.03.2026 · 00:30"));
    EXPECT_EQ(Format::stamp(QStringLiteral("2026-03-01T05:07:00.999Z")),
              QStringLiteral("01.03.2026 · 09:07"));
    EXPECT_EQ(Format::stamp(QStringLiteral("2026-12-31T23:59:00-01:00")),
              QStringLiteral("01.01.2027 · 04:59"));
}

TEST(FormatStamp, UnreadableTextStaysAsItIs)
{
    EXPECT_EQ(Format::stamp(QStringLiteral("soon")), QStringLiteral("soon"));
    EXPECT_EQ(Format::stamp(QString()), QString());
}

TEST(FormatDayStart, StartOfTheServiceDay)
{
    // 20:30 UTC is already the next day at UTC+4.
    const QDateTime now = utc(2026, 3, 1, 20, 30);
    EXPECT_EQ(Format::dayStart(0, now), utc(2026, 3, 1, 20, 0));
    EXPECT_EQ(Format::dayStart(1, now), utc(2026, 2, 28, 20, 0));
    EXPECT_EQ(Format::dayStart(7, utc(2026, 3, 1, 19, 59)), utc(2026, 2, 21, 20, 0));
    EXPECT_EQ(Format::dayStart(0, now).offsetFromUtc(), 4 * 3600);
}

// dateTime and date follow the machine's clock, unlike everything else here.
class FormatLocalDates : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* previous = std::getenv("TZ");
        saved = previous ? std::optional<QByteArray>(previous) : std::nullopt;
    }
    void TearDown() override
    {
        if (saved)
            qputenv("TZ", *saved);
        else
            qunsetenv("TZ");
    }
    static void useZone(const char* tz) { qputenv("TZ", tz); }

private:
    std::optional<QByteArray> saved;
};

TEST_F(FormatLocalDates, ShortDateAndTimePerLanguage)
{
    useZone("UTC0");
    const std::optional<QString> at = QStringLiteral("2026-03-01T09:05:00Z");
    EXPECT_EQ(Format::dateTime(at, Lang::en), QStringLiteral("3/1/26, 9:05 AM"));
    EXPECT_EQ(Format::dateTime(at, Lang::ka), QStringLiteral("01.03.26, 09:05"));
    EXPECT_EQ(Format::dateTime(at, Lang::ru), QStringLiteral("01.03.2026, 09:05"));
}

TEST_F(FormatLocalDates, MediumDatePerLanguage)
{
    useZone("UTC0");
    const std::optional<QString> at = QStringLiteral("2026-03-01T09:05:00.000Z");
    EXPECT_EQ(Format::date(at, Lang::en), QStringLiteral("Mar 1, 2026"));
    EXPECT_EQ(Format::date(at, Lang::ka), QStringLiteral("1 მარ. 2026"));
    EXPECT_EQ(Format::date(at, Lang::ru), QStringLiteral("1 мар. 2026 г."));
    const std::optional<QString> may = QStringLiteral("2026-05-09T12:00:00Z");
    EXPECT_EQ(Format::date(may, Lang::ru), QStringLiteral("9 мая 2026 г."));
    EXPECT_EQ(Format::date(may, Lang::ka), QStringLiteral("9 მაი. 2026"));
}

TEST_F(FormatLocalDates, FollowTheMachineZone)
{
    useZone("<+04>-4");
    const std::optional<QString> at = QStringLiteral("2026-03-01T20:30:00Z");
    EXPECT_EQ(Format::dateTime(at, Lang::en), QStringLiteral("3/2/26, 12:30 AM"));
    EXPECT_EQ(Format::date(at, Lang::en), QStringLiteral("Mar 2, 2026"));
    useZone("<-05>5");
    EXPECT_EQ(Format::dateTime(at, Lang::ru), QStringLiteral("01.03.2026, 15:30"));
}

TEST_F(FormatLocalDates, NothingForMissingOrUnreadable)
{
    EXPECT_EQ(Format::dateTime(std::nullopt, Lang::en), QString());
    EXPECT_EQ(Format::date(std::nullopt, Lang::ka), QString());
    EXPECT_EQ(Format::dateTime(QStringLiteral("tomorrow"), Lang::ru), QString());
    EXPECT_EQ(Format::date(QStringLiteral("2026-03-01"), Lang::en), QString());
}
