#pragma once

#include "core/json/Json.h"
#include "core/l10n/Lang.h"
#include "core/service/APIError.h"

#include <optional>

namespace vl {

// The fields of a seeker profile as the person fills them in.
struct SeekerPostForm {
    QString name;
    QString email;
    QString phone;
    QString age;
    QString headline;
    QString about;
    QString category = QStringLiteral("other");
    QString city = QStringLiteral("tbilisi");
    QString type = QStringLiteral("part");
    VL_JSON_FIELDS(SeekerPostForm, name, email, phone, age, headline, about, category, city, type)

    // The first required field left blank, by its name in the form; the phone may stay empty.
    std::optional<QString> missingField() const;
    // The body of the post: the headline goes as `title`, the text about oneself as
    // `description`.
    QByteArray body() const;

    // A refused post: its words and, for a "seek.<field>" code, the field to mark.
    struct Failure {
        QString message;
        std::optional<QString> field;
    };
    static Failure failure(const APIError& error, Lang lang);
};

} // namespace vl
