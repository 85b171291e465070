#include "app/applying/ApplySheetModel.h"
#include "app/applying/SeekerPostSheetModel.h"
#include "core/l10n/L10n.h"
#include "tests/support/ApplyingFixture.h"
#include "tests/support/CvFiles.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

// What the service itself answers, with no faults switched on: the order of its refusals, the
// season's tickets, the CV check's bands, and what a broken answer leaves of the sheet.
class ApplyServiceRulesTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
        ASSERT_TRUE(test::signInJobSeeker(*context, sandbox, email));
    }

    ApplyServices services() { return test::applyServicesIn(*context, data.path()); }

    // Listings in the board's order that pass the test, from as many pages as it takes.
    std::vector<JobDetail> listings(std::size_t count,
                                    const std::function<bool(const JobDetail&)>& fits,
                                    const QString& query = {})
    {
        std::vector<JobDetail> out;
        for (int page = 1; page <= 20 && out.size() < count; ++page) {
            const auto found = wait(context->api().jobs(JobKind::vacancy, Lang::en, page, query, {},
                                                        {}, {}, false, {}, true, nullptr));
            if (!found || found->items.empty())
                break;
            for (const auto& summary : found->items) {
                auto detail = wait(context->api().jobDetail(summary.ref, Lang::en, nullptr));
                if (detail && fits(*detail) && out.size() < count)
                    out.push_back(*detail);
            }
        }
        EXPECT_EQ(out.size(), count) << "not enough listings";
        return out;
    }

    static bool takesApplications(const JobDetail& job)
    {
        return job.canApply && !job.applyOnWeb.value_or(false);
    }

    static bool plain(const JobDetail& job) { return takesApplications(job) && !job.form; }

    static bool asksRequiredQuestion(const JobDetail& job)
    {
        return takesApplications(job) && job.form &&
               std::any_of(job.form->fields.begin(), job.form->fields.end(),
                           [](const auto& field) { return field.required; });
    }

    // A draft every form takes: all slots filled and every question answered.
    static ApplyDraft complete(const JobDetail& job, const QByteArray& cvText = "Levan 2020")
    {
        ApplyDraft draft;
        draft.name = QStringLiteral("Levan");
        draft.phone = QStringLiteral("599112233");
        draft.message = QStringLiteral("Hello, I would like this job.");
        draft.cv = CvFile{pdfWithText(cvText), QStringLiteral("cv.pdf"),
                          QStringLiteral("application/pdf")};
        if (job.form) {
            for (const auto& field : job.form->fields)
                draft.answers[field.id] = QStringLiteral("1");
        }
        return draft;
    }

    // The service's code for this draft, or "ok".
    QString codeOf(AppContext& from, const ApplyDraft& draft, const JobDetail& job)
    {
        ApplyingAPI api(from.api());
        const auto result = wait(api.apply(draft, email, job.ref, {}, Lang::en, nullptr));
        if (result)
            return QStringLiteral("ok");
        return result.error().kind() == APIError::Kind::server
                   ? result.error().code()
                   : QStringLiteral("http %1").arg(result.error().status());
    }

    void fault(const QJsonObject& fault)
    {
        QJsonObject body = fault;
        body.insert(QStringLiteral("method"), QStringLiteral("POST"));
        body.insert(QStringLiteral("path"), QStringLiteral("/api/app/v1/apply"));
        sandbox.devPost(QStringLiteral("/dev/fault"), QJsonDocument(body).toJson());
    }

    // The bodies of the requests the sandbox received at this path, oldest first.
    std::vector<QByteArray> bodiesAt(const QString& path) const
    {
        std::vector<QByteArray> out;
        const QJsonArray log = sandbox.devGet(QStringLiteral("/dev/requests")).toArray();
        for (qsizetype i = log.size() - 1; i >= 0; --i) {
            const QJsonObject entry = log[i].toObject();
            if (entry.value(QStringLiteral("path")).toString() == path)
                out.push_back(QByteArray::fromBase64(
                    entry.value(QStringLiteral("body")).toString().toLatin1()));
        }
        return out;
    }

    // Sends from a fresh sheet as the person would, after it has read the hint.
    std::unique_ptr<ApplySheetModel> sendFromSheet(const JobDetail& job, bool useTicket = false)
    {
        auto sheet = std::make_unique<ApplySheetModel>(services(), job);
        wait(sheet->open());
        const ApplyDraft draft = complete(job);
        sheet->name = draft.name;
        sheet->phone = draft.phone;
        sheet->message = draft.message;
        sheet->answers = draft.answers;
        sheet->useTicket = useTicket;
        EXPECT_TRUE(
            sheet->choose(writeFile(data.path(), QStringLiteral("cv.pdf"), draft.cv->data)));
        wait(sheet->send());
        EXPECT_TRUE(sheet->sent()) << sheet->error().value_or(QString()).toStdString();
        return sheet;
    }

    const QString email = QStringLiteral("levan.gelashvili@gmail.com");
    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    QTemporaryDir data;
};

} // namespace

TEST_F(ApplyServiceRulesTest, TheServiceRefusesInItsOrderAndTheRateComesLast)
{
    const auto open = listings(21, plain);
    ASSERT_EQ(open.size(), 21u);
    const auto asking = listings(1, asksRequiredQuestion);
    ASSERT_EQ(asking.size(), 1u);
    const auto webOnly = listings(
        1, [](const JobDetail& job) { return job.applyOnWeb.value_or(false); },
        QStringLiteral("kalata"));
    ASSERT_EQ(webOnly.size(), 1u);

    // Each draft breaks its own rule and every rule checked after it.
    ApplyDraft everythingWrong;
    everythingWrong.cv =
        CvFile{"{\\rtf1}", QStringLiteral("cv.rtf"), QStringLiteral("application/rtf")};
    const auto anonymous = makeContext({sandbox.site()});
    EXPECT_EQ(codeOf(*anonymous, everythingWrong, open[0]), QStringLiteral("signin"));
    EXPECT_EQ(codeOf(*context, everythingWrong, webOnly[0]), QStringLiteral("form_web_only"));
    EXPECT_EQ(codeOf(*context, everythingWrong, open[0]), QStringLiteral("cv_type"));

    ApplyDraft tooBig = everythingWrong;
    tooBig.cv = CvFile{QByteArray(CvPick::maxBytes + 1, 'x'), QStringLiteral("cv.PDF"),
                       QStringLiteral("application/pdf")};
    EXPECT_EQ(codeOf(*context, tooBig, open[0]), QStringLiteral("cv_size"));
    tooBig.cv->data.chop(1);
    EXPECT_EQ(codeOf(*context, tooBig, open[0]), QStringLiteral("required"));

    ApplyDraft unanswered = complete(asking[0]);
    unanswered.answers.clear();
    EXPECT_EQ(codeOf(*context, unanswered, asking[0]), QStringLiteral("answers"));

    for (std::size_t i = 0; i + 1 < open.size(); ++i) {
        EXPECT_EQ(codeOf(*context, complete(open[i]), open[i]), QStringLiteral("ok"))
            << open[i].ref.toStdString();
    }
    EXPECT_EQ(codeOf(*context, complete(open[0]), open[0]), QStringLiteral("already"));
    EXPECT_EQ(codeOf(*context, complete(open.back()), open.back()), QStringLiteral("rate"));

    // The sheet words the service's own refusals and keeps what was filled in.
    ApplySheetModel sheet(services(), open.back());
    sheet.name = QStringLiteral("Levan");
    ASSERT_TRUE(sheet.choose(writeFile(data.path(), QStringLiteral("cv.pdf"), pdfWithText("CV"))));
    wait(sheet.send());
    EXPECT_EQ(sheet.error(), L10n::text(Key::errRate, Lang::en));
    EXPECT_EQ(sheet.name, QStringLiteral("Levan"));
    EXPECT_TRUE(sheet.cv());
    ApplySheetModel again(services(), open[1]);
    again.name = QStringLiteral("Levan");
    ASSERT_TRUE(again.choose(writeFile(data.path(), QStringLiteral("cv.pdf"), pdfWithText("CV"))));
    wait(again.send());
    EXPECT_EQ(again.error(), L10n::text(Key::errAlready, Lang::en));
}

TEST_F(ApplyServiceRulesTest, EveryThirdApplicationEarnsATicketTheSheetOffersUntilItIsSpent)
{
    const auto jobs = listings(5, plain);
    ASSERT_EQ(jobs.size(), 5u);

    // Nothing to offer yet: the service says "none" and the sheet shows no hint at all.
    const auto standing = wait(services().api.highscoresMe(Lang::en, nullptr));
    ASSERT_TRUE(standing && standing->hint);
    EXPECT_EQ(standing->hint->kind, QStringLiteral("none"));
    ApplySheetModel first(services(), jobs[0]);
    wait(first.open());
    EXPECT_FALSE(first.hint());

    // A ticket asked for without one on offer never goes out.
    for (int i = 0; i < 3; ++i) {
        const auto sheet = sendFromSheet(jobs[i], true);
        ASSERT_TRUE(sheet->moment());
        EXPECT_EQ(sheet->moment()->gold, QString());
    }
    for (const auto& body : bodiesAt(QStringLiteral("/api/app/v1/apply")))
        EXPECT_FALSE(body.contains("gold_ticket"));

    const auto spending = sendFromSheet(jobs[3], true);
    ASSERT_TRUE(spending->hint());
    EXPECT_EQ(spending->hint()->kind, QStringLiteral("ticket"));
    EXPECT_EQ(spending->hint()->tickets, 1);
    ASSERT_TRUE(spending->moment());
    EXPECT_EQ(spending->moment()->gold, QStringLiteral("Ticket used"));
    EXPECT_EQ(spending->moment()->chips,
              (std::vector<QString>{QStringLiteral("+10"), QStringLiteral("Gold ticket")}));
    EXPECT_TRUE(bodiesAt(QStringLiteral("/api/app/v1/apply"))
                    .back()
                    .contains("name=\"gold_ticket\"\r\n\r\n1\r\n"));

    // Four applications stand high on a small board: the hint says so instead.
    ApplySheetModel after(services(), jobs[4]);
    wait(after.open());
    ASSERT_TRUE(after.hint());
    EXPECT_EQ(after.hint()->kind, QStringLiteral("auto"));
    EXPECT_EQ(after.hint()->tickets, 0);
}

TEST_F(ApplyServiceRulesTest, TheCheckBandsFollowTheShareOfTheListingsWordsFound)
{
    const JobDetail job = listings(1, plain).at(0);
    ApplySheetModel sheet(services(), job);
    auto checkWith = [&](const QString& name, const QByteArray& bytes) {
        EXPECT_TRUE(sheet.choose(writeFile(data.path(), name, bytes)));
        wait(sheet.runCheck());
        EXPECT_TRUE(sheet.check()) << name.toStdString();
        return sheet.check().value_or(CvCheckPayload{});
    };

    const CvCheckPayload bare = checkWith(QStringLiteral("bare.pdf"), pdfWithText("Levan"));
    EXPECT_TRUE(bare.readable);
    EXPECT_EQ(bare.band, QStringLiteral("stretch"));
    EXPECT_EQ(sheet.sendLabel(), Key::cvCheckSend);
    QList<QByteArray> terms;
    for (const QString& term : bare.missing) {
        if (term.toLatin1() == term.toUtf8())
            terms.append(term.toLatin1());
    }
    ASSERT_GE(terms.size(), 10) << "the listing has too few plain words to test the bands";
    const qsizetype all = qsizetype(bare.missing.size());

    struct Band {
        int share;
        bool below; // the most terms that stay under the share, else the fewest that reach it
        const char* band;
    };
    const Band bands[] = {{70, false, "strong"},  {70, true, "good"},      {50, false, "good"},
                          {50, true, "possible"}, {30, false, "possible"}, {30, true, "stretch"}};
    int tried = 0;
    for (const auto& [share, below, band] : bands) {
        const qsizetype count = below ? (share * all - 1) / 100 : (share * all + 99) / 100;
        if (count > terms.size())
            continue;
        ++tried;
        const auto payload = checkWith(QStringLiteral("cv%1%2.pdf").arg(share).arg(below),
                                       pdfWithText("Levan 2019 " + terms.first(count).join(' ')));
        EXPECT_EQ(payload.score, int(100 * count / all)) << share << below;
        EXPECT_EQ(payload.band, QString::fromLatin1(band)) << "score " << payload.score;
        EXPECT_EQ(sheet.sendLabel(), below && share == 30 ? Key::cvCheckSend : Key::send);
    }

    EXPECT_GE(tried, 4) << "too few of the listing's words are plain ASCII";

    // A Word file with no document in it is not readable and gets no advice; the label follows.
    const auto unreadable = checkWith(QStringLiteral("broken.docx"), "PK\3\4 nothing here");
    EXPECT_FALSE(unreadable.readable);
    EXPECT_TRUE(unreadable.findings.empty());
    EXPECT_EQ(sheet.sendLabel(), Key::cvCheckSend);

    context->appState.setLang(Lang::ka);
    const auto georgian = checkWith(QStringLiteral("bare2.pdf"), pdfWithText("Levan"));
    ASSERT_FALSE(georgian.findings.empty());
    for (const auto& finding : georgian.findings)
        EXPECT_TRUE(
            finding.text.contains(QRegularExpression(QStringLiteral("[\\x{10D0}-\\x{10FF}]"))))
            << finding.text.toStdString();
}

TEST_F(ApplyServiceRulesTest, BrokenAnswersKeepEveryFieldAndASlowOneIsSentOnce)
{
    const JobDetail job = listings(1, plain).at(0);
    ApplySheetModel sheet(services(), job);
    sheet.name = QStringLiteral("Levan");
    sheet.phone = QStringLiteral("599");
    sheet.message = QStringLiteral("Hello");
    sheet.poolOptOut = true;
    ASSERT_TRUE(sheet.choose(writeFile(data.path(), QStringLiteral("cv.pdf"), pdfWithText("CV"))));
    const CvFile cv = *sheet.cv();

    const QJsonObject faults[] = {
        {{"mode", "html"}},
        {{"mode", "drop"}},
        {{"mode", "status"}, {"status", 502}, {"body", "html"}},
        {{"mode", "status"}, {"status", 200}, {"body", "ok"}},
    };
    for (const auto& broken : faults) {
        fault(broken);
        wait(sheet.send());
        const auto mode = QJsonDocument(broken).toJson(QJsonDocument::Compact).toStdString();
        EXPECT_FALSE(sheet.sent()) << mode;
        EXPECT_FALSE(sheet.sending()) << mode;
        EXPECT_FALSE(sheet.error().value_or(QString()).isEmpty()) << mode;
        EXPECT_EQ(sheet.cv(), cv) << mode;
        EXPECT_EQ(sheet.name + sheet.phone + sheet.message, QStringLiteral("Levan599Hello"));
        EXPECT_TRUE(sheet.poolOptOut);
    }
    EXPECT_TRUE(context->candidateStore.entries().empty());

    fault({{"mode", "slow"}, {"delay", 1}});
    bool pressedAgain = false;
    QTimer::singleShot(200, [&] {
        pressedAgain = sheet.sending();
        wait(sheet.send());
    });
    wait(sheet.send());
    EXPECT_TRUE(pressedAgain);
    EXPECT_TRUE(sheet.sent()) << sheet.error().value_or(QString()).toStdString();
    EXPECT_EQ(context->candidateStore.entries().size(), 1u);
    const auto sentBodies = bodiesAt(QStringLiteral("/api/app/v1/apply"));
    ASSERT_FALSE(sentBodies.empty());
    EXPECT_TRUE(sentBodies.back().contains("name=\"pool\"\r\n\r\n0\r\n"));
}

TEST_F(ApplyServiceRulesTest, ASeekerPostGoesOutWithTheServicesNamesForEveryField)
{
    SeekerPostSheetModel sheet(services());
    sheet.form.name = QStringLiteral("Levan");
    sheet.form.email = QStringLiteral("levan@example.ge");
    sheet.form.phone = QStringLiteral("599112233");
    sheet.form.age = QStringLiteral("31");
    sheet.form.headline = QStringLiteral("Night porter");
    sheet.form.about = QStringLiteral("Ten years at hotel desks.");
    sheet.form.category = QStringLiteral("hospitality");
    wait(sheet.send());
    ASSERT_TRUE(sheet.sent()) << sheet.error().value_or(QString()).toStdString();

    const auto bodies = bodiesAt(QStringLiteral("/api/app/v1/seekers/post"));
    ASSERT_EQ(bodies.size(), 1u);
    const QJsonObject body = QJsonDocument::fromJson(bodies.front()).object();
    QStringList keys = body.keys();
    keys.sort();
    EXPECT_EQ(keys, (QStringList{"age", "category", "city", "description", "email", "name", "phone",
                                 "title", "type"}));
    EXPECT_EQ(body.value(QStringLiteral("title")), QStringLiteral("Night porter"));
    EXPECT_EQ(body.value(QStringLiteral("description")),
              QStringLiteral("Ten years at hotel desks."));
    EXPECT_EQ(body.value(QStringLiteral("city")), QStringLiteral("tbilisi"));
    EXPECT_EQ(body.value(QStringLiteral("type")), QStringLiteral("part"));
}

TEST_F(ApplyServiceRulesTest, ASessionTheServiceEndedSignsOutButKeepsTheForm)
{
    // The session ends on the service's side only: this computer still holds its cookie.
    QNetworkAccessManager elsewhere;
    QNetworkRequest logout(QUrl(sandbox.site() + QStringLiteral("/api/candidate/logout")));
    logout.setHeader(QNetworkRequest::CookieHeader,
                     QVariant::fromValue(context->session().cookieJar()->cookiesForUrl(
                         QUrl(sandbox.site() + QStringLiteral("/api/app/v1/apply")))));
    std::unique_ptr<QNetworkReply> ended(elsewhere.post(logout, QByteArray()));
    QSignalSpy finished(ended.get(), &QNetworkReply::finished);
    ASSERT_TRUE(finished.wait());
    ASSERT_EQ(ended->error(), QNetworkReply::NoError);

    ApplySheetModel sheet(services(), listings(1, plain).at(0));
    sheet.name = QStringLiteral("Levan");
    sheet.message = QStringLiteral("Hello");
    ASSERT_TRUE(sheet.choose(writeFile(data.path(), QStringLiteral("cv.pdf"), pdfWithText("CV"))));
    const CvFile cv = *sheet.cv();
    wait(sheet.send());
    EXPECT_FALSE(context->candidate.signedIn());
    EXPECT_FALSE(sheet.email());
    EXPECT_FALSE(sheet.sent());
    EXPECT_FALSE(sheet.error());
    EXPECT_EQ(sheet.cv(), cv);
    EXPECT_EQ(sheet.name + sheet.message, QStringLiteral("LevanHello"));
    EXPECT_TRUE(context->candidateStore.entries().empty());
}
