#include "app/discovery/BoardScreen.h"
#include "app/discovery/LedgerModel.h"
#include "app/kit/Palette.h"
#include "app/kit/Theme.h"
#include "app/kit/UndoBar.h"
#include "app/platform/ColorSchemeSource.h"
#include "app/shell/BuildNumber.h"
#include "app/window/MainWindow.h"
#include "core/format/Format.h"
#include "core/l10n/DesktopText.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <functional>
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

TEST_F(DesktopWindowTest, EveryControlIsNamedInTheUsersLanguageAndRowsSayWhatTheyShow)
{
    openFirstListing();
    for (const Lang lang : {Lang::ka, Lang::ru, Lang::en}) {
        context->appState.setLang(lang);
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 10000));
        QTest::qWait(50);
        QStringList unnamed;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
            if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
                unnamed << widget->objectName() + QLatin1Char('/') +
                               QString::fromLatin1(widget->metaObject()->className());
        }
        EXPECT_EQ(unnamed.join(QStringLiteral(", ")).toStdString(), "")
            << rawValue(lang).toStdString();

        const LedgerModel& ledger = window.board()->ledger();
        int checked = 0;
        for (int row = 0; row < ledger.rowCount() && checked < 6; ++row) {
            const JobSummary* job = ledger.jobAt(row);
            if (!job)
                continue;
            ++checked;
            const QString said = ledger.index(row).data(Qt::AccessibleTextRole).toString();
            const QString shown = job->title + QStringLiteral(", ") + job->employerName +
                                  QStringLiteral(", ") +
                                  context->taxonomy.cityLabel(job->city, lang);
            EXPECT_TRUE(said.startsWith(shown)) << said.toStdString();
            EXPECT_TRUE(said.contains(Format::salary(job->salaryMin, job->salaryMax)))
                << said.toStdString();
            if (job->featured) {
                EXPECT_TRUE(said.contains(L10n::text(L10n::Key::featured, lang)));
            }
        }
        EXPECT_GT(checked, 0);
    }
}

TEST_F(DesktopWindowTest, TabFollowsTheEyeAndEscapeClearsTheSearch)
{
    openFirstListing();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* search = window.findChild<QLineEdit*>(QStringLiteral("vl.board.search"));
    search->setFocus(Qt::OtherFocusReason);
    QStringList visited;
    for (int step = 0; step < 120 && visited.size() < 120; ++step) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        visited << focused->objectName();
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    const auto first = [&](const QString& prefix) {
        for (int i = 0; i < visited.size(); ++i) {
            if (visited[i].startsWith(prefix))
                return i;
        }
        return -1;
    };
    const int order[] = {
        first(QStringLiteral("vl.board.search")),  first(QStringLiteral("vl.board.chip.")),
        first(QStringLiteral("vl.board.filters")), first(QStringLiteral("vl.board.category.")),
        first(QStringLiteral("vl.board.city.")),   first(QStringLiteral("vl.board.list")),
        first(QStringLiteral("vl.detail.")),       first(QStringLiteral("vl.sidebar.sections"))};
    for (size_t i = 0; i < std::size(order); ++i)
        EXPECT_GE(order[i], 0) << i << ": " << visited.join(QLatin1Char(' ')).toStdString();
    for (size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i])
            << i << ": " << visited.join(QLatin1Char(' ')).toStdString();

    search->setFocus(Qt::OtherFocusReason);
    QTest::keyClicks(search, QStringLiteral("driver"));
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_TRUE(search->text().isEmpty());
}

TEST_F(DesktopWindowTest, QtsOwnTextsSpeakGeorgianAndRussian)
{
    const QStringList english{
        QStringLiteral("Undo"),       QStringLiteral("Redo"),    QStringLiteral("Cut"),
        QStringLiteral("Copy"),       QStringLiteral("Paste"),   QStringLiteral("Delete"),
        QStringLiteral("Select All"), QStringLiteral("OK"),      QStringLiteral("Cancel"),
        QStringLiteral("Save"),       QStringLiteral("Close"),   QStringLiteral("Open"),
        QStringLiteral("Yes"),        QStringLiteral("No"),      QStringLiteral("Apply"),
        QStringLiteral("Help"),       QStringLiteral("Discard"), QStringLiteral("Retry")};
    const auto plain = [](QString text) { return text.remove(QLatin1Char('&')).trimmed(); };
    for (const Lang lang : {Lang::ka, Lang::ru}) {
        context->appState.setLang(lang);
        ASSERT_TRUE(QTest::qWaitFor([&] { return loaded(); }, 10000));
        QStringList found;
        // Russian desktops write "OK" in Latin letters, and Qt's Russian translation keeps it.
        const QStringList foreign =
            lang == Lang::ru
                ? QStringList(english).filter(QRegularExpression(QStringLiteral("^(?!OK$)")))
                : english;
        auto* search = window.findChild<QLineEdit*>(QStringLiteral("vl.board.search"));
        std::unique_ptr<QMenu> menu(search->createStandardContextMenu());
        for (QAction* action : menu->actions()) {
            if (!action->isSeparator() && foreign.contains(plain(action->text())))
                found << action->text();
        }
        EXPECT_GE(menu->actions().size(), 6);
        QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                 QDialogButtonBox::Save | QDialogButtonBox::Close |
                                 QDialogButtonBox::Yes | QDialogButtonBox::No);
        for (QAbstractButton* button : buttons.buttons()) {
            if (foreign.contains(plain(button->text())))
                found << button->text();
        }
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            if (auto* button = qobject_cast<QAbstractButton*>(widget);
                button && foreign.contains(plain(button->text())))
                found << button->text();
            if (auto* label = qobject_cast<QLabel*>(widget);
                label && foreign.contains(plain(label->text())))
                found << label->text();
        }
        EXPECT_EQ(found.join(QStringLiteral(", ")).toStdString(), "")
            << rawValue(lang).toStdString();
        if (lang == Lang::ka) {
            menu->popup(search->mapToGlobal(QPoint(40, 20)));
            QTest::qWait(50);
            menu->grab().save(QCoreApplication::applicationDirPath() +
                              QStringLiteral("/../screenshots/search-menu-ka.png"));
        }
    }
    context->appState.setLang(Lang::en);
}

TEST_F(DesktopWindowTest, TheSettingsWindowSpeaksTheLanguageItSets)
{
    EXPECT_FALSE(window.windowIcon().isNull());
    window.findChild<QAction*>(QStringLiteral("vl.action.settings"))->trigger();
    auto* settings = window.findChild<QDialog*>(QStringLiteral("vl.settings"));
    ASSERT_NE(settings, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(settings));
    EXPECT_EQ(settings->windowTitle(), L10n::text(L10n::Key::tabSettings, Lang::en));
    EXPECT_TRUE(settings->findChild<QLabel*>(QStringLiteral("vl.settings.version"))
                    ->text()
                    .contains(QString::number(runningBuildNumber())));
    EXPECT_EQ(settings->findChild<QLabel*>(QStringLiteral("vl.settings.appearance"))->text(),
              L10n::text(L10n::Key::macAppearance, Lang::en));

    auto* language = settings->findChild<QComboBox*>(QStringLiteral("vl.settings.language"));
    language->setCurrentIndex(language->findData(rawValue(Lang::ka)));
    Q_EMIT language->activated(language->currentIndex());
    EXPECT_EQ(context->appState.lang(), Lang::ka);
    EXPECT_EQ(settings->windowTitle(), L10n::text(L10n::Key::tabSettings, Lang::ka));
    QTest::qWait(50);
    saveScreenshot(settings, QStringLiteral("settings-ka"));
    settings->close();
    context->appState.setLang(Lang::en);
}

namespace {

QStringList rowRefs(const QListWidget& list)
{
    QStringList refs;
    for (int i = 0; i < list.count(); ++i)
        refs << list.item(i)->data(Qt::UserRole).toString();
    return refs;
}

// Opens a row's context menu and reads it once it shows; `act` then picks from it.
QStringList menuTexts(QListWidget& list, int row, const std::function<void(QMenu&)>& act)
{
    QStringList texts;
    QTimer::singleShot(100, &list, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator())
                texts << action->text();
        }
        act(*menu);
    });
    Q_EMIT list.customContextMenuRequested(list.visualItemRect(list.item(row)).center());
    return texts;
}

} // namespace

TEST_F(DesktopWindowTest, SavedRowsComeBackWithUndoAtTheirPlace)
{
    const auto& items = window.board()->model().items();
    ASSERT_GE(items.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i)
        context->saved.toggle(items[i]);
    context->nav.setSection(MacSection::saved);
    auto* list = window.findChild<QListWidget*>(QStringLiteral("vl.saved.list"));
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list));
    const QStringList before = rowRefs(*list);
    ASSERT_EQ(before.size(), 3);

    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(rowRefs(*list), (QStringList{before[0], before[2]}));
    EXPECT_FALSE(context->saved.contains(before[1]));
    auto* undo = window.findChild<QPushButton*>(QStringLiteral("vl.undo.button"));
    ASSERT_NE(undo, nullptr);
    EXPECT_TRUE(undo->isVisible());
    EXPECT_EQ(undo->text(), L10n::text(L10n::DesktopKey::undo, Lang::en));
    QTest::mouseClick(undo, Qt::LeftButton);
    EXPECT_EQ(rowRefs(*list), before);
    EXPECT_EQ(context->saved.refs(), before);
    EXPECT_FALSE(undo->isVisible());

    // Rows taken from both ends come back to both ends.
    list->setCurrentRow(0);
    list->item(2)->setSelected(true);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(rowRefs(*list), QStringList{before[1]});
    QTest::mouseClick(undo, Qt::LeftButton);
    EXPECT_EQ(context->saved.refs(), before);

    // In Georgian the menu opens with Open, and Remove offers the same undo, in Georgian.
    context->appState.setLang(Lang::ka);
    list->setCurrentRow(2);
    const QStringList texts = menuTexts(*list, 2, [](QMenu& menu) {
        menu.findChild<QAction*>(QStringLiteral("vl.saved.menu.remove"))->trigger();
        menu.close();
    });
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_EQ(texts.front(), L10n::text(L10n::DesktopKey::open, Lang::ka));
    EXPECT_EQ(rowRefs(*list), (QStringList{before[0], before[1]}));
    EXPECT_EQ(undo->text(), L10n::text(L10n::DesktopKey::undo, Lang::ka));
    saveScreenshot(&window, QStringLiteral("saved-undo-ka"));
    QTest::mouseClick(undo, Qt::LeftButton);
    EXPECT_EQ(rowRefs(*list), before);

    // Left alone, the bar goes and the removal stands.
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !undo->isVisible(); }, UndoBar::shownMs + 2000));
    EXPECT_EQ(context->saved.refs(), (QStringList{before[1], before[2]}));
    context->appState.setLang(Lang::en);
}

TEST_F(DesktopWindowTest, AboutShowsTheVersionAndTheDesktopTextsSpeakGeorgian)
{
    auto* aboutAction = window.findChild<QAction*>(QStringLiteral("vl.action.about"));
    ASSERT_NE(aboutAction, nullptr);
    EXPECT_EQ(aboutAction->text(), L10n::text(L10n::DesktopKey::aboutApp, Lang::en));
    EXPECT_TRUE(
        window.findChild<QMenu*>(QStringLiteral("vl.menu.app"))->actions().contains(aboutAction));
    aboutAction->trigger();
    auto* about = window.findChild<QDialog*>(QStringLiteral("vl.about"));
    ASSERT_NE(about, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(about));
    const QLabel* versionLabel = about->findChild<QLabel*>(QStringLiteral("vl.about.version"));
    const QString version = versionLabel->text();
    EXPECT_TRUE(version.contains(QStringLiteral(VELMORA_VERSION))) << version.toStdString();
    EXPECT_TRUE(version.contains(QString::number(runningBuildNumber()))) << version.toStdString();
    EXPECT_TRUE(about->findChild<QLabel*>(QStringLiteral("vl.about.site"))
                    ->text()
                    .contains(sandbox.site()));

    window.findChild<QAction*>(QStringLiteral("vl.action.settings"))->trigger();
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("vl.settings.tabs"));
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->count(), 1);
    EXPECT_EQ(tabs->tabText(0), L10n::text(L10n::DesktopKey::general, Lang::en));

    context->appState.setLang(Lang::ka);
    const QRegularExpression latin(QStringLiteral("[A-Za-z]"));
    const QStringList shown{aboutAction->text(), about->windowTitle(), versionLabel->text(),
                            tabs->tabText(0)};
    for (QString text : shown) {
        text.remove(QStringLiteral("Velmora"));
        EXPECT_FALSE(text.contains(latin)) << text.toStdString();
    }
    EXPECT_EQ(about->windowTitle(), L10n::text(L10n::DesktopKey::aboutApp, Lang::ka));
    EXPECT_EQ(tabs->tabText(0), L10n::text(L10n::DesktopKey::general, Lang::ka));
    QTest::qWait(50);
    saveScreenshot(about, QStringLiteral("about-ka"));
    about->close();
    window.findChild<QDialog*>(QStringLiteral("vl.settings"))->close();
    context->appState.setLang(Lang::en);
}
