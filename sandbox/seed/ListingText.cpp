#include "sandbox/seed/ListingText.h"

#include "sandbox/board/Taxonomy.h"
#include "sandbox/seed/Company.h"
#include "sandbox/seed/Role.h"

#include <QDate>
#include <QStringList>

namespace vl::ListingText {

namespace {

QString u8(const char* text)
{
    return QString::fromUtf8(text);
}

QString money(const ListingTerms& t, const QString& lang)
{
    const auto amount = [&lang](int value) {
        return lang == QLatin1String("en") ? QStringLiteral("₾%1").arg(value)
                                           : QStringLiteral("%1 ₾").arg(value);
    };
    if (t.salaryMin && t.salaryMax && *t.salaryMin != *t.salaryMax) {
        return lang == QLatin1String("en")
                   ? QStringLiteral("₾%1–%2").arg(*t.salaryMin).arg(*t.salaryMax)
                   : QStringLiteral("%1–%2 ₾").arg(*t.salaryMin).arg(*t.salaryMax);
    }
    if (t.salaryMin && t.salaryMax)
        return amount(*t.salaryMin);
    if (t.salaryMin) {
        const Trilingual from{u8("%1-დან"), u8("from %1"), u8("от %1")};
        return from.in(lang).arg(amount(*t.salaryMin));
    }
    const Trilingual upTo{u8("%1-მდე"), u8("up to %1"), u8("до %1")};
    return upTo.in(lang).arg(amount(*t.salaryMax));
}

QString payLine(const ListingTerms& t, const QString& lang)
{
    if (!t.salaryMin && !t.salaryMax) {
        const Trilingual negotiable{u8("ანაზღაურება — შეთანხმებით."), u8("Pay is negotiable."),
                                    u8("Оплата по договорённости.")};
        return negotiable.in(lang);
    }
    Trilingual line;
    if (t.payType == QLatin1String("hour"))
        line = {u8("ანაზღაურება: %1 საათში."), u8("Pay: %1 an hour."), u8("Оплата: %1 в час.")};
    else if (t.payType == QLatin1String("day"))
        line = {u8("ანაზღაურება: %1 დღეში."), u8("Pay: %1 a day."), u8("Оплата: %1 в день.")};
    else if (t.payType == QLatin1String("fixed"))
        line = {u8("სამუშაოს ანაზღაურება: %1."), u8("Pay for the job: %1."),
                u8("Оплата за работу: %1.")};
    else
        line = {u8("ანაზღაურება: %1 თვეში."), u8("Pay: %1 a month."), u8("Зарплата: %1 в месяц.")};
    return line.in(lang).arg(money(t, lang));
}

bool remote(const ListingTerms& t)
{
    return t.city->key == QLatin1String("remote");
}

QString vacancyIntro(const ListingTerms& t, const QString& lang)
{
    const QString employer = t.company->name.in(lang);
    if (remote(t)) {
        const Trilingual intro{u8("%1 გიწვევთ დისტანციურ სამუშაოზე."),
                               u8("%1 is hiring for a remote role."),
                               u8("%1 приглашает на удалённую работу.")};
        return intro.in(lang).arg(employer);
    }
    const Trilingual intro{u8("%1 გიწვევთ სამუშაოდ %2."), u8("%1 is hiring %2."),
                           u8("%1 приглашает на работу %2.")};
    return intro.in(lang).arg(employer, t.city->where.in(lang));
}

QString gigIntro(const ListingTerms& t, const QString& lang)
{
    const QString date = QDate::fromString(t.gigDate, Qt::ISODate).toString(u"dd.MM.yyyy");
    if (remote(t)) {
        const Trilingual intro{u8("ერთჯერადი დისტანციური სამუშაო, %1, დაახლოებით %2 საათი."),
                               u8("A one-off remote job on %1, about %2 hours."),
                               u8("Разовая удалённая работа, %1, примерно %2 ч.")};
        return intro.in(lang).arg(date).arg(t.gigHours);
    }
    const Trilingual intro{u8("ერთჯერადი სამუშაო %1, %2, დაახლოებით %3 საათი."),
                           u8("A one-off job %1 on %2, about %3 hours."),
                           u8("Разовая работа %1, %2, примерно %3 ч.")};
    return intro.in(lang).arg(t.city->where.in(lang), date).arg(t.gigHours);
}

QString bullets(const QString& heading, const QStringList& items)
{
    QString out = heading;
    for (const QString& item : items)
        out += QStringLiteral("\n• ") + item;
    return out;
}

QStringList requirements(const ListingTerms& t, const QString& lang)
{
    const Trilingual experience =
        t.role->noExperience
            ? Trilingual{u8("სამუშაო გამოცდილება არ არის სავალდებულო — გასწავლით ადგილზე."),
                         u8("No experience needed — we train you on the job."),
                         u8("Опыт работы не обязателен — обучим на месте.")}
            : Trilingual{u8("მსგავს პოზიციაზე მუშაობის გამოცდილება მინიმუმ 1 წელი."),
                         u8("At least a year of experience in a similar role."),
                         u8("Опыт работы на аналогичной позиции от 1 года.")};
    const Trilingual second =
        t.role->english
            ? Trilingual{u8("ინგლისური ენის კარგი ცოდნა."), u8("Good spoken and written English."),
                         u8("Хороший уровень английского языка.")}
            : Trilingual{u8("პასუხისმგებლობა და პუნქტუალურობა."), u8("Reliable and punctual."),
                         u8("Ответственность и пунктуальность.")};
    return {experience.in(lang), second.in(lang)};
}

QStringList offers(const ListingTerms& t, const QString& lang)
{
    Trilingual terms;
    if (t.employmentType == QLatin1String("part"))
        terms = {u8("ნახევარი განაკვეთი, მოქნილი გრაფიკი."), u8("Part-time with flexible hours."),
                 u8("Частичная занятость, гибкий график.")};
    else if (t.employmentType == QLatin1String("shift"))
        terms = {u8("ცვლიანი გრაფიკი: 2 დღე სამუშაო, 2 დღე დასვენება."),
                 u8("Shifts: two days on, two days off."), u8("Сменный график 2/2.")};
    else if (t.employmentType == QLatin1String("contract"))
        terms = {u8("კონტრაქტი პროექტის ვადით."), u8("A contract for the length of the project."),
                 u8("Договор на время проекта.")};
    else if (t.employmentType == QLatin1String("internship"))
        terms = {u8("ანაზღაურებადი სტაჟირება დასაქმების შესაძლებლობით."),
                 u8("A paid internship with a chance of a permanent role."),
                 u8("Оплачиваемая стажировка с возможностью трудоустройства.")};
    else
        terms = {u8("სრული განაკვეთი, ოფიციალური დასაქმება."),
                 u8("Full-time, with a formal employment contract."),
                 u8("Полная занятость, официальное трудоустройство.")};
    const Trilingual team{u8("მეგობრული გუნდი და ზრდის შესაძლებლობა."),
                          u8("A friendly team and room to grow."),
                          u8("Дружная команда и возможность роста.")};
    return {terms.in(lang), team.in(lang)};
}

QString vacancy(const ListingTerms& t, const QString& lang)
{
    const Trilingual position{u8("პოზიცია: %1."), u8("Position: %1."), u8("Вакансия: %1.")};
    const Trilingual duties{u8("მოვალეობები:"), u8("What you will do:"), u8("Обязанности:")};
    const Trilingual asks{u8("მოთხოვნები:"), u8("What we ask:"), u8("Требования:")};
    const Trilingual offer{u8("ჩვენ გთავაზობთ:"), u8("What we offer:"), u8("Мы предлагаем:")};
    QStringList parts{vacancyIntro(t, lang) + u' ' + position.in(lang).arg(t.role->title.in(lang)),
                      bullets(duties.in(lang), {t.role->duties.in(lang)}),
                      bullets(asks.in(lang), requirements(t, lang)),
                      bullets(offer.in(lang), offers(t, lang)), payLine(t, lang)};
    return parts.join(QStringLiteral("\n\n"));
}

QString gig(const ListingTerms& t, const QString& lang)
{
    QStringList parts{gigIntro(t, lang)};
    if (!t.fromPrivatePerson) {
        const Trilingual by{u8("დამკვეთი: %1."), u8("Posted by %1."), u8("Заказчик: %1.")};
        parts.append(by.in(lang).arg(t.company->name.in(lang)));
    }
    parts.append(t.role->duties.in(lang));
    if (t.role->english) {
        const Trilingual english{u8("საჭიროა ინგლისური ენის ცოდნა."), u8("English is a must."),
                                 u8("Нужен английский язык.")};
        parts.append(english.in(lang));
    }
    parts.append(payLine(t, lang));
    return parts.join(QStringLiteral("\n\n"));
}

} // namespace

Trilingual title(const ListingTerms& terms)
{
    return terms.role->title;
}

Trilingual description(const ListingTerms& terms)
{
    const auto write = [&terms](const QString& lang) {
        QString text =
            terms.role->kind == QLatin1String("gig") ? gig(terms, lang) : vacancy(terms, lang);
        if (terms.direct) {
            const Trilingual direct{u8("განაცხადის გაგზავნა შეგიძლიათ პირდაპირ აპლიკაციიდან."),
                                    u8("Apply right here in the app."),
                                    u8("Откликнуться можно прямо в приложении.")};
            text += QStringLiteral("\n\n") + direct.in(lang);
        }
        return text;
    };
    return {write(QStringLiteral("ka")), write(QStringLiteral("en")), write(QStringLiteral("ru"))};
}

} // namespace vl::ListingText
