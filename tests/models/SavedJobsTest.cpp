#include "app/discovery/SavedJobs.h"

#include "tests/support/Fakes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vl;

namespace {

JobSummary job(const char* ref)
{
    JobSummary out;
    out.ref = QString::fromLatin1(ref);
    out.title = QStringLiteral("Barista");
    out.employerName = QStringLiteral("Coffee Lab");
    out.city = QStringLiteral("tbilisi");
    out.kind = QStringLiteral("vacancy");
    return out;
}

class SavedJobsTest : public testing::Test {
protected:
    QDateTime clock = QDateTime::fromSecsSinceEpoch(978307200 + 1000, Qt::UTC);
    test::MemoryPreferences preferences;
    SavedJobs saved{preferences, [this] { return clock; }};
};

} // namespace

TEST_F(SavedJobsTest, TogglingAddsAtTheFrontAndRemovesByRef)
{
    QSignalSpy changed(&saved, &SavedJobs::changed);
    saved.toggle(job("A"));
    clock = clock.addSecs(5);
    saved.toggle(job("B"));
    EXPECT_EQ(saved.refs(), (QStringList{QStringLiteral("B"), QStringLiteral("A")}));
    EXPECT_TRUE(saved.contains(QStringLiteral("A")));
    EXPECT_EQ(saved.entries()[1].savedAt, 1000.0);
    EXPECT_EQ(saved.entries()[0].savedAt, 1005.0);

    // Twice leaves the list as it was, apart from the order.
    saved.toggle(job("A"));
    saved.toggle(job("A"));
    EXPECT_EQ(saved.refs(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));

    JobDetail detail;
    detail.ref = QStringLiteral("B");
    saved.toggle(detail);
    EXPECT_EQ(saved.refs(), QStringList{QStringLiteral("A")});
    saved.remove(QStringLiteral("A"));
    saved.remove(QStringLiteral("missing"));
    EXPECT_TRUE(saved.entries().empty());
    EXPECT_EQ(changed.count(), 6);
}

TEST_F(SavedJobsTest, StoresOneJsonArrayThatAnotherRunReadsBack)
{
    saved.toggle(job("VL30001"));
    const QByteArray stored = preferences.value(QStringLiteral("vl.savedJobs")).toByteArray();
    const QJsonArray array = QJsonDocument::fromJson(stored).array();
    ASSERT_EQ(array.size(), 1);
    const QJsonObject entry = array.first().toObject();
    EXPECT_EQ(entry.value(QStringLiteral("ref")).toString(), QStringLiteral("VL30001"));
    EXPECT_EQ(entry.value(QStringLiteral("employer")).toString(), QStringLiteral("Coffee Lab"));
    EXPECT_EQ(entry.value(QStringLiteral("savedAt")).toDouble(), 1000.0);

    SavedJobs again(preferences);
    EXPECT_EQ(again.entries(), saved.entries());
}

TEST_F(SavedJobsTest, CorruptDataReadsAsEmptyAndStaysStored)
{
    const QByteArray corrupt = R"([{"ref":"A","title":"x"}, 7])";
    preferences.setValue(QStringLiteral("vl.savedJobs"), corrupt);
    SavedJobs broken(preferences);
    EXPECT_TRUE(broken.entries().empty());
    EXPECT_FALSE(broken.contains(QStringLiteral("A")));
    EXPECT_EQ(preferences.value(QStringLiteral("vl.savedJobs")).toByteArray(), corrupt);

    preferences.setValue(QStringLiteral("vl.savedJobs"), QByteArray("not json"));
    EXPECT_TRUE(SavedJobs(preferences).refs().isEmpty());
}
