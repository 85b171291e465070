#include "core/applying/SeekerPostForm.h"

#include "core/l10n/L10n.h"
#include "core/service/JsonBody.h"

namespace vl {

std::optional<QString> SeekerPostForm::missingField() const
{
    const std::pair<const char*, const QString*> required[] = {{"name", &name},
                                                               {"email", &email},
                                                               {"age", &age},
                                                               {"headline", &headline},
                                                               {"about", &about}};
    for (const auto& [field, value] : required) {
        if (value->trimmed().isEmpty())
            return QString::fromLatin1(field);
    }
    return std::nullopt;
}

QByteArray SeekerPostForm::body() const
{
    return stringBody({{QStringLiteral("name"), name.trimmed()},
                       {QStringLiteral("email"), email.trimmed()},
                       {QStringLiteral("phone"), phone.trimmed()},
                       {QStringLiteral("age"), age.trimmed()},
                       {QStringLiteral("title"), headline.trimmed()},
                       {QStringLiteral("description"), about.trimmed()},
                       {QStringLiteral("category"), category},
                       {QStringLiteral("city"), city},
                       {QStringLiteral("type"), type}});
}

SeekerPostForm::Failure SeekerPostForm::failure(const APIError& error, Lang lang)
{
    using L10n::Key;
    if (error.kind() != APIError::Kind::server)
        return {L10n::text(Key::errGeneric, lang), std::nullopt};
    const QString& code = error.code();
    if (code.startsWith(QLatin1StringView("seek.")))
        return {L10n::text(Key::errRequired, lang), code.mid(5)};
    if (code.startsWith(QLatin1StringView("post.")))
        return {L10n::text(Key::errRate, lang), std::nullopt};
    return {error.message(lang), std::nullopt};
}

} // namespace vl
