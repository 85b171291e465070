#include "app/applying/EnquirySheet.h"
#include "app/applying/SeekerContactSheet.h"
#include "app/applying/SeekerPostSheet.h"
#include "app/kit/ApplyQuestions.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

class ApplyingSheets : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
    }

    // Whether a label showing exactly this text is visible in the widget.
    static bool says(QWidget& root, const QString& text)
    {
        for (auto* label : root.findChildren<QLabel*>()) {
            if (label->isVisible() && label->text() == text)
                return true;
        }
        return false;
    }

    static QPushButton* button(QWidget& root, const QString& text)
    {
        for (auto* found : root.findChildren<QPushButton*>()) {
            if (found->isVisible() && found->text() == text)
                return found;
        }
        return nullptr;
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
};

} // namespace

TEST_F(ApplyingSheets, APostMarksItsMissingFieldThenShowsItsConfirmation)
{
    SeekerPostSheet sheet(ApplyServices::from(*context));
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&sheet));
    const QString submit = L10n::text(Key::submitReview, Lang::en);
    button(sheet, submit)->click();
    EXPECT_TRUE(says(sheet, L10n::text(Key::errRequired, Lang::en)));
    EXPECT_EQ(sheet.model().badField(), QStringLiteral("name"));
    auto* name = sheet.findChild<QLineEdit*>(QStringLiteral("post-name"));
    EXPECT_EQ(name->property("vlRole"), QStringLiteral("error"));
    EXPECT_EQ(sheet.focusWidget(), name);
    QTest::keyClicks(name, QStringLiteral("Nino"));
    sheet.findChild<QPlainTextEdit*>()->setFocus();
    button(sheet, submit)->click();
    auto* email = sheet.findChild<QLineEdit*>(QStringLiteral("post-email"));
    EXPECT_EQ(sheet.model().badField(), QStringLiteral("email"));
    EXPECT_EQ(name->property("vlRole"), QStringLiteral("plain"));
    EXPECT_EQ(email->property("vlRole"), QStringLiteral("error"));
    EXPECT_EQ(sheet.focusWidget(), email);
    // The frame reads from the theme: it is not the ordinary field's.
    EXPECT_NE(email->grab().toImage().pixelColor(1, email->height() / 2),
              name->grab().toImage().pixelColor(1, name->height() / 2));
    email->clear();

    const std::pair<const char*, const char*> fields[] = {
        {"post-email", "nino@example.ge"}, {"post-age", "24"}, {"post-headline", "Barista"}};
    for (const auto& [name, value] : fields)
        QTest::keyClicks(sheet.findChild<QLineEdit*>(QString::fromLatin1(name)),
                         QString::fromLatin1(value));
    sheet.findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("Three years of coffee."));
    button(sheet, submit)->click();
    QTRY_VERIFY(says(sheet, L10n::text(Key::seekerPosted, Lang::en)));
    EXPECT_EQ(context->seekerStore.entries().front().title, QStringLiteral("Barista"));
}

TEST_F(ApplyingSheets, ContactAsksForAnEmployerFirst)
{
    const auto seeker =
        wait(ApplyingAPI(context->api()).seeker(QStringLiteral("S-1000"), Lang::en, nullptr));
    ASSERT_TRUE(seeker);
    SeekerContactSheet sheet(ApplyServices::from(*context), seeker.value());
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&sheet));
    EXPECT_TRUE(says(sheet, L10n::text(Key::signInToContact, Lang::en)));
    EXPECT_FALSE(button(sheet, L10n::text(Key::send, Lang::en)));
}

TEST_F(ApplyingSheets, AQuestionWaitsBehindTheGate)
{
    const auto page = wait(context->api().jobs(JobKind::vacancy, Lang::en, 1, {}, {}, {}, {}, false,
                                               {}, true, nullptr));
    const auto job = wait(context->api().jobDetail(page->items.front().ref, Lang::en, nullptr));
    EnquirySheet sheet(ApplyServices::from(*context), job.value(),
                       [](const QUrl&) { return false; });
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&sheet));
    EXPECT_FALSE(button(sheet, L10n::text(Key::send, Lang::en)));
    EXPECT_TRUE(button(sheet, L10n::text(Key::candSendCode, Lang::en)));
}

TEST_F(ApplyingSheets, QuestionsMarkTheRefusedFieldAndFollowTheLanguage)
{
    const std::vector<FormSpecDTO::Field> fields{
        {QStringLiteral("yesno"), QStringLiteral("car"), QStringLiteral("A car?"), {}, true, {}},
        {QStringLiteral("text"), QStringLiteral("why"), QStringLiteral("Why?"), {}, true, {}}};
    ApplyQuestions questions(fields, Lang::en, [](const QString&, const QString&) {});
    questions.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&questions));
    auto* yesNo = questions.findChild<QComboBox*>();
    auto* why = questions.findChild<QLineEdit*>();
    EXPECT_EQ(yesNo->itemText(1), L10n::text(Key::yes, Lang::en));

    questions.markBad(QStringLiteral("why"));
    EXPECT_EQ(why->property("vlRole"), QStringLiteral("error"));
    EXPECT_EQ(yesNo->property("vlRole"), QStringLiteral("plain"));
    EXPECT_EQ(questions.focusWidget(), why);
    // Marking the same field again, as a repaint does, leaves the focus where the person put it.
    yesNo->setFocus();
    questions.markBad(QStringLiteral("why"));
    EXPECT_EQ(questions.focusWidget(), yesNo);

    questions.setLang(Lang::ka);
    EXPECT_TRUE(says(questions, L10n::text(Key::applyQuestions, Lang::ka)));
    EXPECT_EQ(yesNo->itemText(1), L10n::text(Key::yes, Lang::ka));
    EXPECT_EQ(yesNo->itemText(2), L10n::text(Key::no, Lang::ka));
    questions.markBad(std::nullopt);
    EXPECT_EQ(why->property("vlRole"), QStringLiteral("plain"));
}
