#include "app/applying/ApplySheetModel.h"
#include "app/applying/CandidateConversationModel.h"
#include "app/applying/CvUpdateSheetModel.h"
#include "app/applying/MyApplicationsModel.h"
#include "app/applying/SeekerPostSheetModel.h"
#include "core/l10n/L10n.h"
#include "tests/support/ApplyingFixture.h"
#include "tests/support/CvFiles.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

QString en(Key key)
{
    return L10n::text(key, Lang::en);
}

class ApplyingModelsTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
        ASSERT_TRUE(
            test::signInJobSeeker(*context, sandbox, QStringLiteral("levan.gelashvili@gmail.com")));
    }

    ApplyServices services() { return test::applyServicesIn(*context, data.path()); }

    // The first listings that take applications here, with or without a form of their own.
    JobDetail listing(bool withForm, int skip = 0)
    {
        const auto page = wait(context->api().jobs(JobKind::vacancy, Lang::en, 1, {}, {}, {}, {},
                                                   false, {}, true, nullptr));
        for (const auto& summary : page->items) {
            auto detail = wait(context->api().jobDetail(summary.ref, Lang::en, nullptr));
            if (detail && detail->canApply && !detail->applyOnWeb.value_or(false) &&
                detail->form.has_value() == withForm && skip-- == 0)
                return *detail;
        }
        ADD_FAILURE() << "no listing to apply to";
        return {};
    }

    QString cvPath(const char* name, const QByteArray& text = "Levan 2020 levan@example.ge")
    {
        return writeFile(data.path(), QString::fromLatin1(name), pdfWithText(text));
    }

    void fault(const QString& method, const QString& path, const QString& code)
    {
        sandbox.devPost(QStringLiteral("/dev/fault"),
                        QJsonDocument(QJsonObject{{"method", method},
                                                  {"path", QStringLiteral("/api/app/v1/") + path},
                                                  {"mode", "status"},
                                                  {"status", 400},
                                                  {"body", "envelope"},
                                                  {"code", code}})
                            .toJson());
    }

    QString sendOne(const JobDetail& job, const QString& cv)
    {
        ApplySheetModel sheet(services(), job);
        sheet.name = QStringLiteral("Levan");
        EXPECT_TRUE(sheet.choose(cv));
        wait(sheet.send());
        EXPECT_TRUE(sheet.sent()) << sheet.error().value_or(QString()).toStdString();
        return sheet.sentRef();
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    QTemporaryDir data;
};

} // namespace

TEST_F(ApplyingModelsTest, EveryRefusalKeepsTheFormAndTheCvAndSigninClearsOnlyTheAddress)
{
    ApplySheetModel sheet(services(), listing(false));
    sheet.name = QStringLiteral("Levan");
    sheet.phone = QStringLiteral("599");
    sheet.message = QStringLiteral("Hello");
    sheet.answers[QStringLiteral("extra")] = QStringLiteral("yes");
    ASSERT_TRUE(sheet.choose(cvPath("cv.pdf")));
    const CvFile cv = *sheet.cv();

    const std::pair<const char*, QString> refusals[] = {
        {"rate", en(Key::errRate)},
        {"already", en(Key::errAlready)},
        {"answers", en(Key::errAnswers)},
        {"cv_size", en(Key::errCvSize)},
        {"something_new", en(Key::errGeneric)},
        {"form_web_only", en(Key::applyOnSiteWhy)},
    };
    for (const auto& [code, message] : refusals) {
        fault(QStringLiteral("POST"), QStringLiteral("apply"), QString::fromLatin1(code));
        wait(sheet.send());
        EXPECT_EQ(sheet.error(), message) << code;
        EXPECT_FALSE(sheet.sent() || sheet.sending()) << code;
        EXPECT_EQ(sheet.cv(), cv) << code;
        EXPECT_EQ(sheet.name + sheet.phone + sheet.message, QStringLiteral("Levan599Hello"));
        EXPECT_EQ(sheet.answers.size(), 1u);
    }
    EXPECT_TRUE(sheet.webFormOnly());

    context->preferences().setValue(QStringLiteral("vl.seekerDeclined"), false);
    fault(QStringLiteral("POST"), QStringLiteral("apply"), QStringLiteral("signin"));
    wait(sheet.send());
    EXPECT_FALSE(context->candidate.signedIn());
    EXPECT_FALSE(context->preferences().contains(QStringLiteral("vl.candidateEmail")));
    EXPECT_FALSE(context->candidate.declined());
    EXPECT_EQ(sheet.cv(), cv);
    EXPECT_EQ(sheet.message, QStringLiteral("Hello"));

    // With nobody signed in the send stops silently: the gate has the word.
    sandbox.devPost(QStringLiteral("/dev/fault/clear"), "{}");
    wait(sheet.send());
    EXPECT_FALSE(sheet.sent());
}

TEST_F(ApplyingModelsTest, ASuccessStoresOneEntryAndReplacesTheLastCvAndThePhone)
{
    const JobDetail job = listing(false);
    ApplySheetModel sheet(services(), job);
    wait(sheet.open());
    EXPECT_FALSE(sheet.lastCv());
    sheet.name = QStringLiteral("Levan");
    sheet.phone = QStringLiteral("  599 11 22 33 ");
    wait(sheet.pick(cvPath("old.pdf")));
    ASSERT_TRUE(sheet.choose(cvPath("Levan CV.PDF", "Levan Gelashvili 2021 levan@example.ge")));
    wait(sheet.runCheck());
    ASSERT_TRUE(sheet.check());
    EXPECT_EQ(sheet.check()->jobRef, job.ref);
    wait(sheet.send());
    ASSERT_TRUE(sheet.sent()) << sheet.error().value_or(QString()).toStdString();
    ASSERT_TRUE(sheet.moment());
    EXPECT_EQ(sheet.moment()->chips, std::vector<QString>{QStringLiteral("+10")});

    const auto& entries = context->candidateStore.entries();
    EXPECT_EQ(std::count_if(entries.begin(), entries.end(),
                            [&](const auto& e) { return e.ref == sheet.sentRef(); }),
              1);
    EXPECT_EQ(entries.front().kind, QStringLiteral("application"));
    EXPECT_EQ(entries.front().jobTitle, job.title);
    EXPECT_EQ(context->preferences().string(QStringLiteral("vl.myPhone")),
              QStringLiteral("599 11 22 33"));
    const QDir folder(services().lastCvFolder);
    EXPECT_EQ(folder.entryList(QDir::Files), QStringList{QStringLiteral("Levan CV.PDF")});
    EXPECT_EQ(context->preferences().value(QStringLiteral("vl.lastCv")).toStringList(),
              (QStringList{"Levan CV.PDF", "application/pdf"}));

    // The next application offers it, and its phone; a second success replaces the file.
    ApplySheetModel next(services(), listing(false, 1));
    wait(next.open());
    ASSERT_TRUE(next.lastCv());
    EXPECT_EQ(next.lastCv()->data, sheet.cv()->data);
    EXPECT_EQ(next.phone, QStringLiteral("599 11 22 33"));
    sendOne(listing(false, 2), cvPath("second.docx"));
    EXPECT_EQ(folder.entryList(QDir::Files), QStringList{QStringLiteral("second.docx")});

    // A remembered name of one element is no last CV at all.
    context->preferences().setValue(QStringLiteral("vl.lastCv"),
                                    QStringList{QStringLiteral("second.docx")});
    wait(next.open());
    EXPECT_FALSE(next.lastCv());
}

TEST_F(ApplyingModelsTest, CvUpdatesAnswerWithTheirCodesAndLimitsWithdrawTheOffer)
{
    const QString ref = sendOne(listing(false), cvPath("cv.pdf"));
    const auto entry = context->candidateStore.entry(ref);
    ASSERT_TRUE(entry);
    CandidateConversationModel conversation(services(), ref, entry->key);
    wait(conversation.load());
    ASSERT_TRUE(conversation.conversation());
    const CandidateCvDTO cv = *conversation.conversation()->application.cv;
    EXPECT_TRUE(cv.canUpdate);
    const auto copy = wait(conversation.cvCopy());
    ASSERT_TRUE(copy);
    QFile opened(*copy);
    ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
    EXPECT_EQ(opened.readAll(), pdfWithText("Levan 2020 levan@example.ge"));
    EXPECT_TRUE(copy->endsWith(QStringLiteral("/cv.pdf")));

    CvUpdateSheetModel sheet(services(), ref, entry->key, cv);
    QObject::connect(&sheet, &CvUpdateSheetModel::sent, &conversation,
                     &CandidateConversationModel::cvUpdated);
    EXPECT_FALSE(sheet.choose(writeFile(data.path(), QStringLiteral("cv.rtf"), "{\\rtf1}")));
    EXPECT_EQ(sheet.error(), en(Key::errCvType));
    auto attempt = [&](const QString& path) {
        sheet.note = QStringLiteral("note");
        EXPECT_TRUE(sheet.choose(path));
        wait(sheet.send());
        return sheet.error().value_or(QString());
    };
    EXPECT_EQ(attempt(cvPath("cv.pdf")), en(Key::cvUpdateSame));
    EXPECT_EQ(
        attempt(writeFile(data.path(), QStringLiteral("macro.docx"), "PK\3\4word/vbaProject.bin")),
        en(Key::cvUpdateUnsafe));
    EXPECT_EQ(sheet.note, QStringLiteral("note"));
    for (int i = 1; i <= 3; ++i) {
        const QByteArray text = "Levan version " + QByteArray::number(i);
        EXPECT_EQ(attempt(cvPath("v.pdf", text)), QString());
        EXPECT_EQ(sheet.done()->cv.left, 3 - i);
    }
    EXPECT_TRUE(conversation.newCv());
    EXPECT_EQ(conversation.conversation()->application.cv->left, 0);
    EXPECT_FALSE(conversation.conversation()->application.cv->canUpdate);

    // The service itself refuses a fourth.
    EXPECT_EQ(attempt(cvPath("v.pdf", "Levan version 4")),
              L10n::textNMax(Key::cvUpdateLimit, Lang::en, 0, 3));
    EXPECT_TRUE(sheet.refused());
}

TEST_F(ApplyingModelsTest, MyApplicationsMergesByRefAndAVanishedOneLeavesTheStore)
{
    const QString sent = sendOne(listing(false), cvPath("cv.pdf"));
    CandidateEntry gone{
        QStringLiteral("A-GONE"),      QStringLiteral("k"),
        QStringLiteral("Old"),         QStringLiteral("E"),
        QStringLiteral("application"), QDateTime(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC)};
    wait(context->candidateStore.add(gone));

    MyApplicationsModel list(services());
    wait(list.load());
    EXPECT_FALSE(list.error());
    ASSERT_EQ(list.rows().size(), 2u);
    EXPECT_EQ(list.rows()[0].ref, sent);
    EXPECT_TRUE(list.rows()[0].stored && list.rows()[0].reported);
    EXPECT_EQ(list.rows()[1].ref, QStringLiteral("A-GONE"));
    EXPECT_FALSE(list.rows()[1].reported);

    CandidateConversationModel conversation(services(), gone.ref, gone.key);
    wait(conversation.load());
    EXPECT_EQ(conversation.error(), en(Key::errGeneric));
    EXPECT_FALSE(context->candidateStore.entry(gone.ref));
    EXPECT_EQ(list.rows().size(), 1u);

    CandidateConversationModel mine(services(), sent, {});
    wait(mine.withdraw());
    EXPECT_EQ(mine.conversation()->application.status, QStringLiteral("withdrawn"));
}

TEST_F(ApplyingModelsTest, SeekerPostRefusalsMarkTheirField)
{
    SeekerPostSheetModel sheet(services());
    wait(sheet.send());
    EXPECT_EQ(sheet.badField(), QStringLiteral("name"));
    sheet.form.name = QStringLiteral("Levan");
    sheet.form.email = QStringLiteral("levan@example.ge");
    sheet.form.age = QStringLiteral("31");
    sheet.form.headline = QStringLiteral("Porter");
    sheet.form.about = QStringLiteral("Hotel desks.");
    fault(QStringLiteral("POST"), QStringLiteral("seekers/post"), QStringLiteral("seek.title"));
    wait(sheet.send());
    EXPECT_EQ(sheet.badField(), QStringLiteral("headline"));
    EXPECT_EQ(sheet.error(), en(Key::errRequired));
    fault(QStringLiteral("POST"), QStringLiteral("seekers/post"), QStringLiteral("post.daily"));
    wait(sheet.send());
    EXPECT_EQ(sheet.error(), en(Key::errRate));
    EXPECT_FALSE(sheet.badField());
    sandbox.devPost(QStringLiteral("/dev/fault/clear"), "{}");
    wait(sheet.send());
    ASSERT_TRUE(sheet.sent());
    ASSERT_FALSE(context->seekerStore.entries().empty());
    EXPECT_EQ(context->seekerStore.entries().front().ref, *sheet.ref());
    EXPECT_EQ(context->seekerStore.entries().front().title, QStringLiteral("Porter"));
}
