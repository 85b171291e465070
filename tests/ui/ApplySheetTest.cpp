#include "app/applying/ApplySheet.h"

#include "app/applying/CandidateConversationScreen.h"
#include "app/applying/MyApplicationsScreen.h"
#include "app/kit/ConfirmRow.h"
#include "core/l10n/L10n.h"
#include "tests/support/ApplyingFixture.h"
#include "tests/support/CvFiles.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

class ApplyScreens : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
    }

    void signIn()
    {
        ASSERT_TRUE(
            test::signInJobSeeker(*context, sandbox, QStringLiteral("levan.gelashvili@gmail.com")));
    }

    ApplyServices services() { return test::applyServicesIn(*context, data.path()); }

    // A listing with the employer's own questions, read in the current language; or one
    // without a form.
    JobDetail withQuestions(bool questions = true)
    {
        const auto page = wait(context->api().jobs(JobKind::vacancy, context->appState.lang(), 1,
                                                   {}, {}, {}, {}, false, {}, true, nullptr));
        for (const auto& summary : page->items) {
            auto detail =
                wait(context->api().jobDetail(summary.ref, context->appState.lang(), nullptr));
            if (detail && detail->canApply && !detail->applyOnWeb.value_or(false) &&
                (detail->form && !detail->form->fields.empty()) == questions &&
                detail->form.has_value() == questions)
                return *detail;
        }
        ADD_FAILURE() << "no listing with questions";
        return {};
    }

    template <class T>
    void show(T& widget)
    {
        widget.resize(640, 900);
        widget.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    }

    static QPushButton* button(QWidget& root, const QString& text)
    {
        for (auto* found : root.findChildren<QPushButton*>()) {
            if (found->text() == text)
                return found;
        }
        return nullptr;
    }

    template <class T = QWidget>
    T* part(QWidget& root, const char* name)
    {
        return root.findChild<T*>(QString::fromLatin1(name));
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    QTemporaryDir data;
};

} // namespace

TEST_F(ApplyScreens, TheFormWaitsBehindTheGateThenShowsTheCheckAndMarksTheQuestion)
{
    ApplySheet sheet(services(), withQuestions(), [](const QUrl&) { return false; });
    show(sheet);
    EXPECT_FALSE(part(sheet, "applySend")->isVisible());
    signIn();
    QTRY_VERIFY(part(sheet, "applySend")->isVisible());

    sheet.model().name = QStringLiteral("Levan");
    sheet.pickFile(writeFile(data.path(), QStringLiteral("cv.rtf"), "{\\rtf1}"));
    EXPECT_EQ(part<QLabel>(sheet, "applyError")->text(), L10n::text(Key::errCvType, Lang::en));
    sheet.pickFile(writeFile(data.path(), QStringLiteral("cv.pdf"),
                             pdfWithText("Levan 2019 levan@example.ge hotel guests reception")));
    QTRY_VERIFY(sheet.model().check().has_value());
    EXPECT_FALSE(part(sheet, "applyError")->isVisible());
    EXPECT_TRUE(
        part<QLabel>(sheet, "cvCheckScore")->text().contains(sheet.model().check()->bandLabel));

    part<QLineEdit>(sheet, "applyName")->setText(QStringLiteral("Levan"));
    part<QLineEdit>(sheet, "applyPhone")->setText(QStringLiteral("599112233"));
    part<QPlainTextEdit>(sheet, "applyMessage")->setPlainText(QStringLiteral("Hello there"));
    part<QPushButton>(sheet, "applySend")->click();
    QTRY_VERIFY(part(sheet, "applyError")->isVisible());
    EXPECT_EQ(part<QLabel>(sheet, "applyError")->text(), L10n::text(Key::errAnswers, Lang::en));
    EXPECT_FALSE(sheet.model().sent());
    EXPECT_EQ(sheet.model().cv()->filename, QStringLiteral("cv.pdf"));
    const auto bad = sheet.model().badField();
    ASSERT_TRUE(bad);
    QWidget* question = sheet.findChild<QWidget*>(QStringLiteral("question-") + *bad);
    ASSERT_TRUE(question);
    EXPECT_TRUE(question->isAncestorOf(sheet.focusWidget()));
    EXPECT_EQ(sheet.focusWidget()->property("vlRole"), QStringLiteral("error"));

    // The questions' own words follow a change of language while the sheet is open.
    context->appState.setLang(Lang::ka);
    bool reworded = false;
    for (auto* label : sheet.findChildren<QLabel*>())
        reworded |=
            label->isVisible() && label->text() == L10n::text(Key::applyQuestions, Lang::ka);
    EXPECT_TRUE(reworded);
}

TEST_F(ApplyScreens, ScreenshotsOfTheSheetAndMyApplicationsInEveryLanguage)
{
    signIn();
    ApplySheet sent(services(), withQuestions(false), [](const QUrl&) { return false; });
    sent.model().name = QStringLiteral("Levan");
    ASSERT_TRUE(sent.model().choose(
        writeFile(data.path(), QStringLiteral("mine.pdf"), pdfWithText("Levan 2020"))));
    wait(sent.model().send());
    ASSERT_TRUE(sent.model().sent()) << sent.model().error().value_or(QString()).toStdString();

    for (const Lang lang : {Lang::ka, Lang::en, Lang::ru}) {
        context->appState.setLang(lang);
        const QString suffix = rawValue(lang);
        ApplySheet sheet(services(), withQuestions(), [](const QUrl&) { return false; });
        show(sheet);
        QTRY_VERIFY(part(sheet, "applySend")->isVisible());
        sheet.pickFile(writeFile(data.path(), QStringLiteral("CV.PDF"),
                                 pdfWithText("Levan Gelashvili 2018 2024 levan@example.ge")));
        QTRY_VERIFY(sheet.model().check().has_value());
        part<QPushButton>(sheet, "applySend")->click();
        QTRY_VERIFY(part(sheet, "applyError")->isVisible());
        saveScreenshot(&sheet, QStringLiteral("apply-sheet-") + suffix);

        MyApplicationsScreen list(services());
        show(list);
        QTRY_VERIFY(!list.model().loading());
        EXPECT_GE(part<QListWidget>(list, "applicationList")->count(), 1);
        saveScreenshot(&list, QStringLiteral("my-applications-") + suffix);
    }
}

TEST_F(ApplyScreens, MyApplicationsIsEmptyFailsWithRetryAndAConversationWithdraws)
{
    MyApplicationsScreen empty(services());
    show(empty);
    QTRY_VERIFY(!empty.model().loading());
    EXPECT_TRUE(empty.findChild<QLabel*>() != nullptr);
    EXPECT_EQ(part<QListWidget>(empty, "applicationList")->count(), 0);
    EXPECT_FALSE(part(empty, "applicationList")->isVisible());

    signIn();
    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"GET","path":"/api/app/v1/my/activity","mode":"html"})");
    MyApplicationsScreen failing(services());
    show(failing);
    QTRY_VERIFY(!failing.model().loading());
    auto* retry = button(failing, L10n::text(Key::retry, Lang::en));
    ASSERT_TRUE(retry && retry->isVisible());
    sandbox.devPost(QStringLiteral("/dev/fault/clear"), "{}");
    retry->click();
    QTRY_VERIFY(!retry->isVisible());
    EXPECT_FALSE(failing.model().error());

    ApplySheetModel sheet(services(), withQuestions(false));
    sheet.name = QStringLiteral("Levan");
    ASSERT_TRUE(sheet.choose(writeFile(data.path(), QStringLiteral("a.pdf"), pdfWithText("x"))));
    wait(sheet.send());
    ASSERT_TRUE(sheet.sent());
    const auto entry = context->candidateStore.entry(sheet.sentRef());
    CandidateConversationScreen screen(services(), entry->ref, entry->key);
    show(screen);
    QTRY_VERIFY(screen.model().conversation().has_value());
    auto* withdraw = screen.findChild<ConfirmRow*>();
    ASSERT_TRUE(withdraw && withdraw->isVisible());
    wait(screen.model().withdraw());
    EXPECT_EQ(screen.model().conversation()->application.status, QStringLiteral("withdrawn"));
    EXPECT_FALSE(withdraw->isVisible());
}
