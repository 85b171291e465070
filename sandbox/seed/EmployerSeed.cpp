#include "sandbox/seed/EmployerSeed.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/seed/Company.h"

#include <QSqlQuery>

namespace vl::EmployerSeed {

namespace {

// What an account has been up to, so that `me` reads like a real desk.
struct Desk {
    const char* key;
    int unread;
    int applications;
    int newApplications;
    bool hasMfa;
    // Paid plan: days left (none when 0), paid or trial, how it was bought, cancelling, bumps.
    int proDays;
    bool proPaid;
    const char* proSource;
    bool proCancelling;
    int proBumps;
    const char* nextKey;
    bool nextUrgent;
    int ageDays;
};

constexpr Desk desks[] = {
    {"tonis-puri", 4, 37, 6, false, 41, true, "card", false, 3, "review", true, 410},
    {"batumi-bay", 2, 58, 11, false, 9, true, "card", true, 1, "review", true, 655},
    {"kodari", 0, 12, 0, true, 0, false, nullptr, false, 0, "post", false, 120},
    {"gza-logistics", 1, 21, 3, false, 0, false, nullptr, false, 0, nullptr, false, 290},
    {"mzianeti", 7, 44, 2, false, 12, false, "trial", false, 2, "unread", true, 35},
    {"kalata", 0, 73, 15, false, 0, false, nullptr, false, 0, "review", false, 800},
};

const Desk* deskOf(const QString& key) {
    for (const Desk& desk : desks) {
        if (key == QLatin1String(desk.key))
            return &desk;
    }
    return nullptr;
}

QVariant orNull(const QString& value) {
    return value.isEmpty() ? QVariant() : QVariant(value);
}

} // namespace

QHash<QString, qint64> write(Store& store, const Clock& clock) {
    QSqlQuery insert = store.prepare(QStringLiteral(
        "INSERT INTO employers(key, email, name, name_ka, name_en, name_ru, locale, website, "
        "phone, unread, applications, new_applications, has_mfa, pro_paid, pro_until, "
        "pro_source, pro_cancelling, pro_bumps, next_key, next_urgent, created_at) "
        "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    QHash<QString, qint64> ids;
    QList<Company> companies = Company::all();
    companies.append(Company::privatePerson());
    const qint64 now = clock.now();
    for (const Company& company : companies) {
        const Desk* desk = company.hasAccount() ? deskOf(company.key) : nullptr;
        const bool pro = desk && desk->proDays > 0;
        Store::run(insert, {company.key,
                            orNull(company.email),
                            company.name.en,
                            company.name.ka,
                            company.name.en,
                            company.name.ru,
                            company.locale,
                            company.website,
                            company.phone,
                            desk ? desk->unread : 0,
                            desk ? desk->applications : 0,
                            desk ? desk->newApplications : 0,
                            desk && desk->hasMfa,
                            pro ? QVariant(desk->proPaid) : QVariant(),
                            pro ? QVariant(now + qint64(desk->proDays) * Clock::day) : QVariant(),
                            pro ? QVariant(QString::fromLatin1(desk->proSource)) : QVariant(),
                            pro && desk->proCancelling,
                            pro ? desk->proBumps : 0,
                            desk && desk->nextKey ? QVariant(QString::fromLatin1(desk->nextKey))
                                                  : QVariant(),
                            desk && desk->nextUrgent,
                            now - qint64(desk ? desk->ageDays : 500) * Clock::day});
        ids.insert(company.key, insert.lastInsertId().toLongLong());
    }
    return ids;
}

} // namespace vl::EmployerSeed
