#include "core/discovery/BoardSummary.h"
#include "core/discovery/JobDetail.h"
#include "core/discovery/JobSummary.h"
#include "core/session/ConfigPayload.h"
#include "core/session/MePayload.h"

#include <gtest/gtest.h>

using namespace vl;

namespace {

QByteArray jobJson(const QByteArray& extra = {})
{
    return R"({"ref":"VL1","kind":"vacancy","title":"Barista","employerName":"Cafe",
               "category":"hospitality","city":"tbilisi","employmentType":"full_time",
               "payType":"month","featured":false,"translated":false,"aggregated":false)" +
           extra + "}";
}

} // namespace

TEST(StrictReading, RequiredFieldsMustBePresentAndOfTheirType)
{
    EXPECT_TRUE(json::decode<JobSummary>(jobJson()));
    // A missing required key fails the whole record.
    EXPECT_FALSE(json::decode<JobSummary>(R"({"ref":"VL1"})"));
    // null is no value for a required field.
    EXPECT_FALSE(
        json::decode<JobSummary>(jobJson(R"(,"title":null)").replace(R"("title":"Barista",)", "")));
    // A required boolean given as a number fails.
    EXPECT_FALSE(
        json::decode<JobSummary>(jobJson().replace(R"("featured":false)", R"("featured":0)")));
}

TEST(StrictReading, OptionalFieldsMayBeAbsentOrNullButNotMistyped)
{
    const auto withNulls =
        json::decode<JobSummary>(jobJson(R"(,"salaryMin":null,"employerRep":null)"));
    ASSERT_TRUE(withNulls);
    EXPECT_FALSE(withNulls->salaryMin);
    EXPECT_FALSE(withNulls->employerRep);
    EXPECT_FALSE(json::decode<JobSummary>(jobJson(R"(,"salaryMin":"1000")")));
    // A nested record that does not fit fails the outer one.
    EXPECT_FALSE(json::decode<JobSummary>(jobJson(R"(,"employerRep":{"stars":4.5})")));
}

TEST(StrictReading, UnknownKeysAreIgnoredAndIntegersMustBeWhole)
{
    const auto job =
        json::decode<JobSummary>(jobJson(R"(,"brandNew":{"x":[1,2]},"salaryMax":1500)"));
    ASSERT_TRUE(job);
    EXPECT_EQ(job->salaryMax, 1500);
    EXPECT_FALSE(job->salaryMin); // only a maximum is still a valid listing
    EXPECT_FALSE(json::decode<JobSummary>(jobJson(R"(,"salaryMax":1500.5)")));
    EXPECT_FALSE(json::decode<JobSummary>(jobJson(R"(,"gigHours":1e12)")));
    EXPECT_FALSE(json::decode<JobSummary>("not json"));
    EXPECT_FALSE(json::decode<JobSummary>("[]"));
}

TEST(StrictReading, ListsAndNestedRecordsFailWhole)
{
    const QByteArray good = jobJson();
    const auto two = json::decode<std::vector<JobSummary>>("[" + good + "," + good + "]");
    ASSERT_TRUE(two);
    EXPECT_EQ(two->size(), 2u);
    // One item that does not read fails the list, wherever it stands.
    EXPECT_FALSE(json::decode<std::vector<JobSummary>>("[" + good + R"(,{"ref":"VL2"}])"));
    EXPECT_FALSE(json::decode<std::vector<JobSummary>>("[" + good + ",null]"));
    // A nested record that is null where it is optional reads as absent; a key that only
    // differs in case is an unknown key.
    const auto job = json::decode<JobSummary>(jobJson(R"(,"fit":null,"Ref":7)"));
    ASSERT_TRUE(job);
    EXPECT_FALSE(job->fit);
    EXPECT_EQ(job->ref, QStringLiteral("VL1"));
    // The same object read from a value and from bytes reads the same.
    const QJsonObject object = QJsonDocument::fromJson(good).object();
    EXPECT_EQ(json::read<JobSummary>(QJsonValue(object)), json::decode<JobSummary>(good));
}

TEST(StrictReading, WritingGivesBackWhatWasRead)
{
    const auto job = json::decode<JobSummary>(
        jobJson(R"(,"fit":{"score":81,"band":"good","bandShort":"Good"})"));
    ASSERT_TRUE(job);
    const auto again = json::decode<JobSummary>(json::encode(*job));
    ASSERT_TRUE(again);
    EXPECT_EQ(*again, *job);
    EXPECT_EQ(qHash(*again), qHash(*job));
    JobSummary changed = *job;
    changed.fit->score = 80;
    EXPECT_NE(changed, *job);
    EXPECT_NE(qHash(changed), qHash(*job));
}

TEST(BoardDate, BumpFirstThenPublicationInTwoInternetFormats)
{
    JobSummary job;
    job.bumpedAt = QStringLiteral("2026-03-01T09:00:00.000Z");
    ASSERT_TRUE(job.boardDate());
    EXPECT_EQ(*job.boardDate(), QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC));

    job.bumpedAt.reset();
    job.publishedAt = QStringLiteral("2026-03-01T09:00:00Z");
    ASSERT_TRUE(job.boardDate());
    EXPECT_EQ(*job.boardDate(), QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC));

    job.publishedAt = QStringLiteral("2026-03-01T13:00:00+04:00");
    EXPECT_EQ(*job.boardDate(), QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC));

    job.publishedAt.reset();
    EXPECT_FALSE(job.boardDate());
    for (const char* bad : {"2026-03-01", "2026-03-01 09:00:00Z", "2026-13-01T09:00:00Z",
                            "2026-03-01T09:00:00", "2026-03-01T09:00:00.Z", "yesterday"}) {
        job.publishedAt = QString::fromLatin1(bad);
        EXPECT_FALSE(job.boardDate()) << bad;
    }
}

TEST(ConfigPayload, MissingFeaturesCountAsOnAndLabelsFallBack)
{
    const auto config = json::decode<ConfigPayload>(
        R"({"rev":3,"locales":["ka","en","ru"],
            "categories":[{"key":"it","labels":{"ka":"IT ტექნოლოგიები","en":"IT"}}],
            "cities":[{"key":"gori","labels":{}}],"employmentTypes":[]})");
    ASSERT_TRUE(config);
    EXPECT_TRUE(config->isOn(ConfigPayload::Feature::gigs));
    EXPECT_EQ(config->categories[0].label(Lang::ka), QStringLiteral("IT ტექნოლოგიები"));
    EXPECT_EQ(config->categories[0].label(Lang::ru), QStringLiteral("IT"));
    EXPECT_EQ(config->cities[0].label(Lang::en), QStringLiteral("gori"));
    EXPECT_EQ(labelOf(config->cities, QStringLiteral("poti"), Lang::en), QStringLiteral("poti"));

    auto partial = json::decode<ConfigPayload>(
        R"({"rev":3,"locales":[],"categories":[],"cities":[],"employmentTypes":[],
            "features":{"fit":false,"gigs":null}})");
    ASSERT_TRUE(partial);
    EXPECT_FALSE(partial->isOn(ConfigPayload::Feature::fit));
    EXPECT_TRUE(partial->isOn(ConfigPayload::Feature::gigs));
    EXPECT_TRUE(partial->isOn(ConfigPayload::Feature::cvCheck));
}

TEST(SessionRecords, MeWithoutPlanOrNextStepDecodes)
{
    const auto me = json::decode<MePayload>(
        R"({"employer":{"name":"Tone","email":"hr@tone.ge","locale":"ka","website":"","phone":""},
            "unread":2,"listings":5,"liveListings":4})");
    ASSERT_TRUE(me);
    EXPECT_FALSE(me->pro);
    EXPECT_FALSE(me->next);
    EXPECT_EQ(me->employer.email, QStringLiteral("hr@tone.ge"));
}

TEST(FormSpec, UnknownSlotValuesCountAsOptional)
{
    EXPECT_EQ(FormSpecDTO::slotOf(QStringLiteral("required")), FormSpecDTO::Slot::required);
    EXPECT_EQ(FormSpecDTO::slotOf(QStringLiteral("off")), FormSpecDTO::Slot::off);
    EXPECT_EQ(FormSpecDTO::slotOf(QStringLiteral("optional")), FormSpecDTO::Slot::optional);
    EXPECT_EQ(FormSpecDTO::slotOf(QStringLiteral("REQUIRED")), FormSpecDTO::Slot::optional);
    EXPECT_EQ(FormSpecDTO::slotOf(QString()), FormSpecDTO::Slot::optional);
}
