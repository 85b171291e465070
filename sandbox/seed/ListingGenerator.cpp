#include "sandbox/seed/ListingGenerator.h"

#include "sandbox/board/Taxonomy.h"
#include "sandbox/seed/Company.h"
#include "sandbox/seed/Role.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cmath>

namespace vl::ListingGenerator {

namespace {

constexpr quint32 seed = 20260301;
// How a listing reaches the board and how one applies to it.
enum class Channel { Direct, Mailed, Mirrored, Contact };

class Generator {
public:
    QList<ListingDraft> run()
    {
        for (const Company& company : Company::all()) {
            const int vacancies = company.hasAccount() ? 14 : 11;
            for (int i = 0; i < vacancies; ++i)
                add(company, company.vacancyRoles[i % company.vacancyRoles.size()],
                    channelFor(company, 0.95));
            for (const QString& role : company.gigRoles) {
                add(company, role, channelFor(company, 0.5));
                add(company, role, channelFor(company, 0.5));
            }
        }
        const Company& person = Company::privatePerson();
        for (int i = 0; i < 28; ++i)
            add(person, person.gigRoles[i % person.gigRoles.size()], Channel::Contact);
        settleAccounts();
        feature();
        bump();
        return m_drafts;
    }

private:
    Channel channelFor(const Company& company, double mirrored)
    {
        if (company.key == QLatin1String("gza-logistics"))
            return Channel::Mailed;
        if (company.hasAccount())
            return Channel::Direct;
        return chance(mirrored) ? Channel::Mirrored : Channel::Mailed;
    }

    bool chance(double p) { return m_rng.generateDouble() < p; }
    int between(int low, int high) { return low + int(m_rng.bounded(high - low + 1)); }
    template <typename T>
    const T& pick(const QList<T>& list)
    {
        return list[qsizetype(m_rng.bounded(int(list.size())))];
    }

    void add(const Company& company, const QString& roleKey, Channel channel)
    {
        ListingDraft d;
        d.role = Role::find(roleKey);
        if (!d.role)
            return;
        d.company = &company;
        QString city = pick(company.cities);
        // Hands-on gigs happen somewhere; only desk work is done remotely.
        if (city == QLatin1String("remote") && d.role->kind == QLatin1String("gig") &&
            d.role->category != QLatin1String("it"))
            city = company.cities.constFirst();
        d.city = Taxonomy::find(Taxonomy::cities(), city);
        if (!d.city)
            return;
        d.type = chance(0.7) ? d.role->types.constFirst() : pick(d.role->types);
        d.privatePerson = channel == Channel::Contact;
        d.aggregated = channel == Channel::Mirrored;
        d.direct = channel == Channel::Direct;
        if (channel == Channel::Mailed)
            d.deliverTo = company.hasAccount()
                              ? company.email
                              : QStringLiteral("hr@%1.ge").arg(QString(company.key).remove(u'-'));
        if (channel == Channel::Contact)
            d.contactChannels = between(1, 2);
        if (d.aggregated)
            d.applyUrl = QStringLiteral("https://%1/%2")
                             .arg(pick(QList<QString>{QStringLiteral("jobs.example/vacancy"),
                                                      QStringLiteral("rabota.example/job"),
                                                      QStringLiteral("vakansia.example/ads")}))
                             .arg(between(100000, 999999));
        pickDate(d);
        pickPay(d, d.aggregated ? 0.65 : 0.8);
        pickLanguage(d);
        if (d.role->kind == QLatin1String("gig")) {
            d.gigInDays = between(1, 21);
            d.gigHours = std::max(1, d.role->gigHours + between(-1, 2));
        } else if (chance(0.5)) {
            d.deadlineDays = 30;
        }
        d.views = between(15, 75) + d.daysAgo * between(4, 18);
        m_drafts.append(d);
    }

    // Mirrored listings and gigs stream in every day; vacancies posted here are fewer and
    // steadier, so that the week's pinned ones head the board without filling it. Gigs are
    // short-lived and none is older than three weeks.
    void pickDate(ListingDraft& d)
    {
        const bool gig = d.role->kind == QLatin1String("gig");
        const bool steady = !d.aggregated && !gig;
        const double r = m_rng.generateDouble();
        const double today = steady ? 0.03 : 0.1;
        const double yesterday = today + (steady ? 0.04 : 0.09);
        const double week = yesterday + (steady ? 0.09 : 0.24);
        d.daysAgo = r < today       ? 0
                    : r < yesterday ? 1
                    : r < week      ? between(2, 6)
                                    : between(7, gig ? 20 : 59);
        d.dayFraction = m_rng.generateDouble();
    }

    void pickPay(ListingDraft& d, double withPay)
    {
        if (!chance(withPay))
            return;
        const Role& r = *d.role;
        const int step = r.payType == QLatin1String("month")  ? 50
                         : r.payType == QLatin1String("hour") ? 1
                                                              : 5;
        const auto round = [step](double value) { return int(std::lround(value / step)) * step; };
        const double span = r.payHigh - r.payLow;
        const int low = round(r.payLow + m_rng.generateDouble() * span * 0.5);
        const int high =
            std::max(low + step, round(low + span * (0.2 + 0.3 * m_rng.generateDouble())));
        const double shape = m_rng.generateDouble();
        d.payType = r.payType;
        if (r.kind == QLatin1String("gig") ? shape < 0.6 : shape < 0.08) {
            d.salaryMin = low;
            d.salaryMax = low;
        } else if (shape < 0.2 && r.kind != QLatin1String("gig")) {
            d.salaryMin = low;
        } else if (shape < 0.26 && r.kind != QLatin1String("gig")) {
            d.salaryMax = high;
        } else {
            d.salaryMin = low;
            d.salaryMax = high;
        }
    }

    void pickLanguage(ListingDraft& d)
    {
        d.lang = d.company->locale;
        if (!d.company->hasAccount() && !d.privatePerson && chance(0.3))
            d.lang = pick(
                QList<QString>{QStringLiteral("ka"), QStringLiteral("ru"), QStringLiteral("en")});
        if (d.role->category == QLatin1String("it") && chance(0.5))
            d.lang = QStringLiteral("en");
        d.translations = !d.aggregated || chance(0.75);
    }

    QList<ListingDraft*> of(const QString& company, const QString& kind)
    {
        QList<ListingDraft*> out;
        for (ListingDraft& d : m_drafts) {
            if (d.company->key == company && d.role->kind == kind)
                out.append(&d);
        }
        return out;
    }

    // The accounts' own desks: listings waiting for review, closed ones, a draft, employers'
    // forms, and listings whose questions or contacts open on the website.
    void settleAccounts()
    {
        const QString vacancy = QStringLiteral("vacancy");
        auto kalata = of(QStringLiteral("kalata"), vacancy);
        kalata[12]->status = QStringLiteral("pending");
        kalata[13]->status = QStringLiteral("pending");
        for (int i : {1, 4, 7})
            kalata[i]->applyOnWeb = true;
        kalata[4]->contactChannels = 2;
        kalata[7]->contactChannels = 1;
        of(QStringLiteral("tonis-puri"), vacancy)[13]->status = QStringLiteral("pending");
        auto bay = of(QStringLiteral("batumi-bay"), vacancy);
        bay[12]->status = QStringLiteral("closed");
        bay[13]->status = QStringLiteral("closed");
        for (int i = 0; i < 12; i += 2)
            bay[i]->form = QStringLiteral("hotel");
        auto kodari = of(QStringLiteral("kodari"), vacancy);
        kodari[13]->status = QStringLiteral("draft");
        for (int i = 1; i < 12; i += 2)
            kodari[i]->form = QStringLiteral("it");
        auto clinic = of(QStringLiteral("mzianeti"), vacancy);
        for (int i = 0; i < 12; i += 3)
            clinic[i]->form = QStringLiteral("clinic");
    }

    // Paid placements go to recent listings of the employers on a paid plan.
    void feature()
    {
        const QStringList paying{QStringLiteral("tonis-puri"), QStringLiteral("batumi-bay"),
                                 QStringLiteral("mzianeti")};
        int vacancies = 0;
        int gigs = 0;
        for (ListingDraft& d : m_drafts) {
            if (!paying.contains(d.company->key) || d.status != QLatin1String("live") ||
                d.daysAgo > 20)
                continue;
            const bool gig = d.role->kind == QLatin1String("gig");
            if (gig ? gigs < 3 : vacancies < 7) {
                d.featured = true;
                d.views *= 2;
                ++(gig ? gigs : vacancies);
            }
        }
    }

    // A few older listings were bumped today or yesterday and stand with the new ones.
    void bump()
    {
        int bumped = 0;
        for (ListingDraft& d : m_drafts) {
            if (bumped == 8 || d.aggregated || d.daysAgo < 3 || d.daysAgo > 20 || d.featured ||
                d.status != QLatin1String("live"))
                continue;
            d.bumpedDaysAgo = bumped % 2;
            d.bumpFraction = m_rng.generateDouble();
            ++bumped;
        }
    }

    QRandomGenerator m_rng{seed};
    QList<ListingDraft> m_drafts;
};

} // namespace

QList<ListingDraft> drafts()
{
    return Generator().run();
}

} // namespace vl::ListingGenerator
