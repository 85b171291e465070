#include "app/discovery/BoardScreen.h"
#include "app/kit/Palette.h"
#include "app/kit/Theme.h"
#include "app/platform/ColorSchemeSource.h"
#include "app/window/MainWindow.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

// The desktop's preference, flipped by the test as a user would in the desktop's settings.
class FlippedScheme : public ColorSchemeSource {
public:
    bool dark() const override { return m_dark; }
    void flip(bool dark)
    {
        m_dark = dark;
        Q_EMIT darkChanged();
    }

private:
    bool m_dark = false;
};

QApplication& application()
{
    return *static_cast<QApplication*>(QApplication::instance());
}

class DesktopWindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        Theme::follow(application(), scheme);
        wait(context->boot());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 10000));
    }

    // Later tests start in the light look, whatever this one left.
    void TearDown() override { Theme::setDark(application(), false); }

    bool loaded()
    {
        const BoardModel& board = window.board()->model();
        return !board.loading() && !board.items().empty() && board.summary().has_value();
    }

    QListView* list() { return window.findChild<QListView*>(QStringLiteral("vl.board.list")); }

    void openFirstListing()
    {
        window.findChild<QAction*>(QStringLiteral("vl.action.nextListing"))->trigger();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return context->router.readingJob().has_value(); }, 5000));
        QTest::qWait(50);
    }

    // The colour of an unselected row's paper, far from its text.
    QColor rowPaper()
    {
        QApplication::processEvents();
        const QImage image = list()->viewport()->grab().toImage();
        const int row = list()->currentIndex().row() == 1 ? 2 : 1;
        const QRect rect = list()->visualRect(list()->model()->index(row, 0));
        return image.pixelColor(rect.right() - 2, rect.bottom() - 3);
    }

    // Children of the window that reach beyond its edges. What scrolls inside a viewport may
    // run past it; the viewport is what must stay within the window.
    QStringList outside()
    {
        QStringList names;
        for (QWidget* child : window.findChildren<QWidget*>()) {
            if (!child->isVisible() || child->isWindow() || scrolled(child))
                continue;
            const QRect at(child->mapTo(&window, QPoint(0, 0)), child->size());
            if (!window.rect().contains(at))
                names << child->objectName() + QLatin1Char('/') +
                             QString::fromLatin1(child->metaObject()->className());
        }
        return names;
    }

    bool scrolled(QWidget* widget)
    {
        for (QWidget* up = widget->parentWidget(); up && up != &window; up = up->parentWidget()) {
            auto* area = qobject_cast<QAbstractScrollArea*>(up->parentWidget());
            if (area && area->viewport() == up)
                return true;
        }
        return false;
    }

    SandboxProcess sandbox{{QStringLiteral("--now"), QStringLiteral("2026-03-10T12:00:00Z")}};
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    FlippedScheme scheme;
    MainWindow window{*context};
};

} // namespace

TEST_F(DesktopWindowTest, TheRowsRepaintWhenTheDesktopTurnsDarkAndBack)
{
    openFirstListing();
    EXPECT_EQ(rowPaper(), palette::light().paper);
    saveScreenshot(&window, QStringLiteral("board-light-en"));

    scheme.flip(true);
    EXPECT_EQ(rowPaper(), palette::dark().paper);
    EXPECT_EQ(window.palette().color(QPalette::Window), palette::dark().paper);
    saveScreenshot(&window, QStringLiteral("board-dark-en"));

    scheme.flip(false);
    EXPECT_EQ(rowPaper(), palette::light().paper);
}

TEST_F(DesktopWindowTest, NothingLeavesTheWindowAtItsMinimumSize)
{
    openFirstListing();
    for (const Lang lang : {Lang::en, Lang::ka, Lang::ru}) {
        context->appState.setLang(lang);
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 10000));
        window.resize(window.minimumSize());
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.size() == QSize(720, 560); }, 2000));
        QTest::qWait(50);
        EXPECT_EQ(outside().join(QStringLiteral(", ")).toStdString(), "")
            << rawValue(lang).toStdString();
        // The list keeps at least half of the column under the board's head.
        EXPECT_GE(list()->height(), window.board()->height() / 2) << rawValue(lang).toStdString();
        saveScreenshot(&window, QStringLiteral("board-minimum-") + rawValue(lang));

        // A listing opened on the narrow window takes the list's place, with a way back.
        const QRect row = list()->visualRect(list()->model()->index(3, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, row.center());
        auto* back = window.findChild<QPushButton*>(QStringLiteral("vl.board.back"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return back->isVisible() && !list()->isVisible(); }));
        QTest::qWait(50);
        EXPECT_EQ(outside().join(QStringLiteral(", ")).toStdString(), "")
            << rawValue(lang).toStdString();
        saveScreenshot(&window, QStringLiteral("board-minimum-open-") + rawValue(lang));
        QTest::mouseClick(back, Qt::LeftButton);
        EXPECT_TRUE(list()->isVisible());
        window.resize(1180, 820);
    }
    Theme::setDark(application(), true);
    window.resize(1600, 1000);
    QTest::qWait(50);
    saveScreenshot(&window, QStringLiteral("board-full-dark-ru"));
}
