#include "sandbox/seed/ListingSeed.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/board/Taxonomy.h"
#include "sandbox/seed/Company.h"
#include "sandbox/seed/ListingDraft.h"
#include "sandbox/seed/ListingGenerator.h"
#include "sandbox/seed/ListingText.h"
#include "sandbox/seed/Role.h"

#include <QSqlQuery>
#include <algorithm>

namespace vl::ListingSeed {

namespace {

constexpr qint64 hour = 3600;

qint64 instant(const Clock& clock, int daysAgo, double fraction)
{
    if (daysAgo == 0)
        return clock.dayStart(0) + qint64(fraction * double(clock.now() - clock.dayStart(0)));
    return clock.dayStart(daysAgo) + 8 * hour + qint64(fraction * 12 * hour);
}

// A comparable monthly figure for sorting and the pay filter; one-off pay counts as it is.
QVariant payRank(const ListingDraft& d)
{
    const auto amount = d.salaryMax ? d.salaryMax : d.salaryMin;
    if (!amount)
        return {};
    if (d.payType == QLatin1String("hour"))
        return *amount * 160;
    if (d.payType == QLatin1String("day"))
        return *amount * 22;
    return *amount;
}

QVariant orNull(const std::optional<int>& value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariant orNull(const QString& value)
{
    return value.isEmpty() ? QVariant() : QVariant(value);
}

} // namespace

void write(Store& store, const Clock& clock, const QHash<QString, qint64>& employers)
{
    QList<ListingDraft> drafts = ListingGenerator::drafts();
    std::stable_sort(drafts.begin(), drafts.end(), [](const auto& a, const auto& b) {
        return a.daysAgo != b.daysAgo ? a.daysAgo > b.daysAgo : a.dayFraction < b.dayFraction;
    });
    QSqlQuery listing = store.prepare(QStringLiteral(
        "INSERT INTO listings(ref, kind, employer_id, category, city, employment_type, "
        "salary_min, salary_max, pay_type, pay_rank, featured, aggregated, direct, published_at, "
        "bumped_at, gig_date, gig_hours, views, deadline, lang, apply_url, can_apply, "
        "can_enquire, deliver_to, apply_on_web, contact_channels, no_experience, english, form, "
        "status, search, seeded) "
        "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
        "?, ?, ?, ?, 1)"));
    QSqlQuery text = store.prepare(QStringLiteral(
        "INSERT INTO listing_texts(ref, lang, title, description, machine) VALUES(?, ?, ?, ?, ?)"));
    int number = 30001;
    for (const ListingDraft& d : drafts) {
        const QString ref = QStringLiteral("VL%1").arg(number++);
        const qint64 published = instant(clock, d.daysAgo, d.dayFraction);
        ListingTerms terms{d.role,         d.company, d.city, d.type,     d.salaryMin,
                           d.salaryMax,    d.payType, {},     d.gigHours, d.direct && !d.applyOnWeb,
                           d.privatePerson};
        if (d.gigInDays > 0)
            terms.gigDate = Clock::localDate(clock.now() + qint64(d.gigInDays) * Clock::day);
        const Trilingual title = ListingText::title(terms);
        const Trilingual description = ListingText::description(terms);
        QStringList langs{d.lang};
        if (d.translations) {
            for (const QString& lang :
                 {QStringLiteral("ka"), QStringLiteral("en"), QStringLiteral("ru")}) {
                if (lang != d.lang)
                    langs.append(lang);
            }
        }
        QStringList search;
        for (const QString& lang : langs)
            search.append(title.in(lang));
        search << d.company->name.ka << d.company->name.en << d.company->name.ru;
        Store::run(listing,
                   {ref,
                    d.role->kind,
                    employers.value(d.company->key),
                    d.role->category,
                    d.city->key,
                    d.type,
                    orNull(d.salaryMin),
                    orNull(d.salaryMax),
                    d.payType.isEmpty() ? d.role->payType : d.payType,
                    payRank(d),
                    d.featured,
                    d.aggregated,
                    d.direct,
                    published,
                    d.bumpedDaysAgo ? QVariant(instant(clock, *d.bumpedDaysAgo, d.bumpFraction))
                                    : QVariant(),
                    orNull(terms.gigDate),
                    d.gigInDays > 0 ? QVariant(d.gigHours) : QVariant(),
                    d.views,
                    d.deadlineDays
                        ? QVariant(Clock::localDate(published + *d.deadlineDays * Clock::day))
                        : QVariant(),
                    d.lang,
                    orNull(d.applyUrl),
                    d.direct || !d.deliverTo.isEmpty(),
                    !d.aggregated,
                    orNull(d.deliverTo),
                    d.applyOnWeb,
                    d.contactChannels > 0 ? QVariant(d.contactChannels) : QVariant(),
                    d.role->noExperience,
                    d.role->english || d.lang == QLatin1String("en"),
                    orNull(d.form),
                    d.status,
                    search.join(u'\n').toLower()});
        for (const QString& lang : langs)
            Store::run(text, {ref, lang, title.in(lang), description.in(lang), lang != d.lang});
    }
}

void keepCurrent(Store& store, const Clock& clock)
{
    const auto seeded = store.seededAt();
    if (!seeded)
        return;
    const auto dayOf = [](qint64 t) {
        const qint64 local = t + Clock::zoneOffset;
        return (local - ((local % Clock::day) + Clock::day) % Clock::day) / Clock::day;
    };
    const qint64 days = dayOf(clock.now()) - dayOf(*seeded);
    if (days == 0)
        return;
    const qint64 shift = days * Clock::day;
    const QString dateShift = QStringLiteral("%1%2 days").arg(days > 0 ? "+" : "").arg(days);
    store.begin();
    store.exec(QStringLiteral("UPDATE listings SET published_at = MIN(published_at + ?, ?), "
                              "bumped_at = MIN(bumped_at + ?, ?), gig_date = date(gig_date, ?), "
                              "deadline = date(deadline, ?) WHERE seeded = 1"),
               {shift, clock.now(), shift, clock.now(), dateShift, dateShift});
    store.markSeeded(*seeded + shift);
    store.commit();
}

} // namespace vl::ListingSeed
