#include "sandbox/board/ApplyForm.h"

#include "sandbox/Locale.h"

#include <QJsonArray>
#include <QList>

namespace vl::ApplyForm {

namespace {

struct Field {
    const char* type;
    const char* id;
    bool required;
    Trilingual label;
    Trilingual help;
    // Options separated by "|", per language; empty for free answers.
    Trilingual options;
};

struct Form {
    const char* key;
    const char* cv;
    const char* message;
    const char* phone;
    QList<Field> fields;
};

Trilingual t(const char* ka, const char* en, const char* ru)
{
    return {QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)};
}

const QList<Form>& forms()
{
    static const QList<Form> list{
        {"hotel",
         "optional",
         "optional",
         "required",
         {{"yesno",
           "english",
           true,
           t("საუბრობთ ინგლისურად?", "Do you speak English?", "Говорите ли вы по-английски?"),
           t("ჩვენი სტუმრების უმეტესობა უცხოელია.", "Most of our guests come from abroad.",
             "Большинство наших гостей — иностранцы."),
           {}},
          {"multi", "shifts", true,
           t("რომელ ცვლებში შეგიძლიათ მუშაობა?", "Which shifts can you work?",
             "В какие смены вы можете работать?"),
           t("მონიშნეთ ყველა, რომელიც გაწყობთ.", "Tick every one that suits you.",
             "Отметьте все подходящие."),
           t("დილის|საღამოს|ღამის", "Morning|Evening|Night", "Утренняя|Вечерняя|Ночная")},
          {"date",
           "start",
           false,
           t("როდის შეგიძლიათ მუშაობის დაწყება?", "When can you start?",
             "Когда вы можете приступить?"),
           {},
           {}}}},
        {"it",
         "required",
         "optional",
         "optional",
         {{"text",
           "portfolio",
           true,
           t("ბმული თქვენს GitHub-ზე ან პორტფოლიოზე", "Link to your GitHub or portfolio",
             "Ссылка на GitHub или портфолио"),
           t("საკმარისია საჯარო ბმული.", "A public link is enough.",
             "Достаточно публичной ссылки."),
           {}},
          {"number",
           "years",
           true,
           t("პროფესიული გამოცდილება (წელი)", "Years of professional experience",
             "Опыт работы (лет)"),
           {},
           {}},
          {"choice",
           "format",
           false,
           t("სასურველი სამუშაო ფორმატი", "Preferred way of working",
             "Предпочтительный формат работы"),
           {},
           t("ოფისში|ჰიბრიდული|დისტანციური", "Office|Hybrid|Remote", "Офис|Гибрид|Удалённо")}}},
        {"clinic",
         "required",
         "off",
         "required",
         {{"yesno",
           "licence",
           true,
           t("გაქვთ მოქმედი სახელმწიფო სერტიფიკატი?", "Do you hold a valid licence to practise?",
             "Есть ли у вас действующий сертификат специалиста?"),
           {},
           {}},
          {"choice",
           "schedule",
           true,
           t("რომელი გრაფიკი გაწყობთ?", "Which schedule suits you?", "Какой график вам подходит?"),
           {},
           t("დღის|ღამის|ცვლიანი", "Day|Night|Shifts", "Дневной|Ночной|Сменный")}}},
    };
    return list;
}

const Form* find(const QString& key)
{
    for (const Form& form : forms()) {
        if (key == QLatin1String(form.key))
            return &form;
    }
    return nullptr;
}

} // namespace

bool exists(const QString& key)
{
    return find(key) != nullptr;
}

QJsonObject toJson(const QString& key, const QString& lang)
{
    const Form* form = find(key);
    if (!form)
        return {};
    QJsonArray fields;
    for (const Field& field : form->fields) {
        QJsonObject out{{QStringLiteral("type"), QString::fromLatin1(field.type)},
                        {QStringLiteral("id"), QString::fromLatin1(field.id)},
                        {QStringLiteral("label"), field.label.in(lang)},
                        {QStringLiteral("help"), field.help.in(lang)},
                        {QStringLiteral("required"), field.required}};
        if (!field.options.in(lang).isEmpty())
            out.insert(QStringLiteral("options"),
                       QJsonArray::fromStringList(field.options.in(lang).split(u'|')));
        fields.append(out);
    }
    return {{QStringLiteral("v"), 1},
            {QStringLiteral("cv"), QString::fromLatin1(form->cv)},
            {QStringLiteral("message"), QString::fromLatin1(form->message)},
            {QStringLiteral("phone"), QString::fromLatin1(form->phone)},
            {QStringLiteral("fields"), fields}};
}

} // namespace vl::ApplyForm
