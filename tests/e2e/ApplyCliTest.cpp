#include "tests/support/CliProcess.h"
#include "tests/support/CvFiles.h"
#include "tests/support/SandboxProcess.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

using namespace vl::test;

namespace {

const QString seekerEmail = QStringLiteral("levan.gelashvili@gmail.com");

class ApplyCliTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!hasSessionBus())
            GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides "
                            "one)";
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        cli.run({QStringLiteral("lang"), QStringLiteral("en")});
    }

    // The keyring is the session's: nobody stays signed in for the tests that follow.
    void TearDown() override
    {
        if (!hasSessionBus() || !sandbox.started())
            return;
        run({QStringLiteral("candidate"), QStringLiteral("sign-out")});
        run({QStringLiteral("employer"), QStringLiteral("sign-out")});
    }

    CliProcess::Run run(const QStringList& args) const { return cli.run(args); }

    // A mail-only job seeker: the mailed code alone signs in.
    void signInSeeker() const
    {
        run({QStringLiteral("candidate"), QStringLiteral("request-code"), seekerEmail});
        const auto verified = run({QStringLiteral("candidate"), QStringLiteral("verify"),
                                   seekerEmail, sandbox.lastCode(seekerEmail)});
        ASSERT_EQ(verified.json[QStringLiteral("step")], QStringLiteral("signedIn"))
            << verified.out.toStdString() << verified.err.toStdString();
    }

    void signInEmployer(const QString& email) const
    {
        run({QStringLiteral("employer"), QStringLiteral("request-code"), email});
        const auto verified = run(
            {QStringLiteral("employer"), QStringLiteral("verify"), email, sandbox.lastCode(email)});
        ASSERT_EQ(verified.exitCode, 0) << verified.err.toStdString();
    }

    // A vacancy that takes applications here, with no form of its own: a CV is needed.
    QString plainListing() const
    {
        const auto page = run({QStringLiteral("api"), QStringLiteral("GET"), QStringLiteral("jobs"),
                               QStringLiteral(R"({"kind":"vacancy"})")});
        for (const auto& item : page.json[QStringLiteral("items")].toArray()) {
            const QString ref = item[QStringLiteral("ref")].toString();
            const auto detail =
                run({QStringLiteral("api"), QStringLiteral("GET"), QStringLiteral("jobs/{ref}"),
                     QStringLiteral(R"({"ref":"%1"})").arg(ref)});
            if (detail.json[QStringLiteral("canApply")].toBool() &&
                !detail.json[QStringLiteral("applyOnWeb")].toBool() &&
                detail.json[QStringLiteral("form")].isNull())
                return ref;
        }
        return {};
    }

    QJsonObject itemOf(const QString& ref) const
    {
        const auto listed = run({QStringLiteral("apply"), QStringLiteral("list")});
        for (const auto& item : listed.json[QStringLiteral("items")].toArray()) {
            if (item[QStringLiteral("ref")] == ref)
                return item.toObject();
        }
        return {};
    }

    // The first listing of the board's pages whose detail passes the test, or an empty object.
    QJsonObject firstListing(const std::function<bool(const QJsonObject&)>& fits,
                             const QString& query = {}) const
    {
        for (int page = 1; page <= 10; ++page) {
            const auto found =
                run({QStringLiteral("api"), QStringLiteral("GET"), QStringLiteral("jobs"),
                     QJsonDocument(QJsonObject{{"kind", "vacancy"}, {"page", page}, {"q", query}})
                         .toJson(QJsonDocument::Compact)});
            const QJsonArray items = found.json[QStringLiteral("items")].toArray();
            if (items.isEmpty())
                break;
            for (const auto& item : items) {
                const auto detail =
                    run({QStringLiteral("api"), QStringLiteral("GET"), QStringLiteral("jobs/{ref}"),
                         QStringLiteral(R"({"ref":"%1"})")
                             .arg(item[QStringLiteral("ref")].toString())});
                if (fits(detail.json))
                    return detail.json;
            }
        }
        return {};
    }

    SandboxProcess sandbox;
    CliProcess cli{sandbox.site()};
    QTemporaryDir files;
};

} // namespace

TEST_F(ApplyCliTest, AJobSeekerAppliesWithACvReadsUpdatesItAndWithdraws)
{
    const QString listing = plainListing();
    ASSERT_FALSE(listing.isEmpty());
    const QString cv =
        writeFile(files.path(), QStringLiteral("cv.pdf"),
                  pdfWithText("Levan Gelashvili levan@example.ge 2018 2024 experience"));

    const auto signedOut =
        run({QStringLiteral("apply"), QStringLiteral("send"), listing, QStringLiteral("--cv"), cv});
    EXPECT_EQ(signedOut.exitCode, 1);
    EXPECT_EQ(signedOut.json, (QJsonObject{{"error", "signin"}}));

    signInSeeker();
    const auto noCv = run({QStringLiteral("apply"), QStringLiteral("send"), listing,
                           QStringLiteral("--name"), QStringLiteral("Levan")});
    EXPECT_EQ(noCv.json, (QJsonObject{{"error", "form"},
                                      {"message", "Please attach a PDF or Word document."}}));

    const auto checked = run({QStringLiteral("apply"), QStringLiteral("check"), listing, cv});
    ASSERT_EQ(checked.exitCode, 0) << checked.err.toStdString();
    const QJsonObject check = checked.json[QStringLiteral("check")].toObject();
    EXPECT_TRUE(check[QStringLiteral("readable")].toBool()) << checked.out.toStdString();
    EXPECT_EQ(check[QStringLiteral("jobRef")], listing);
    EXPECT_EQ(checked.json[QStringLiteral("send")],
              check[QStringLiteral("band")] == QStringLiteral("stretch")
                  ? QStringLiteral("Send anyway")
                  : QStringLiteral("Send"));

    const auto sent =
        run({QStringLiteral("apply"), QStringLiteral("send"), listing, QStringLiteral("--name"),
             QStringLiteral("Levan Gelashvili"), QStringLiteral("--phone"),
             QStringLiteral(" 599 12 34 56 "), QStringLiteral("--message"), QStringLiteral("Hello"),
             QStringLiteral("--cv"), cv});
    ASSERT_EQ(sent.exitCode, 0) << sent.out.toStdString() << sent.err.toStdString();
    const QString ref = sent.json[QStringLiteral("ref")].toString();
    EXPECT_EQ(sent.json[QStringLiteral("message")],
              QStringLiteral("Application sent. The employer's reply will arrive by email."));
    EXPECT_TRUE(sent.json[QStringLiteral("moment")][QStringLiteral("points")].toString().startsWith(
        QStringLiteral("10 ")));

    const auto again =
        run({QStringLiteral("apply"), QStringLiteral("send"), listing, QStringLiteral("--name"),
             QStringLiteral("Levan"), QStringLiteral("--last-cv")});
    EXPECT_EQ(again.json[QStringLiteral("message")],
              QStringLiteral("You already applied to this job recently."));

    const QJsonObject row = itemOf(ref);
    EXPECT_EQ(row[QStringLiteral("status")], QStringLiteral("new"));
    EXPECT_EQ(row[QStringLiteral("kind")], QStringLiteral("application"));
    EXPECT_TRUE(row[QStringLiteral("stored")].toBool() && row[QStringLiteral("reported")].toBool());

    const auto opened = run({QStringLiteral("apply"), QStringLiteral("open"), ref});
    ASSERT_EQ(opened.exitCode, 0) << opened.err.toStdString();
    const QJsonObject application = opened.json[QStringLiteral("application")].toObject();
    EXPECT_EQ(application[QStringLiteral("jobRef")], listing);
    EXPECT_EQ(application[QStringLiteral("cv")][QStringLiteral("name")], QStringLiteral("cv.pdf"));

    const auto same = run({QStringLiteral("apply"), QStringLiteral("cv-update"), ref, cv});
    EXPECT_EQ(same.json[QStringLiteral("message")],
              QStringLiteral("That is the same file the employer already has, so nothing was "
                             "sent."));
    const QString newer = writeFile(files.path(), QStringLiteral("CV-2026.PDF"),
                                    pdfWithText("Levan Gelashvili updated 2026"));
    const auto updated = run({QStringLiteral("apply"), QStringLiteral("cv-update"), ref, newer,
                              QStringLiteral("--note"), QStringLiteral("Now with 2026")});
    ASSERT_EQ(updated.exitCode, 0) << updated.out.toStdString();
    EXPECT_EQ(updated.json[QStringLiteral("message")],
              QStringLiteral("Your updated CV is with the employer now."));
    EXPECT_EQ(updated.json[QStringLiteral("cv")][QStringLiteral("left")], 2);
    EXPECT_EQ(updated.json[QStringLiteral("cv")][QStringLiteral("name")],
              QStringLiteral("CV-2026.PDF"));

    const auto withdrawn = run({QStringLiteral("apply"), QStringLiteral("withdraw"), ref});
    EXPECT_EQ(withdrawn.json, (QJsonObject{{"status", "withdrawn"}}));
    const auto closed = run({QStringLiteral("apply"), QStringLiteral("cv-update"), ref, cv});
    EXPECT_EQ(closed.json[QStringLiteral("message")],
              QStringLiteral("This application can no longer take a new CV."));
    EXPECT_EQ(itemOf(ref)[QStringLiteral("status")], QStringLiteral("withdrawn"));
}

TEST_F(ApplyCliTest, ASeekerPostTakesAnEmployersMessageOnceLiveAndTheThreadShows)
{
    const auto missing = run({QStringLiteral("seeker"), QStringLiteral("post"),
                              QStringLiteral(R"({"name":"Levan","email":"%1"})").arg(seekerEmail)});
    EXPECT_EQ(missing.json, (QJsonObject{{"error", "form"},
                                         {"message", "Please fill in this field."},
                                         {"badField", "age"}}));
    const auto posted =
        run({QStringLiteral("seeker"), QStringLiteral("post"),
             QStringLiteral(R"({"name":"Levan","email":"%1","age":"31","headline":"Night porter",
                "about":"Ten years on hotel desks in Batumi.","city":"batumi"})")
                 .arg(seekerEmail)});
    ASSERT_EQ(posted.exitCode, 0) << posted.out.toStdString();
    const QString ref = posted.json[QStringLiteral("ref")].toString();
    EXPECT_EQ(posted.json[QStringLiteral("message")],
              QStringLiteral("Submitted. Your profile goes live after a quick review; replies "
                             "arrive by email."));

    // A seeded live profile: without an employer the sheet asks for a sign-in.
    const auto signedOut = run({QStringLiteral("seeker"), QStringLiteral("contact"),
                                QStringLiteral("S-1000"), QStringLiteral("Hello there")});
    EXPECT_EQ(signedOut.json,
              (QJsonObject{{"error", "form"}, {"message", "Sign in to write to job seekers."}}));

    const QStringList contact{QStringLiteral("seeker"), QStringLiteral("contact"), ref,
                              QStringLiteral("Would you work nights at our hotel?")};
    const auto early = run(contact);
    EXPECT_EQ(early.exitCode, 1); // still in review: not found
    signInEmployer(QStringLiteral("hr@batumibay.ge"));
    EXPECT_EQ(run(contact).exitCode, 1);

    const QString later = QDateTime::currentDateTimeUtc().addSecs(11 * 60).toString(Qt::ISODate);
    sandbox.devPost(QStringLiteral("/dev/clock"),
                    QJsonDocument(QJsonObject{{"now", later}}).toJson());
    const auto written = run(contact);
    ASSERT_EQ(written.exitCode, 0) << written.out.toStdString();
    const QString thread = written.json[QStringLiteral("threadId")].toString();
    EXPECT_FALSE(thread.isEmpty());

    signInSeeker();
    const auto activity =
        run({QStringLiteral("api"), QStringLiteral("GET"), QStringLiteral("my/activity")});
    ASSERT_EQ(activity.exitCode, 0) << activity.out.toStdString();
    const QJsonArray threads = activity.json[QStringLiteral("seekerThreads")].toArray();
    ASSERT_EQ(threads.size(), 1);
    EXPECT_EQ(threads[0][QStringLiteral("id")], thread);
    EXPECT_EQ(threads[0][QStringLiteral("seekerRef")], ref);
    EXPECT_EQ(threads[0][QStringLiteral("preview")],
              QStringLiteral("Would you work nights at our hotel?"));
    EXPECT_EQ(activity.json[QStringLiteral("seekerProfiles")][0][QStringLiteral("status")],
              QStringLiteral("live"));
}

TEST_F(ApplyCliTest, TheEmployersQuestionsAreAnsweredByIdAndAWebOnlyListingSaysSo)
{
    const QJsonObject asking = firstListing([](const QJsonObject& job) {
        if (!job[QStringLiteral("canApply")].toBool() || job[QStringLiteral("applyOnWeb")].toBool())
            return false;
        for (const auto& field : job[QStringLiteral("form")][QStringLiteral("fields")].toArray()) {
            if (field[QStringLiteral("required")].toBool())
                return true;
        }
        return false;
    });
    ASSERT_FALSE(asking.isEmpty());
    const QJsonObject webOnly = firstListing(
        [](const QJsonObject& job) { return job[QStringLiteral("applyOnWeb")].toBool(); },
        QStringLiteral("kalata"));
    ASSERT_FALSE(webOnly.isEmpty());
    signInSeeker();

    const QString cv = writeFile(files.path(), QStringLiteral("cv.pdf"), pdfWithText("Levan 2020"));
    QStringList send{QStringLiteral("apply"),
                     QStringLiteral("send"),
                     asking[QStringLiteral("ref")].toString(),
                     QStringLiteral("--name"),
                     QStringLiteral("Levan"),
                     QStringLiteral("--phone"),
                     QStringLiteral("599112233"),
                     QStringLiteral("--message"),
                     QStringLiteral("Hello there"),
                     QStringLiteral("--cv"),
                     cv};
    const QJsonArray fields = asking[QStringLiteral("form")][QStringLiteral("fields")].toArray();
    QString firstRequired;
    for (const auto& field : fields) {
        if (field[QStringLiteral("required")].toBool() && firstRequired.isEmpty())
            firstRequired = field[QStringLiteral("id")].toString();
    }
    const auto unanswered = run(send);
    EXPECT_EQ(unanswered.exitCode, 1);
    EXPECT_EQ(unanswered.json, (QJsonObject{{"error", "form"},
                                            {"message", "Please answer this question."},
                                            {"badField", firstRequired}}));

    for (const auto& field : fields) {
        const auto options = field[QStringLiteral("options")].toArray();
        const QString answer =
            options.isEmpty() ? QStringLiteral("2020-05-01") : options[0].toString();
        send << QStringLiteral("--answer")
             << field[QStringLiteral("id")].toString() + QLatin1Char('=') + answer;
    }
    const auto answered = run(send);
    ASSERT_EQ(answered.exitCode, 0) << answered.out.toStdString() << answered.err.toStdString();
    EXPECT_EQ(answered.json[QStringLiteral("sent")], true);
    EXPECT_EQ(answered.json[QStringLiteral("ref")].toString().isEmpty(), false);

    const auto refused = run({QStringLiteral("apply"), QStringLiteral("send"),
                              webOnly[QStringLiteral("ref")].toString(), QStringLiteral("--name"),
                              QStringLiteral("Levan"), QStringLiteral("--cv"), cv});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.json,
              (QJsonObject{
                  {"error", "form"},
                  {"message", "This employer asks their own questions, which open on the website."},
                  {"webFormOnly", true}}));
}
