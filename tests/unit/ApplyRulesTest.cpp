#include "core/applying/ApplyRules.h"

#include "core/applying/AnswerText.h"
#include "core/applying/ApplicationStatus.h"
#include "core/applying/CvUpdateRules.h"
#include "core/applying/SeekerPostForm.h"
#include "core/l10n/L10n.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>
#include <gtest/gtest.h>

using namespace vl;
using L10n::Key;

namespace {

const QString docxMime =
    QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.document");

CvFile pdf()
{
    return {"%PDF-1.4 cv", QStringLiteral("cv.pdf"), QStringLiteral("application/pdf")};
}

FormSpecDTO::Field question(const char* id, bool required)
{
    return {.type = QStringLiteral("text"),
            .id = QString::fromLatin1(id),
            .label = QStringLiteral("Q"),
            .help = {},
            .required = required,
            .options = std::nullopt};
}

JobDetail listing(std::optional<FormSpecDTO> form)
{
    JobDetail job;
    job.ref = QStringLiteral("VL-1");
    job.form = std::move(form);
    return job;
}

FormSpecDTO strictForm()
{
    return {
        .v = 1,
        .cv = QStringLiteral("required"),
        .message = QStringLiteral("required"),
        .phone = QStringLiteral("required"),
        .fields = {question("first", false), question("second", true), question("third", true)}};
}

std::optional<Key> messageOf(const std::optional<FormRefusal>& refusal)
{
    return refusal ? refusal->message : std::nullopt;
}

const std::optional<QString> signedIn = QStringLiteral("me@example.ge");

} // namespace

TEST(CvPick, SizeIsJudgedFirstAndTheExtensionAloneDecidesTheKind)
{
    const QByteArray limit(CvPick::maxBytes, 'x');
    ASSERT_EQ(limit.size(), 5242880);
    EXPECT_TRUE(std::holds_alternative<CvFile>(CvPick::accept(QStringLiteral("a.pdf"), limit)));
    EXPECT_EQ(std::get<Key>(CvPick::accept(QStringLiteral("a.pdf"), limit + 'x')), Key::errCvSize);
    EXPECT_EQ(std::get<Key>(CvPick::accept(QStringLiteral("a.rtf"), limit + 'x')), Key::errCvSize);

    const auto word = CvPick::accept(QStringLiteral("/home/nino/Desktop/CV.DOCX"), "PK");
    ASSERT_TRUE(std::holds_alternative<CvFile>(word));
    EXPECT_EQ(std::get<CvFile>(word).filename, QStringLiteral("CV.DOCX"));
    EXPECT_EQ(std::get<CvFile>(word).mime, docxMime);
    EXPECT_EQ(CvPick::mimeFor(QStringLiteral("old.Doc")), QStringLiteral("application/msword"));
    // The content plays no part: a PDF named .rtf is refused, anything named .pdf passes.
    EXPECT_EQ(std::get<Key>(CvPick::accept(QStringLiteral("cv.rtf"), "%PDF")), Key::errCvType);
    EXPECT_EQ(std::get<Key>(CvPick::accept(QStringLiteral("cv"), "%PDF")), Key::errCvType);
    EXPECT_EQ(std::get<Key>(CvPick::accept(QStringLiteral("my.pdf/cv"), "%PDF")), Key::errCvType);
}

TEST(ApplyValidation, StopsAtTheFirstFailureInItsFixedOrder)
{
    const JobDetail job = listing(strictForm());
    ApplyDraft draft;
    draft.name = QStringLiteral(" N\t");
    // Everything is wrong at once: each fix uncovers the next check.
    EXPECT_EQ(messageOf(ApplyRules::validate(draft, signedIn, job)), Key::errRequired);
    draft.name = QStringLiteral("Ni");
    EXPECT_EQ(ApplyRules::validate(draft, std::nullopt, job), FormRefusal{});
    EXPECT_EQ(messageOf(ApplyRules::validate(draft, signedIn, job)), Key::errCvType);
    draft.cv = pdf();
    draft.message = QStringLiteral(" \n ");
    EXPECT_EQ(messageOf(ApplyRules::validate(draft, signedIn, job)), Key::errRequired);
    draft.message = QStringLiteral("Hello");
    draft.phone = QStringLiteral("  ");
    EXPECT_EQ(messageOf(ApplyRules::validate(draft, signedIn, job)), Key::errRequired);
    draft.phone = QStringLiteral("599 11 22 33");
    draft.answers[QStringLiteral("third")] = QStringLiteral("yes");
    draft.answers[QStringLiteral("second")] = QStringLiteral("\n");
    EXPECT_EQ(ApplyRules::validate(draft, signedIn, job),
              (FormRefusal{Key::errAnswers, QStringLiteral("second")}));
    draft.answers[QStringLiteral("second")] = QStringLiteral("no");
    EXPECT_EQ(ApplyRules::validate(draft, signedIn, job), std::nullopt);
}

TEST(ApplyValidation, ACvIsNeededUnlessTheListingsFormSaysOtherwise)
{
    ApplyDraft draft;
    draft.name = QStringLiteral("Nino");
    EXPECT_EQ(messageOf(ApplyRules::validate(draft, signedIn, listing(std::nullopt))),
              Key::errCvType);
    FormSpecDTO form;
    form.cv = QStringLiteral("optional");
    EXPECT_EQ(ApplyRules::validate(draft, signedIn, listing(form)), std::nullopt);
    form.cv = QStringLiteral("off");
    EXPECT_EQ(ApplyRules::validate(draft, signedIn, listing(form)), std::nullopt);
}

TEST(ApplyBody, PartsGoInTheirOrderWithAnswersSortedAndEmptyOnesLeftOut)
{
    ApplyDraft draft;
    draft.name = QStringLiteral("Nino");
    draft.phone = QStringLiteral("599");
    draft.message = QStringLiteral("Hi");
    draft.cv =
        CvFile{"PDF\r\nbytes", QStringLiteral("my \"cv\".pdf"), QStringLiteral("application/pdf")};
    draft.poolOptOut = true;
    draft.useTicket = true;
    draft.answers = {{QStringLiteral("zeta"), QStringLiteral("z")},
                     {QStringLiteral("alpha"), QStringLiteral("a")},
                     {QStringLiteral("mid"), QString()}};
    const HsHint ticket{QStringLiteral("ticket"), {}, {}, 1, {}};
    const QByteArray body = ApplyRules::body(draft, QStringLiteral("me@example.ge"),
                                             QStringLiteral("VL-1"), ticket, QStringLiteral("B"));
    auto part = [](const char* name, const char* value) {
        return QByteArray("--B\r\nContent-Disposition: form-data; name=\"") + name + "\"\r\n\r\n" +
               value + "\r\n";
    };
    const QByteArray expected =
        part("job", "VL-1") + part("name", "Nino") + part("email", "me@example.ge") +
        part("phone", "599") + part("message", "Hi") + part("pool", "0") +
        part("gold_ticket", "1") + part("a_alpha", "a") + part("a_zeta", "z") +
        "--B\r\nContent-Disposition: form-data; name=\"cv\"; filename=\"my 'cv'.pdf\"\r\n"
        "Content-Type: application/pdf\r\n\r\nPDF\r\nbytes\r\n--B--\r\n";
    EXPECT_EQ(body, expected);
}

TEST(ApplyBody, TheTicketNeedsATicketHintAndNoCvMeansNoCvPart)
{
    ApplyDraft draft;
    draft.useTicket = true;
    const auto withHint = [&](std::optional<HsHint> hint) {
        return ApplyRules::body(draft, QStringLiteral("e"), QStringLiteral("VL-1"), hint,
                                QStringLiteral("B"));
    };
    EXPECT_FALSE(withHint(HsHint{QStringLiteral("auto"), {}, {}, 1, {}}).contains("gold_ticket"));
    EXPECT_FALSE(withHint(std::nullopt).contains("gold_ticket"));
    EXPECT_FALSE(withHint(std::nullopt).contains("name=\"cv\""));
    EXPECT_TRUE(withHint(std::nullopt).contains("name=\"pool\"\r\n\r\n1\r\n"));
}

TEST(ApplyRules, SendLabelAndFailuresFollowTheirTables)
{
    EXPECT_EQ(ApplyRules::sendLabel(std::nullopt), Key::send);
    CvCheckPayload check;
    check.band = QStringLiteral("possible");
    EXPECT_EQ(ApplyRules::sendLabel(check), Key::send);
    check.band = QStringLiteral("stretch");
    EXPECT_EQ(ApplyRules::sendLabel(check), Key::cvCheckSend);
    EXPECT_EQ(findingGroup(QStringLiteral("critical")), FindingGroup::good);

    using Effect = SendFailure::Effect;
    const Lang en = Lang::en;
    EXPECT_EQ(ApplyRules::applyFailure(APIError::server(QStringLiteral("signin")), en).effect,
              Effect::signin);
    EXPECT_EQ(
        ApplyRules::applyFailure(APIError::server(QStringLiteral("form_web_only")), en).effect,
        Effect::webFormOnly);
    auto said = [&](const APIError& e) { return ApplyRules::applyFailure(e, en).message; };
    EXPECT_EQ(said(APIError::server(QStringLiteral("answers"))), L10n::text(Key::errAnswers, en));
    EXPECT_EQ(said(APIError::server(QStringLiteral("already"))), L10n::text(Key::errAlready, en));
    EXPECT_EQ(said(APIError::server(QStringLiteral("cv_size"))), L10n::text(Key::errCvSize, en));
    EXPECT_EQ(said(APIError::network()), L10n::text(Key::errLoadBody, en));
    EXPECT_EQ(said(APIError::server(QStringLiteral("odd"))), L10n::text(Key::errGeneric, en));
}

TEST(ApplyRules, AQuestionNeedsANameAndTenCharacters)
{
    EXPECT_EQ(messageOf(ApplyRules::validateEnquiry(QStringLiteral("N"), signedIn,
                                                    QStringLiteral("0123456789"))),
              Key::errRequired);
    EXPECT_EQ(ApplyRules::validateEnquiry(QStringLiteral("Ni"), std::nullopt, QString()),
              FormRefusal{});
    EXPECT_EQ(messageOf(ApplyRules::validateEnquiry(QStringLiteral("Ni"), signedIn,
                                                    QStringLiteral("  012345678  "))),
              Key::errRequired);
    EXPECT_EQ(
        ApplyRules::validateEnquiry(QStringLiteral("Ni"), signedIn, QStringLiteral("0123456789")),
        std::nullopt);
}

TEST(CvUpdateRules, CodesReadAsTheirMessagesAndClosedOnesWithdrawTheOffer)
{
    const Lang en = Lang::en;
    auto failure = [&](const char* code) {
        return CvUpdateRules::failure(APIError::server(QString::fromLatin1(code)), en, 3);
    };
    EXPECT_EQ(failure("hired").message, L10n::text(Key::cvUpdateClosed, en));
    EXPECT_TRUE(failure("hired").refused);
    EXPECT_TRUE(failure("limit").refused);
    EXPECT_TRUE(failure("limit").message.contains(QLatin1StringView("3")));
    EXPECT_FALSE(failure("same").refused);
    EXPECT_EQ(failure("same").message, L10n::text(Key::cvUpdateSame, en));
    EXPECT_EQ(failure("cv_unsafe").message, L10n::text(Key::cvUpdateUnsafe, en));
    EXPECT_EQ(failure("rate").message, L10n::text(Key::cvUpdateRate, en));
    EXPECT_EQ(failure("whatever").message, L10n::text(Key::cvUpdateFailed, en));
    EXPECT_EQ(CvUpdateRules::failure(APIError::network(), en, 3).message,
              L10n::text(Key::sendFailed, en));
    EXPECT_EQ(L10n::textNMax(Key::cvUpdatesLeft, en, 1, 3),
              QStringLiteral("Updates left: 1 of 3."));
}

TEST(SeekerPostForm, RequiredFieldsBodyKeysAndRefusals)
{
    SeekerPostForm form;
    EXPECT_EQ(form.missingField(), QStringLiteral("name"));
    form.name = QStringLiteral("Nino");
    form.email = QStringLiteral("n@example.ge");
    form.age = QStringLiteral("27");
    form.headline = QStringLiteral("Barista");
    EXPECT_EQ(form.missingField(), QStringLiteral("about"));
    form.about = QStringLiteral("Five years behind the bar.");
    EXPECT_EQ(form.missingField(), std::nullopt); // the phone may stay empty

    const QJsonObject body = QJsonDocument::fromJson(form.body()).object();
    EXPECT_EQ(body.keys(), (QStringList{"age", "category", "city", "description", "email", "name",
                                        "phone", "title", "type"}));
    EXPECT_EQ(body[QStringLiteral("title")], QStringLiteral("Barista"));
    EXPECT_EQ(body[QStringLiteral("category")], QStringLiteral("other"));
    EXPECT_EQ(body[QStringLiteral("city")], QStringLiteral("tbilisi"));
    EXPECT_EQ(body[QStringLiteral("type")], QStringLiteral("part"));

    const auto field =
        SeekerPostForm::failure(APIError::server(QStringLiteral("seek.age")), Lang::en);
    EXPECT_EQ(field.field, QStringLiteral("age"));
    EXPECT_EQ(field.message, L10n::text(Key::errRequired, Lang::en));
    EXPECT_EQ(
        SeekerPostForm::failure(APIError::server(QStringLiteral("post.daily")), Lang::en).message,
        L10n::text(Key::errRate, Lang::en));
    EXPECT_EQ(SeekerPostForm::failure(APIError::http(500), Lang::en).message,
              L10n::text(Key::errGeneric, Lang::en));
}

TEST(AnswerText, MultiKeepsTheOptionsOrderAndDatesAreTbilisiDays)
{
    EXPECT_EQ(AnswerText::multi(
                  {QStringLiteral("Morning"), QStringLiteral("Evening"), QStringLiteral("Night")},
                  {QStringLiteral("Night"), QStringLiteral("Morning")}),
              QStringLiteral("Morning, Night"));
    // 21:30 UTC is already the next day in Tbilisi.
    EXPECT_EQ(AnswerText::date(QDateTime(QDate(2026, 3, 1), QTime(21, 30), QTimeZone::utc())),
              QStringLiteral("2026-03-02"));
}

TEST(ApplicationStatus, KnownStatusesReadAsStagesAndOthersAsSent)
{
    EXPECT_EQ(applicationStatusText(QStringLiteral("new"), Lang::en), QStringLiteral("Sent"));
    EXPECT_EQ(applicationStatusText(QStringLiteral("withdrawn"), Lang::en),
              QStringLiteral("Withdrawn"));
    EXPECT_EQ(applicationStatusText(QStringLiteral("paused"), Lang::en), QStringLiteral("paused"));
}
