#include "core/applying/ApplyRules.h"

#include "core/l10n/L10n.h"
#include "core/service/MultipartForm.h"

namespace vl::ApplyRules {

namespace {

using L10n::Key;

bool blank(const QString& text)
{
    return text.trimmed().isEmpty();
}

// Trims spaces and tabs only: a name of newlines is not what the person typed as a name.
QString trimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    auto isBlank = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); };
    while (start < end && isBlank(text[start]))
        ++start;
    while (end > start && isBlank(text[end - 1]))
        --end;
    return text.mid(start, end - start);
}

FormRefusal refuse(Key key, std::optional<QString> badField = std::nullopt)
{
    return {key, std::move(badField)};
}

std::optional<FormRefusal> validateCv(const ApplyDraft& draft, const JobDetail& job)
{
    if (draft.cv)
        return std::nullopt;
    if (job.form && job.form->cvSlot() != FormSpecDTO::Slot::required)
        return std::nullopt;
    return refuse(Key::errCvType);
}

std::optional<FormRefusal> validateForm(const ApplyDraft& draft, const FormSpecDTO& form)
{
    if (form.messageSlot() == FormSpecDTO::Slot::required && blank(draft.message))
        return refuse(Key::errRequired);
    if (form.phoneSlot() == FormSpecDTO::Slot::required && trimBlanks(draft.phone).isEmpty())
        return refuse(Key::errRequired);
    for (const auto& field : form.fields) {
        if (!field.required)
            continue;
        const auto answer = draft.answers.find(field.id);
        if (answer == draft.answers.end() || blank(answer->second))
            return refuse(Key::errAnswers, field.id);
    }
    return std::nullopt;
}

} // namespace

std::optional<FormRefusal> validate(const ApplyDraft& draft, const std::optional<QString>& email,
                                    const JobDetail& job)
{
    if (trimBlanks(draft.name).size() < 2)
        return refuse(Key::errRequired);
    if (!email)
        return FormRefusal{};
    if (auto refusal = validateCv(draft, job))
        return refusal;
    if (job.form)
        return validateForm(draft, *job.form);
    return std::nullopt;
}

QByteArray body(const ApplyDraft& draft, const QString& email, const QString& jobRef,
                const std::optional<HsHint>& hint, const QString& boundary)
{
    MultipartForm form(boundary);
    form.reserve(4096 + (draft.cv ? draft.cv->data.size() : 0));
    form.text(QStringLiteral("job"), jobRef);
    form.text(QStringLiteral("name"), draft.name);
    form.text(QStringLiteral("email"), email);
    form.text(QStringLiteral("phone"), draft.phone);
    form.text(QStringLiteral("message"), draft.message);
    form.text(QStringLiteral("pool"), draft.poolOptOut ? QStringLiteral("0") : QStringLiteral("1"));
    if (draft.useTicket && hint && hint->offersTicket())
        form.text(QStringLiteral("gold_ticket"), QStringLiteral("1"));
    for (const auto& [id, answer] : draft.answers) {
        if (!answer.isEmpty())
            form.text(QStringLiteral("a_") + id, answer);
    }
    if (draft.cv)
        form.file(QStringLiteral("cv"), draft.cv->filename, draft.cv->mime, draft.cv->data);
    return std::move(form).takeBody();
}

SendFailure applyFailure(const APIError& error, Lang lang)
{
    if (error.isServer(QLatin1StringView("signin")))
        return {SendFailure::Effect::signin, {}};
    if (error.isServer(QLatin1StringView("form_web_only")))
        return {SendFailure::Effect::webFormOnly, L10n::text(Key::applyOnSiteWhy, lang)};
    if (error.isServer(QLatin1StringView("answers")))
        return {SendFailure::Effect::message, L10n::text(Key::errAnswers, lang)};
    return {SendFailure::Effect::message, error.message(lang)};
}

std::optional<FormRefusal> validateEnquiry(const QString& name, const std::optional<QString>& email,
                                           const QString& message)
{
    if (trimBlanks(name).size() < 2)
        return refuse(Key::errRequired);
    if (!email)
        return FormRefusal{};
    if (trimBlanks(message).size() < 10)
        return refuse(Key::errRequired);
    return std::nullopt;
}

SendFailure enquiryFailure(const APIError& error, Lang lang)
{
    if (error.isServer(QLatin1StringView("signin")))
        return {SendFailure::Effect::signin, {}};
    return {SendFailure::Effect::message, error.message(lang)};
}

Key sendLabel(const std::optional<CvCheckPayload>& check)
{
    return check && check->isStretch() ? Key::cvCheckSend : Key::send;
}

} // namespace vl::ApplyRules
