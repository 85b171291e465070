#include "app/discovery/BoardScreen.h"

#include "app/discovery/JobDetailView.h"
#include "app/discovery/LedgerModel.h"
#include "app/discovery/SavedScreen.h"
#include "app/kit/SidebarDelegate.h"
#include "app/shell/InstanceChannel.h"
#include "app/window/MainWindow.h"
#include "core/l10n/L10n.h"
#include "core/navigation/WebLink.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"
#include "tests/ui/UrlCatcher.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

template <class T = QWidget>
T* part(QWidget& window, const QString& name)
{
    return window.findChild<T*>(name);
}

class BoardScreenTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        wait(context->boot());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 10000));
    }

    bool loaded()
    {
        return !board().loading() && !board().items().empty() && board().summary().has_value();
    }
    BoardModel& board() { return window.board()->model(); }
    QListView* list() { return part<QListView>(window, QStringLiteral("vl.board.list")); }
    QAction* action(const char* name)
    {
        return part<QAction>(window, QStringLiteral("vl.action.") + QLatin1StringView(name));
    }
    QLabel* label(const char* name) { return part<QLabel>(window, QString::fromLatin1(name)); }

    void clickRow(int row)
    {
        const QRect rect = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
    }

    int firstJobRow()
    {
        for (int row = 0; row < window.board()->ledger().rowCount(); ++row) {
            if (window.board()->ledger().jobAt(row))
                return row;
        }
        return -1;
    }

    void selectSection(MacSection section)
    {
        auto* sections = part<QListWidget>(window, QStringLiteral("vl.sidebar.sections"));
        for (int i = 0; i < sections->count(); ++i) {
            if (sections->item(i)->data(SidebarDelegate::SectionRole).toString() ==
                rawValue(section)) {
                const QRect rect = sections->visualItemRect(sections->item(i));
                QTest::mouseClick(sections->viewport(), Qt::LeftButton, {}, rect.center());
                return;
            }
        }
        FAIL() << "no row for " << rawValue(section).toStdString();
    }

    SandboxProcess sandbox{{QStringLiteral("--now"), QStringLiteral("2026-03-10T12:00:00Z")}};
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    MainWindow window{*context};
};

} // namespace

TEST_F(BoardScreenTest, TheLedgerShowsDayHeadsWithTheirCounts)
{
    const LedgerModel& ledger = window.board()->ledger();
    int firstHead = -1;
    for (int row = 0; row < ledger.rowCount() && firstHead < 0; ++row) {
        if (!ledger.jobAt(row))
            firstHead = row;
    }
    ASSERT_GE(firstHead, 0);
    const QModelIndex head = ledger.index(firstHead);
    EXPECT_EQ(head.flags(), Qt::NoItemFlags);
    const QString text = head.data(LedgerModel::HeadTextRole).toString();
    EXPECT_TRUE(text == QStringLiteral("Posted here this week") ||
                text == QStringLiteral("Today") || text == QStringLiteral("Yesterday") ||
                text == QStringLiteral("This week") || text == QStringLiteral("Earlier"))
        << text.toStdString();
    list()->scrollTo(head, QAbstractItemView::PositionAtTop);
    saveScreenshot(&window, QStringLiteral("board-heads-en"));

    // Scrolling to the end asks for the next page, which arrives below the rows already there.
    const size_t firstPage = board().items().size();
    list()->scrollToBottom();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().items().size() > firstPage; }, 5000));
    EXPECT_EQ(board().page(), 2);
}

TEST_F(BoardScreenTest, SearchPickOpenStarAndFindItUnderSaved)
{
    const int everything = board().total();
    EXPECT_EQ(label("vl.board.headline")->text(),
              L10n::text(Key::bdPostedToday, Lang::en, board().postedToday()));
    EXPECT_TRUE(label("vl.board.nudge")->isVisible());
    EXPECT_TRUE(part(window, QStringLiteral("vl.board.fresh"))->isVisible());
    EXPECT_EQ(context->router.visibleJobs().size(), qsizetype(board().items().size()));

    // Typing waits for the pause, then searches once.
    auto* search = part<QLineEdit>(window, QStringLiteral("vl.board.search"));
    const int before = board().generation();
    QTest::keyClicks(search, QStringLiteral("driver"));
    EXPECT_EQ(board().generation(), before);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return board().loadedQuery() == QStringLiteral("driver"); }, 5000));
    EXPECT_EQ(board().generation(), before + 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 5000));
    EXPECT_LT(board().total(), everything);
    EXPECT_TRUE(label("vl.board.headline")
                    ->text()
                    .startsWith(L10n::text(Key::bdFound, Lang::en, board().total())));
    EXPECT_FALSE(part(window, QStringLiteral("vl.board.fresh"))->isVisible());

    // A chip filters at once and stays lit.
    const int searched = board().total();
    auto* today = part<QToolButton>(window, QStringLiteral("vl.board.chip.today"));
    EXPECT_EQ(today->text(), QStringLiteral("Posted today"));
    today->click();
    EXPECT_TRUE(board().loading());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !board().loading(); }, 5000));
    EXPECT_TRUE(board().picks().today);
    EXPECT_TRUE(today->isChecked());
    EXPECT_LE(board().total(), searched);
    if (board().items().empty()) {
        today->click();
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 5000));
    }
    saveScreenshot(&window, QStringLiteral("board-search-en"));

    // Opening a row fills the pane and makes it the Listing menu's listing.
    EXPECT_FALSE(action("save")->isEnabled());
    const int row = firstJobRow();
    ASSERT_GE(row, 0);
    const QString ref = window.board()->ledger().jobAt(row)->ref;
    clickRow(row);
    EXPECT_EQ(context->router.selectedJob(), ref);
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    EXPECT_EQ(label("vl.detail.title")->text(), context->router.readingJob()->title);
    EXPECT_TRUE(action("save")->isEnabled());
    EXPECT_EQ(action("save")->text(), QStringLiteral("Save to saved jobs"));

    auto* star = part<QPushButton>(window, QStringLiteral("vl.detail.star"));
    star->click();
    EXPECT_TRUE(context->saved.contains(ref));
    EXPECT_TRUE(star->isChecked());
    EXPECT_EQ(action("save")->text(), QStringLiteral("Remove from saved jobs"));
    saveScreenshot(&window, QStringLiteral("board-open-en"));

    selectSection(MacSection::saved);
    auto* saved = part<SavedScreen>(window, QStringLiteral("vl.saved"));
    ASSERT_TRUE(saved->isVisible());
    auto* rows = part<QListWidget>(window, QStringLiteral("vl.saved.list"));
    ASSERT_EQ(rows->count(), 1);
    EXPECT_EQ(rows->item(0)->data(Qt::UserRole).toString(), ref);
    EXPECT_TRUE(rows->item(0)->text().startsWith(context->router.readingJob()->title));
    saveScreenshot(&window, QStringLiteral("saved-en"));

    // Opening a saved row shows it on the board, in the detail pane.
    const QString title = context->router.readingJob()->title;
    context->router.selectJob(std::nullopt);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !context->router.readingJob(); }, 2000));
    Q_EMIT rows->itemActivated(rows->item(0));
    EXPECT_EQ(context->nav.section(), MacSection::vacancies);
    EXPECT_TRUE(window.board()->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    EXPECT_EQ(label("vl.detail.title")->text(), title);
    selectSection(MacSection::saved);

    // Removing the row empties the list.
    context->saved.toggle(*context->router.readingJob());
    context->saved.toggle(*context->router.readingJob());
    rows->setCurrentRow(0);
    QTest::keyClick(rows, Qt::Key_Delete);
    EXPECT_TRUE(context->saved.entries().empty());
    EXPECT_TRUE(part(window, QStringLiteral("vl.saved.empty"))->isVisible());
}

TEST_F(BoardScreenTest, ASavedRowsMenuOpensCopiesAndRemoves)
{
    action("nextListing")->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    const JobDetail job = *context->router.readingJob();
    context->saved.toggle(job);
    selectSection(MacSection::saved);
    auto* rows = part<QListWidget>(window, QStringLiteral("vl.saved.list"));
    ASSERT_EQ(rows->count(), 1);
    rows->setCurrentRow(0);

    // The menu runs modally; each round picks one entry as soon as it shows.
    const auto pick = [&](const char* name) {
        QTimer::singleShot(0, [&, name] {
            auto* menu = QApplication::activePopupWidget();
            ASSERT_NE(menu, nullptr);
            auto* entry = menu->findChild<QAction*>(QString::fromLatin1(name));
            ASSERT_NE(entry, nullptr);
            entry->trigger();
            menu->close();
        });
        Q_EMIT rows->customContextMenuRequested(rows->visualItemRect(rows->item(0)).center());
    };
    pick("vl.saved.menu.copyLink");
    EXPECT_EQ(vacancyRefOfWebLink(QUrl(QGuiApplication::clipboard()->text())), job.ref);
    pick("vl.saved.menu.remove");
    EXPECT_FALSE(context->saved.contains(job.ref));
}

TEST_F(BoardScreenTest, KeysAndMenusMoveThroughListingsAndPlaces)
{
    action("nextListing")->trigger();
    const QStringList& visible = context->router.visibleJobs();
    EXPECT_EQ(context->router.selectedJob(), visible.first());
    action("nextListing")->trigger();
    EXPECT_EQ(context->router.selectedJob(), visible[1]);
    EXPECT_EQ(list()->currentIndex().data(LedgerModel::RefRole).toString(), visible[1]);
    action("previousListing")->trigger();
    EXPECT_EQ(context->router.selectedJob(), visible.first());

    // The arrow keys move the selection in the list, passing over heads.
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(context->router.selectedJob(), visible[1]);

    action("previousPlace")->trigger();
    EXPECT_EQ(context->nav.section(), MacSection::support);
    action("nextPlace")->trigger();
    EXPECT_EQ(context->nav.section(), MacSection::vacancies);
    action("nextPlace")->trigger();
    EXPECT_EQ(context->nav.section(), MacSection::forYou);

    // Find brings the board back with the search field focused.
    action("search")->trigger();
    EXPECT_EQ(context->nav.section(), MacSection::vacancies);
    EXPECT_EQ(context->router.findTick(), 1);

    // Refresh reloads the first page, bypassing the cache.
    const int generation = board().generation();
    action("refresh")->trigger();
    EXPECT_EQ(board().generation(), generation + 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 5000));

    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    action("copyLink")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), context->router.readingJob()->siteUrl);
    UrlCatcher urls;
    action("openOnSite")->trigger();
    ASSERT_EQ(urls.opened.size(), 1);
    EXPECT_EQ(urls.opened.first().toString(), context->router.readingJob()->siteUrl);
}

TEST_F(BoardScreenTest, ALanguageSwitchReloadsTheBoardAndThePane)
{
    action("nextListing")->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    const QString englishTitle = context->router.readingJob()->title;

    part<QAction>(window, QStringLiteral("vl.action.lang.ka"))->trigger();
    EXPECT_TRUE(board().loading());
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return loaded() && board().summaryLang() == Lang::ka; }, 5000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    EXPECT_NE(context->router.readingJob()->title, englishTitle);
    EXPECT_EQ(label("vl.detail.title")->text(), context->router.readingJob()->title);
    EXPECT_EQ(part<QToolButton>(window, QStringLiteral("vl.board.chip.today"))->text(),
              L10n::text(Key::qpToday, Lang::ka));
    EXPECT_EQ(part<QLineEdit>(window, QStringLiteral("vl.board.search"))->placeholderText(),
              L10n::text(Key::search, Lang::ka));
    saveScreenshot(&window, QStringLiteral("board-open-ka"));
}

TEST_F(BoardScreenTest, TheFilterSheetCountsLiveAndClearKeepsTheSearch)
{
    part<QLineEdit>(window, QStringLiteral("vl.board.search"))->setText(QStringLiteral("a"));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return board().loadedQuery() == QStringLiteral("a"); }, 5000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !board().loading(); }, 5000));
    part<QPushButton>(window, QStringLiteral("vl.board.filters"))->click();
    auto* sheet = part<QDialog>(window, QStringLiteral("vl.filters"));
    ASSERT_TRUE(sheet && sheet->isVisible());
    const int all = board().total();
    part<QRadioButton>(*sheet, QStringLiteral("vl.filters.which.1"))->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !board().loading(); }, 5000));
    EXPECT_TRUE(board().direct());
    EXPECT_LT(board().total(), all);
    EXPECT_EQ(part<QLabel>(*sheet, QStringLiteral("vl.filters.total"))->text(),
              L10n::text(Key::bdFound, Lang::en, board().total()));
    EXPECT_TRUE(part<QToolButton>(window, QStringLiteral("vl.board.chip.direct"))->isChecked());
    part<QRadioButton>(*sheet, QStringLiteral("vl.filters.sort.1"))->click();
    EXPECT_EQ(board().sort(), QStringLiteral("pay"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !board().loading(); }, 5000));
    // A pay-sorted board has no heads.
    for (int row = 0; row < window.board()->ledger().rowCount(); ++row)
        EXPECT_NE(window.board()->ledger().jobAt(row), nullptr);
    saveScreenshot(&window, QStringLiteral("filters-en"));

    part<QPushButton>(*sheet, QStringLiteral("vl.filters.clear"))->click();
    EXPECT_EQ(board().activeFilters(), 0);
    EXPECT_EQ(board().query(), QStringLiteral("a"));
    EXPECT_TRUE(part<QRadioButton>(*sheet, QStringLiteral("vl.filters.which.0"))->isChecked());
    part<QPushButton>(*sheet, QStringLiteral("vl.filters.close"))->click();
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(BoardScreenTest, TheHiringGroupAndItsBadgesFollowTheEmployersSession)
{
    auto* sections = part<QListWidget>(window, QStringLiteral("vl.sidebar.sections"));
    auto rowOf = [&](MacSection section) -> QListWidgetItem* {
        for (int i = 0; i < sections->count(); ++i) {
            if (sections->item(i)->data(SidebarDelegate::SectionRole).toString() ==
                rawValue(section))
                return sections->item(i);
        }
        return nullptr;
    };
    EXPECT_EQ(rowOf(MacSection::listings), nullptr);
    EXPECT_EQ(sections->count(), 3 + 9);

    const QString address = QStringLiteral("hr@batumibay.ge");
    ASSERT_TRUE(wait(context->api().authRequest(address, Lang::en, nullptr)));
    const auto verified =
        wait(context->api().authVerify(address, sandbox.lastCode(address), nullptr));
    ASSERT_TRUE(verified);
    wait(context->auth.signedIn(verified->token));
    ASSERT_TRUE(context->auth.me());
    ASSERT_NE(rowOf(MacSection::listings), nullptr);
    EXPECT_EQ(sections->count(), 4 + 11);
    EXPECT_EQ(rowOf(MacSection::listings)->data(SidebarDelegate::BadgeRole).toInt(),
              context->auth.me()->pendingListings.value_or(0));
    EXPECT_EQ(rowOf(MacSection::applicants)->data(SidebarDelegate::BadgeRole).toInt(),
              context->auth.me()->newApplications.value_or(0));
    context->inbox.setUnread(4);
    EXPECT_EQ(rowOf(MacSection::inbox)->data(SidebarDelegate::BadgeRole).toInt(), 4);
    EXPECT_EQ(rowOf(MacSection::saved)->data(SidebarDelegate::BadgeRole).toInt(), 0);
    EXPECT_FALSE(label("vl.board.nudge")->isVisible());
    saveScreenshot(&window, QStringLiteral("sidebar-hiring-en"));

    // Standing on a hiring section when the session ends leaves for the board.
    selectSection(MacSection::applicants);
    EXPECT_EQ(context->nav.section(), MacSection::applicants);
    wait(context->auth.clearSession());
    EXPECT_EQ(rowOf(MacSection::listings), nullptr);
    EXPECT_EQ(context->nav.section(), MacSection::vacancies);
}

TEST_F(BoardScreenTest, ThePlusActionAsksAnAnonymousReaderToSignIn)
{
    part<QPushButton>(window, QStringLiteral("vl.board.post"))->click();
    auto* gate = part<QDialog>(window, QStringLiteral("vl.postGate"));
    ASSERT_TRUE(gate && gate->isVisible());
    EXPECT_EQ(part<QLabel>(*gate, QStringLiteral("vl.postGate.text"))->text(),
              L10n::text(Key::signInToPost, Lang::en));
    saveScreenshot(&window, QStringLiteral("post-gate-en"));
    part<QPushButton>(*gate, QStringLiteral("vl.postGate.signIn"))->click();
    EXPECT_FALSE(gate->isVisible());
    auto* sheet = part<QDialog>(window, QStringLiteral("vl.loginSheet"));
    ASSERT_TRUE(sheet && sheet->isVisible());
    EXPECT_FALSE(context->nav.showPostVacancy());
}

TEST_F(BoardScreenTest, TheEmptyAndFailedBoards)
{
    part<QLineEdit>(window, QStringLiteral("vl.board.search"))
        ->setText(QStringLiteral("zzqqxx-nothing"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return board().loadedQuery() == QStringLiteral("zzqqxx-nothing"); }, 5000));
    auto* states = part<QStackedWidget>(window, QStringLiteral("vl.board.states"));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.empty"));
    EXPECT_EQ(label("vl.board.empty")->text(), L10n::text(Key::boardEmpty, Lang::en));

    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"GET","path":"/api/app/v1/jobs","mode":"status","status":500})");
    action("refresh")->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().failed(); }, 5000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.error"));
    saveScreenshot(&window, QStringLiteral("board-failed-en"));

    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"GET","path":"/api/app/v1/jobs","mode":"none"})");
    part<QLineEdit>(window, QStringLiteral("vl.board.search"))->clear();
    part<QPushButton>(window, QStringLiteral("vl.board.retry"))->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 5000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.list"));
}

TEST_F(BoardScreenTest, ALinkFromASecondLaunchOpensTheListingHere)
{
    InstanceChannel first(sandbox.site());
    ASSERT_TRUE(first.listen());
    QSignalSpy links(&first, &InstanceChannel::linkReceived);
    const InstanceChannel second(sandbox.site());
    EXPECT_TRUE(second.handOver(QStringLiteral("http://localhost:4321/en/vacancy/vl30007-x")));
    ASSERT_TRUE(links.wait(3000));
    EXPECT_EQ(links.first().first().toString(),
              QStringLiteral("http://localhost:4321/en/vacancy/vl30007-x"));
    EXPECT_FALSE(
        InstanceChannel(QStringLiteral("http://elsewhere.example")).handOver(QStringLiteral("x")));
}

TEST_F(BoardScreenTest, ReloadsShowTheirWorkAndRetryBringsBackListAndListing)
{
    auto* states = part<QStackedWidget>(window, QStringLiteral("vl.board.states"));
    auto* detailStates = part(window, QStringLiteral("vl.detail"))->findChild<QStackedWidget*>();
    auto* failLine = part(window, QStringLiteral("vl.board.failLine"));
    auto* reloading = part(window, QStringLiteral("vl.board.reloading"));
    action("nextListing")->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
    const QString ref = *context->router.selectedJob();
    const QString jobsPath = QStringLiteral("/api/app/v1/jobs");
    const QString detailPath = jobsPath + QLatin1Char('/') + ref;
    const auto fault = [&](const QString& path, const char* rest) {
        sandbox.devPost(QStringLiteral("/dev/fault"),
                        QStringLiteral(R"({"method":"GET","path":"%1",%2})")
                            .arg(path, QString::fromLatin1(rest))
                            .toUtf8());
    };

    // A slow reload keeps the rows with a quiet bar; the listing on its way never shows the hint.
    fault(jobsPath, R"("mode":"slow","delay":0.6)");
    fault(detailPath, R"("mode":"slow","delay":0.6)");
    action("refresh")->trigger();
    window.board()->findChild<JobDetailView*>()->reload();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().loading(); }, 2000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.list"));
    EXPECT_TRUE(reloading->isVisible());
    EXPECT_FALSE(label("vl.detail.pick")->isVisible());
    EXPECT_TRUE(part(window, QStringLiteral("vl.detail.busy"))->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 5000));
    EXPECT_FALSE(reloading->isVisible());

    // Both fail: the board shows its error, and so does the pane.
    fault(jobsPath, R"("mode":"status","status":500)");
    fault(detailPath, R"("mode":"status","status":500)");
    action("refresh")->trigger();
    window.board()->findChild<JobDetailView*>()->reload();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().failed() && !board().loading(); }, 5000));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return detailStates->currentWidget()->objectName() == "vl.detail.error"; }, 5000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.error"));

    // Retry asks for both again.
    fault(jobsPath, R"("mode":"none")");
    fault(detailPath, R"("mode":"none")");
    part<QPushButton>(window, QStringLiteral("vl.board.retry"))->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return loaded() && !board().failed(); }, 5000));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return detailStates->currentWidget()->objectName() != "vl.detail.error"; }, 5000));
    EXPECT_EQ(label("vl.detail.title")->text(), context->router.readingJob()->title);

    // A failed next page keeps the rows under one line with Retry, which asks for that page.
    fault(jobsPath, R"("mode":"status","status":500)");
    const size_t firstPage = board().items().size();
    list()->scrollToBottom();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().failed() && !board().loading(); }, 5000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.list"));
    EXPECT_EQ(board().items().size(), firstPage);
    EXPECT_TRUE(failLine->isVisible());
    saveScreenshot(&window, QStringLiteral("board-next-page-failed-en"));
    fault(jobsPath, R"("mode":"none")");
    part<QPushButton>(window, QStringLiteral("vl.board.failRetry"))->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return board().items().size() > firstPage; }, 5000));
    EXPECT_EQ(board().page(), 2);
    EXPECT_FALSE(failLine->isVisible());
}

TEST_F(BoardScreenTest, AFirstLoadShowsItsWorkAndNoCountBeforeTheAnswer)
{
    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"GET","path":"/api/app/v1/jobs","mode":"slow","delay":0.6})");
    MainWindow second(*context);
    second.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&second));
    auto* states = part<QStackedWidget>(second, QStringLiteral("vl.board.states"));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.loading"));
    EXPECT_FALSE(part(second, QStringLiteral("vl.board.headline"))->isVisible());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return !second.board()->model().items().empty() && !second.board()->model().loading();
        },
        5000));
    EXPECT_EQ(states->currentWidget()->objectName(), QStringLiteral("vl.board.list"));
    EXPECT_TRUE(part(second, QStringLiteral("vl.board.headline"))->isVisible());
}
