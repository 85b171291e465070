#include "app/window/MainWindow.h"

#include "app/shell/QuitWhenSettled.h"
#include "app/window/UpdateRequiredScreen.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"
#include "tests/ui/UrlCatcher.h"

#include <QAction>
#include <QCoroTimer>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

template <class T = QWidget>
T* part(QWidget& window, const char* name)
{
    return window.findChild<T*>(QString::fromLatin1(name));
}

bool shown(QWidget& window, const char* name)
{
    QWidget* widget = part(window, name);
    return widget && widget->isVisible();
}

void showAndWait(QWidget& window)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
}

} // namespace

TEST(MainWindow, OpensAtItsSizeWithTheSidebarAndTheContent)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    MainWindow window(*context);
    showAndWait(window);
    EXPECT_EQ(window.objectName(), QStringLiteral("vl.main"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Velmora"));
    EXPECT_EQ(window.size(), QSize(1180, 820));
    EXPECT_EQ(window.minimumSize(), QSize(720, 560));
    window.resize(400, 300);
    EXPECT_EQ(window.size(), QSize(720, 560));
    window.resize(1180, 820);

    EXPECT_TRUE(shown(window, "vl.sidebar"));
    EXPECT_TRUE(shown(window, "vl.sidebar.sections"));
    // Each run starts on the board.
    EXPECT_TRUE(shown(window, "vl.board"));
    // Nothing newer is known before config answers.
    EXPECT_FALSE(shown(window, "vl.updateBanner"));
    EXPECT_EQ(part<QLabel>(window, "vl.account.name")->text(),
              L10n::text(Key::macSignedOutTitle, Lang::en));
    EXPECT_TRUE(shown(window, "vl.account.signIn"));
    EXPECT_FALSE(shown(window, "vl.account.signOut"));
    saveScreenshot(&window, QStringLiteral("window-en"));
}

TEST(MainWindow, ALanguageSwitchRetextsTheWindowAndAnOpenSheet)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    MainWindow window(*context);
    showAndWait(window);
    auto* languageMenu = part<QMenu>(window, "vl.menu.language");
    auto* checkUpdates = part<QAction>(window, "vl.action.checkUpdates");
    EXPECT_EQ(languageMenu->title(), QStringLiteral("Language"));
    EXPECT_EQ(checkUpdates->text(), QStringLiteral("Check for Updates…"));
    EXPECT_TRUE(part<QAction>(window, "vl.action.lang.en")->isChecked());
    // Each language keeps its own name in every language.
    EXPECT_EQ(part<QAction>(window, "vl.action.lang.ka")->text(), QStringLiteral("ქართული"));
    EXPECT_EQ(part<QAction>(window, "vl.action.lang.ru")->text(), QStringLiteral("Русский"));

    part<QAction>(window, "vl.action.lang.ka")->trigger();
    EXPECT_EQ(context->appState.lang(), Lang::ka);
    EXPECT_EQ(context->preferences().string(QStringLiteral("vl.lang")), QStringLiteral("ka"));
    EXPECT_TRUE(part<QAction>(window, "vl.action.lang.ka")->isChecked());
    EXPECT_FALSE(part<QAction>(window, "vl.action.lang.en")->isChecked());
    EXPECT_EQ(languageMenu->title(), L10n::text(Key::language, Lang::ka));
    EXPECT_EQ(checkUpdates->text(), L10n::text(Key::macCheckUpdates, Lang::ka));
    EXPECT_EQ(part<QLabel>(window, "vl.account.name")->text(),
              L10n::text(Key::macSignedOutTitle, Lang::ka));
    EXPECT_EQ(part<QPushButton>(window, "vl.account.signIn")->text(),
              L10n::text(Key::signInTitle, Lang::ka));
    saveScreenshot(&window, QStringLiteral("window-ka"));

    part<QPushButton>(window, "vl.account.signIn")->click();
    ASSERT_TRUE(shown(window, "vl.door.work"));
    saveScreenshot(&window, QStringLiteral("door-ka"));
    part<QPushButton>(window, "vl.door.hiring")->click();
    auto* sheet = part<QDialog>(window, "vl.loginSheet");
    ASSERT_TRUE(sheet && sheet->isVisible());
    EXPECT_EQ(part<QLabel>(*sheet, "vl.loginSheet.subtitle")->text(),
              L10n::text(Key::signInSub, Lang::ka));
    saveScreenshot(&window, QStringLiteral("signin-ka"));
    part<QAction>(window, "vl.action.lang.ru")->trigger();
    EXPECT_EQ(part<QLabel>(*sheet, "vl.loginSheet.title")->text(),
              L10n::text(Key::signInTitle, Lang::ru));
    EXPECT_EQ(part<QPushButton>(*sheet, "vl.loginSheet.sendCode")->text(),
              L10n::text(Key::sendCode, Lang::ru));
    EXPECT_EQ(part<QLabel>(window, "vl.account.name")->text(),
              L10n::text(Key::macSignedOutTitle, Lang::ru));
    saveScreenshot(&window, QStringLiteral("signin-ru"));
}

TEST(MainWindow, ARefusedBuildSeesOnlyTheUpdateScreenWhichLeadsToTheStore)
{
    SandboxProcess sandbox(
        {QStringLiteral("--min-build"), QStringLiteral("101"), QStringLiteral("--store-url"),
         QStringLiteral("https://store.example/vl"), QStringLiteral("--testflight-url"),
         QStringLiteral("https://beta.example/vl")});
    ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
    auto context = makeContext({sandbox.site(), {QStringLiteral("ka")}, 100});
    MainWindow window(*context);
    showAndWait(window);
    part<QPushButton>(window, "vl.account.signIn")->click();
    part<QPushButton>(window, "vl.door.hiring")->click();
    ASSERT_TRUE(shown(window, "vl.loginSheet"));

    // The gate closes when config answers, over whatever the window was showing.
    wait(context->boot());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(context->taxonomy.updateRequired());
    auto* screen = window.findChild<UpdateRequiredScreen*>();
    ASSERT_TRUE(screen && screen->isVisible());
    EXPECT_FALSE(part(window, "vl.sidebar"));
    EXPECT_FALSE(shown(window, "vl.loginSheet"));
    EXPECT_EQ(part<QLabel>(window, "vl.updateRequired.title")->text(),
              L10n::text(Key::updateTitle, Lang::ka));
    EXPECT_EQ(part<QLabel>(window, "vl.updateRequired.body")->text(),
              L10n::text(Key::updateBody, Lang::ka));
    saveScreenshot(&window, QStringLiteral("update-required-ka"));

    UrlCatcher urls;
    part<QPushButton>(window, "vl.updateRequired.update")->click();
    EXPECT_EQ(urls.opened, QList<QUrl>{QUrl(QStringLiteral("https://store.example/vl"))});

    // Still the gate in another language, and in a window opened later in the same run.
    part<QAction>(window, "vl.action.lang.en")->trigger();
    EXPECT_EQ(part<QPushButton>(window, "vl.updateRequired.update")->text(),
              QStringLiteral("Update now"));
    saveScreenshot(&window, QStringLiteral("update-required-en"));
    MainWindow later(*context);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(later.findChild<UpdateRequiredScreen*>());
    EXPECT_FALSE(part(later, "vl.account.signIn"));
}

TEST(MainWindow, TheBuildAtTheMinimumPassesTheGate)
{
    SandboxProcess sandbox({QStringLiteral("--min-build"), QStringLiteral("100")});
    ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
    auto context = makeContext({sandbox.site(), {QStringLiteral("en")}, 100});
    MainWindow window(*context);
    wait(context->boot());
    EXPECT_FALSE(window.findChild<UpdateRequiredScreen*>());
    EXPECT_TRUE(part(window, "vl.sidebar"));
}

TEST(MainWindow, TheUpdateBannerOffersANewerBuildUntilItIsDismissed)
{
    const QString url = QStringLiteral("https://example.org/velmora/get");
    SandboxProcess sandbox({QStringLiteral("--latest-build"), QStringLiteral("120"),
                            QStringLiteral("--update-url"), url});
    ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
    auto context = makeContext({sandbox.site(), {QStringLiteral("en")}, 100});
    MainWindow window(*context);
    showAndWait(window);
    EXPECT_FALSE(shown(window, "vl.updateBanner"));
    wait(context->boot());
    ASSERT_TRUE(shown(window, "vl.updateBanner"));
    EXPECT_EQ(part<QLabel>(window, "vl.updateBanner.text")->text(),
              QStringLiteral("A newer version of Velmora is ready"));
    saveScreenshot(&window, QStringLiteral("update-banner-en"));

    UrlCatcher urls;
    part<QPushButton>(window, "vl.updateBanner.get")->click();
    part<QAction>(window, "vl.action.checkUpdates")->trigger();
    EXPECT_EQ(urls.opened, (QList<QUrl>{QUrl(url), QUrl(url)}));
    EXPECT_TRUE(shown(window, "vl.updateBanner")); // getting it is not dismissing it

    part<QToolButton>(window, "vl.updateBanner.dismiss")->click();
    EXPECT_FALSE(shown(window, "vl.updateBanner"));
    EXPECT_EQ(context->preferences().value(QStringLiteral("vl.update.seen")).toLongLong(), 120);
    MainWindow again(*context);
    showAndWait(again);
    EXPECT_FALSE(shown(again, "vl.updateBanner"));

    // Another build named by the service brings it back.
    SandboxProcess newer({QStringLiteral("--latest-build"), QStringLiteral("121"),
                          QStringLiteral("--update-url"), url});
    ASSERT_TRUE(newer.started());
    auto next = makeContext({newer.site(), {QStringLiteral("en")}, 100});
    next->preferences().setValue(QStringLiteral("vl.update.seen"), 120);
    MainWindow third(*next);
    showAndWait(third);
    wait(next->boot());
    EXPECT_TRUE(shown(third, "vl.updateBanner"));
}

TEST(MainWindow, CheckForUpdatesLeadsToTheSiteWhenConfigNamesNoPage)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    MainWindow window(*context);
    UrlCatcher urls;
    part<QAction>(window, "vl.action.checkUpdates")->trigger();
    EXPECT_EQ(urls.opened, QList<QUrl>{QUrl(QStringLiteral("http://127.0.0.1:9"))});
}

TEST(MainWindow, QuittingWaitsForTheWritesStillUnderWay)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    MainWindow window(*context);
    showAndWait(window);
    bool written = false;
    std::optional<bool> writtenAtQuit;
    quitWhenSettled(*qGuiApp, *context, [&] {
        writtenAtQuit = written;
        QCoreApplication::quit();
    });
    // As a sign-out clicked just before quitting would leave it.
    context->pending.guard([](bool& done) -> QCoro::Task<> {
        co_await QCoro::sleepFor(std::chrono::milliseconds(300));
        done = true;
    }(written));

    QTimer::singleShot(0, &window,
                       [&window] { part<QAction>(window, "vl.action.quit")->trigger(); });
    QTimer safety;
    safety.setSingleShot(true);
    QObject::connect(&safety, &QTimer::timeout, [] { QCoreApplication::quit(); });
    safety.start(10000);
    QCoreApplication::exec();
    safety.stop();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    ASSERT_TRUE(writtenAtQuit.has_value()) << "the window never quit";
    EXPECT_TRUE(*writtenAtQuit);
}
