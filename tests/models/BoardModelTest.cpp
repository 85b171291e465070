#include "app/discovery/BoardModel.h"

#include "app/discovery/FilterBindings.h"
#include "app/discovery/JobDetailModel.h"
#include "app/discovery/LedgerModel.h"
#include "app/service/NetworkSession.h"
#include "app/shell/Router.h"
#include "tests/support/ManualScheduler.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QUrlQuery>
#include <gtest/gtest.h>

using namespace vl;
using vl::test::wait;

namespace {

const QString jobsPath = QStringLiteral("/api/app/v1/jobs");

class BoardModelTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString(); }

    void fault(const QString& path, QJsonObject body)
    {
        body.insert(QStringLiteral("method"), QStringLiteral("GET"));
        body.insert(QStringLiteral("path"), path);
        sandbox.devPost(QStringLiteral("/dev/fault"), QJsonDocument(body).toJson());
    }

    // The requests the sandbox received on a path, newest first.
    QList<QJsonObject> requests(const QString& path) const
    {
        QList<QJsonObject> out;
        for (const auto& entry : sandbox.devGet(QStringLiteral("/dev/requests")).toArray()) {
            if (entry.toObject().value(QStringLiteral("path")).toString() == path)
                out << entry.toObject();
        }
        return out;
    }

    QUrlQuery lastQuery(const QString& path) const
    {
        return QUrlQuery(requests(path).first().value(QStringLiteral("query")).toString());
    }

    test::SandboxProcess sandbox{{QStringLiteral("--now"), QStringLiteral("2026-03-10T12:00:00Z")}};
    std::unique_ptr<QNetworkAccessManager> session = makeNetworkSession();
    APIClient api{session.get(), sandbox.site(), [] { return std::optional<QString>(); }};
    test::ManualScheduler scheduler;
    BoardModel model{JobKind::vacancy, api, scheduler};
};

} // namespace

TEST_F(BoardModelTest, ASlowOlderAnswerIsDroppedAndTheNewerLoadOwnsLoading)
{
    fault(jobsPath,
          {{QStringLiteral("mode"), QStringLiteral("slow")}, {QStringLiteral("delay"), 1.5}});
    auto first = model.load(Lang::en, true, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !requests(jobsPath).isEmpty(); }, 5000));
    fault(jobsPath, {{QStringLiteral("mode"), QStringLiteral("none")}});

    model.setCategory(QStringLiteral("it"));
    auto second = model.load(Lang::en, true, false);
    EXPECT_TRUE(model.loading());
    EXPECT_EQ(model.generation(), 2);
    wait(std::move(second));
    EXPECT_FALSE(model.loading());
    ASSERT_FALSE(model.items().empty());
    const int filteredTotal = model.total();
    const auto filtered = model.items();
    for (const JobSummary& job : filtered)
        EXPECT_EQ(job.category, QStringLiteral("it")) << job.ref.toStdString();

    wait(std::move(first));
    EXPECT_EQ(model.items(), filtered);
    EXPECT_EQ(model.total(), filteredTotal);
    EXPECT_FALSE(model.loading());
    EXPECT_FALSE(model.failed());
}

TEST_F(BoardModelTest, AnOlderLoadStillRunningLeavesLoadingToTheNewer)
{
    // The older load is answered after a short wait, the newer one after a long one, so the
    // older ends first while the newer is still running.
    fault(jobsPath,
          {{QStringLiteral("mode"), QStringLiteral("slow")}, {QStringLiteral("delay"), 0.4}});
    auto first = model.load(Lang::en, true, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !requests(jobsPath).isEmpty(); }, 5000));
    fault(jobsPath,
          {{QStringLiteral("mode"), QStringLiteral("slow")}, {QStringLiteral("delay"), 1.5}});
    auto second = model.load(Lang::en, true, false);
    wait(std::move(first));
    EXPECT_TRUE(model.loading());
    EXPECT_TRUE(model.items().empty());
    wait(std::move(second));
    EXPECT_FALSE(model.loading());
    EXPECT_FALSE(model.items().empty());
}

TEST_F(BoardModelTest, PagesAppendAndAResetStartsOver)
{
    wait(model.load(Lang::en, true, false));
    ASSERT_TRUE(model.more());
    const size_t firstPage = model.items().size();
    EXPECT_GT(model.total(), int(firstPage));
    EXPECT_GT(model.postedToday(), 0);
    EXPECT_EQ(model.loadedQuery(), QString());

    wait(model.loadMore(Lang::en));
    EXPECT_EQ(model.page(), 2);
    EXPECT_EQ(lastQuery(jobsPath).queryItemValue(QStringLiteral("page")), QStringLiteral("2"));
    ASSERT_GT(model.items().size(), firstPage);
    EXPECT_NE(model.items()[0].ref, model.items()[firstPage].ref);

    wait(model.load(Lang::en, true, false));
    EXPECT_EQ(model.page(), 1);
    EXPECT_EQ(model.items().size(), firstPage);
}

TEST_F(BoardModelTest, AFailedFirstPageEmptiesAndAFailedNextPageKeepsTheRows)
{
    wait(model.load(Lang::en, true, false));
    const auto shown = model.items();
    fault(jobsPath,
          {{QStringLiteral("mode"), QStringLiteral("status")}, {QStringLiteral("status"), 502}});
    wait(model.loadMore(Lang::en));
    EXPECT_TRUE(model.failed());
    EXPECT_EQ(model.items(), shown);
    EXPECT_FALSE(model.loading());

    wait(model.load(Lang::en, true, false));
    EXPECT_TRUE(model.failed());
    EXPECT_TRUE(model.items().empty());

    fault(jobsPath, {{QStringLiteral("mode"), QStringLiteral("none")}});
    wait(model.load(Lang::en, true, false));
    EXPECT_FALSE(model.failed());
    EXPECT_EQ(model.items(), shown);
}

TEST_F(BoardModelTest, TheSummaryLoadsOncePerLanguage)
{
    const QString boardPath = QStringLiteral("/api/app/v1/board");
    wait(model.load(Lang::en, true, false));
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.summary().has_value(); }, 5000));
    EXPECT_EQ(model.summaryLang(), Lang::en);
    EXPECT_FALSE(model.summary()->categories.empty());
    EXPECT_FALSE(model.summary()->fresh.empty());
    EXPECT_EQ(model.postedToday(), model.summary()->postedToday);

    wait(model.load(Lang::en, true, true));
    QTest::qWait(100);
    EXPECT_EQ(requests(boardPath).size(), 1);

    wait(model.load(Lang::ka, true, false));
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.summaryLang() == Lang::ka; }, 5000));
    EXPECT_EQ(requests(boardPath).size(), 2);
    const QUrlQuery query(requests(boardPath).first().value(QStringLiteral("query")).toString());
    EXPECT_EQ(query.queryItemValue(QStringLiteral("locale")), QStringLiteral("ka"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("kind")), QStringLiteral("vacancy"));
}

TEST_F(BoardModelTest, SendsEveryFilterUnderItsWireName)
{
    wait(model.load(Lang::ru, true, false));
    QUrlQuery query = lastQuery(jobsPath);
    EXPECT_EQ(query.toString(QUrl::FullyDecoded), QStringLiteral("kind=vacancy&locale=ru&page=1"));

    model.setQuery(QStringLiteral("a+b & c"), Lang::ru);
    model.setCategory(QStringLiteral("it"));
    model.setSort(QStringLiteral("pay"));
    model.setDirect(true);
    model.setPicks({true, true, true, true, true, true});
    EXPECT_EQ(model.activeFilters(), 9);
    wait(model.load(Lang::ru, true, false));
    query = lastQuery(jobsPath);
    EXPECT_EQ(query.queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded),
              QStringLiteral("a+b & c"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("category")), QStringLiteral("it"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("city")), QStringLiteral("remote"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("sort")), QStringLiteral("pay"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("direct")), QStringLiteral("1"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("since")), QStringLiteral("today"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("noexp")), QStringLiteral("1"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("english")), QStringLiteral("1"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("type")), QStringLiteral("part"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("pay")), QStringLiteral("1500"));
    EXPECT_FALSE(model.grouped());

    // A chosen city outranks the remote pick.
    model.setCity(QStringLiteral("batumi"));
    EXPECT_EQ(model.activeFilters(), 10);
    wait(model.load(Lang::ru, true, false));
    EXPECT_EQ(lastQuery(jobsPath).queryItemValue(QStringLiteral("city")), QStringLiteral("batumi"));
}

TEST_F(BoardModelTest, SearchWaitsForAPauseInTyping)
{
    wait(model.load(Lang::en, true, false));
    const int loads = model.generation();
    EXPECT_FALSE(model.needsSearch());

    // Typed and cleared within the pause: the loaded text is the field's text again.
    model.setQuery(QStringLiteral("a"), Lang::en);
    EXPECT_TRUE(model.needsSearch());
    scheduler.advance(200);
    model.setQuery(QString(), Lang::en);
    scheduler.advance(1000);
    EXPECT_EQ(model.generation(), loads);
    EXPECT_EQ(scheduler.waiting(), 0);

    model.setQuery(QStringLiteral("bar"), Lang::en);
    scheduler.advance(300);
    model.setQuery(QStringLiteral("barista"), Lang::en);
    scheduler.advance(349);
    EXPECT_EQ(model.generation(), loads);
    scheduler.advance(1);
    EXPECT_EQ(model.generation(), loads + 1);
    EXPECT_TRUE(model.loading());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.loading(); }, 5000));
    EXPECT_EQ(model.loadedQuery(), QStringLiteral("barista"));
    EXPECT_EQ(lastQuery(jobsPath).queryItemValue(QStringLiteral("q")), QStringLiteral("barista"));
    EXPECT_FALSE(model.items().empty());
    EXPECT_LT(model.total(), 324);
}

TEST_F(BoardModelTest, FilterBindingsReloadAndClearKeepsTheSearch)
{
    int changes = 0;
    FilterBindings filters(model, [&] {
        ++changes;
        wait(model.load(Lang::en, true, false));
    });
    wait(model.load(Lang::en, true, false));
    const int all = model.total();
    model.setQuery(QStringLiteral("a"), Lang::en);
    filters.setDirect(true);
    EXPECT_LT(filters.total(), all);
    filters.setCity(QStringLiteral("tbilisi"));
    filters.setSort(QStringLiteral("pay"));
    filters.setCategory(QStringLiteral("it"));
    EXPECT_EQ(model.activeFilters(), 4);
    filters.clear();
    EXPECT_EQ(changes, 5);
    EXPECT_EQ(model.activeFilters(), 0);
    EXPECT_EQ(model.query(), QStringLiteral("a"));
    EXPECT_EQ(filters.sort(), std::nullopt);
}

TEST_F(BoardModelTest, TheDetailLoadsWithFormsAndBecomesTheReadingJob)
{
    Router router(sandbox.site());
    JobDetailModel detail(api, router);
    wait(detail.load(QStringLiteral("VL30001"), Lang::en));
    ASSERT_TRUE(detail.detail());
    EXPECT_EQ(detail.detail()->ref, QStringLiteral("VL30001"));
    EXPECT_EQ(router.readingJob(), detail.detail());
    const QUrlQuery query = lastQuery(QStringLiteral("/api/app/v1/jobs/VL30001"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("forms")), QStringLiteral("1"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("locale")), QStringLiteral("en"));

    wait(detail.load(QStringLiteral("NOPE1"), Lang::en));
    EXPECT_TRUE(detail.failed());
    EXPECT_FALSE(detail.detail());
    EXPECT_FALSE(router.readingJob());
}

TEST_F(BoardModelTest, TheLedgerRegroupsAtMidnightWithoutALoadAndTagsDirectListings)
{
    wait(model.load(Lang::en, true, false));
    // Noon in UTC is 16:00 on the board's clock; its midnight is 20:00 UTC.
    QDateTime now = QDateTime::fromString(QStringLiteral("2026-03-10T12:00:00Z"), Qt::ISODate);
    LedgerModel ledger(model, scheduler, [&now] { return now; });
    ledger.setLang(Lang::en);
    const auto dayHeads = [&ledger] {
        QStringList heads;
        for (int row = 0; row < ledger.rowCount(); ++row) {
            const QModelIndex index = ledger.index(row);
            if (index.data(LedgerModel::IsHeadRole).toBool() &&
                !index.data(LedgerModel::PinnedHeadRole).toBool())
                heads << index.data(LedgerModel::HeadTextRole).toString();
        }
        return heads;
    };
    ASSERT_FALSE(dayHeads().isEmpty());
    EXPECT_EQ(dayHeads().first(), QStringLiteral("Today"));

    const int requestsBefore = int(requests(jobsPath).size());
    scheduler.advance(7 * 3600 * 1000);
    EXPECT_EQ(dayHeads().first(), QStringLiteral("Today"));
    now = now.addSecs(8 * 3600);
    scheduler.advance(3600 * 1000 + 1);
    EXPECT_EQ(dayHeads().first(), QStringLiteral("Yesterday"));
    EXPECT_FALSE(dayHeads().contains(QStringLiteral("Today")));
    EXPECT_EQ(int(requests(jobsPath).size()), requestsBefore);
    // And again the night after.
    now = now.addDays(1);
    scheduler.advance(24 * 3600 * 1000 + 1);
    EXPECT_EQ(dayHeads().first(), QStringLiteral("This week"));
    EXPECT_FALSE(dayHeads().contains(QStringLiteral("Yesterday")));

    int direct = 0;
    for (int row = 0; row < ledger.rowCount(); ++row) {
        const JobSummary* job = ledger.jobAt(row);
        const QString tag = ledger.index(row).data(LedgerModel::DirectTagRole).toString();
        if (job && job->direct.value_or(false)) {
            ++direct;
            EXPECT_EQ(tag, QStringLiteral("Direct · Apply here"));
        } else {
            EXPECT_TRUE(tag.isEmpty());
        }
    }
    EXPECT_GT(direct, 0) << "the seed has direct listings on its first page";
}
