#include "sandbox/board/ListingReader.h"

#include "sandbox/Clock.h"
#include "sandbox/Locale.h"
#include "sandbox/Store.h"
#include "sandbox/board/ApplyForm.h"
#include "sandbox/board/JobFilter.h"

#include <QSqlQuery>

namespace vl {

namespace {

// Columns 0..19 of every listing read; detail reads add theirs after these.
QString summaryColumns(const QString& lang)
{
    return QStringLiteral(
               "l.ref, l.kind, COALESCE(e.name_%1, e.name), e.logo_url, l.category, l.city, "
               "l.employment_type, l.salary_min, l.salary_max, l.pay_type, l.featured, "
               "COALESCE(t.machine, 0), l.aggregated, l.published_at, l.bumped_at, l.direct, ")
               .arg(normalizeLocale(lang)) +
           pinnedSql() + QStringLiteral(", l.gig_date, l.gig_hours, COALESCE(t.title, o.title)");
}

QString joins()
{
    return QStringLiteral(" FROM listings l JOIN employers e ON e.id = l.employer_id "
                          "JOIN listing_texts o ON o.ref = l.ref AND o.lang = l.lang "
                          "LEFT JOIN listing_texts t ON t.ref = l.ref AND t.lang = ?");
}

void putOptional(QJsonObject& out, const QString& key, const QVariant& value, bool isInt = false)
{
    if (value.isNull())
        return;
    if (isInt)
        out.insert(key, value.toInt());
    else
        out.insert(key, value.toString());
}

QJsonObject summary(const QSqlQuery& row)
{
    QJsonObject out{{QStringLiteral("ref"), row.value(0).toString()},
                    {QStringLiteral("kind"), row.value(1).toString()},
                    {QStringLiteral("title"), row.value(19).toString()},
                    {QStringLiteral("employerName"), row.value(2).toString()},
                    {QStringLiteral("category"), row.value(4).toString()},
                    {QStringLiteral("city"), row.value(5).toString()},
                    {QStringLiteral("employmentType"), row.value(6).toString()},
                    {QStringLiteral("payType"), row.value(9).toString()},
                    {QStringLiteral("featured"), row.value(10).toBool()},
                    {QStringLiteral("translated"), row.value(11).toBool()},
                    {QStringLiteral("aggregated"), row.value(12).toBool()},
                    {QStringLiteral("publishedAt"), Clock::iso(row.value(13).toLongLong())},
                    {QStringLiteral("direct"), row.value(15).toBool()},
                    {QStringLiteral("pinned"), row.value(16).toBool()}};
    putOptional(out, QStringLiteral("employerLogo"), row.value(3));
    putOptional(out, QStringLiteral("salaryMin"), row.value(7), true);
    putOptional(out, QStringLiteral("salaryMax"), row.value(8), true);
    if (!row.value(14).isNull())
        out.insert(QStringLiteral("bumpedAt"), Clock::iso(row.value(14).toLongLong()));
    putOptional(out, QStringLiteral("gigDate"), row.value(17));
    putOptional(out, QStringLiteral("gigHours"), row.value(18), true);
    return out;
}

} // namespace

ListingReader::ListingReader(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

QJsonArray ListingReader::page(const JobFilter& filter, const QString& lang, int page,
                               int& total) const
{
    QVariantList countValues;
    const QString where = filter.where(m_clock, countValues);
    total =
        m_store
            .scalar(QStringLiteral("SELECT COUNT(*) FROM listings l WHERE ") + where, countValues)
            .toInt();
    QVariantList values{m_clock.now() - 7 * Clock::day, normalizeLocale(lang)};
    filter.where(m_clock, values);
    const QString order = filter.orderBy(m_clock, values);
    values << pageSize << (page - 1) * pageSize;
    QSqlQuery rows = m_store.exec(
        QStringLiteral("SELECT ") + summaryColumns(lang) + joins() + QStringLiteral(" WHERE ") +
            where + QStringLiteral(" ORDER BY ") + order + QStringLiteral(" LIMIT ? OFFSET ?"),
        values);
    QJsonArray out;
    while (rows.next())
        out.append(summary(rows));
    return out;
}

QJsonArray ListingReader::freshest(const QString& kind, const QString& lang, int count) const
{
    QSqlQuery rows =
        m_store.exec(QStringLiteral("SELECT ") + summaryColumns(lang) + joins() +
                         QStringLiteral(" WHERE l.status = 'live' AND l.kind = ? ORDER BY ") +
                         boardDateSql() + QStringLiteral(" DESC, l.ref DESC LIMIT ?"),
                     {m_clock.now() - 7 * Clock::day, normalizeLocale(lang), kind, count});
    QJsonArray out;
    while (rows.next())
        out.append(summary(rows));
    return out;
}

int ListingReader::postedToday(const QString& kind) const
{
    return m_store
        .scalar(QStringLiteral("SELECT COUNT(*) FROM listings WHERE status = 'live' AND kind = ? "
                               "AND published_at >= ?"),
                {kind, m_clock.dayStart(0)})
        .toInt();
}

QJsonArray ListingReader::counts(const QString& kind, const QString& column) const
{
    QSqlQuery rows = m_store.exec(
        QStringLiteral("SELECT %1, COUNT(*) FROM listings WHERE status = 'live' AND kind = ? "
                       "GROUP BY %1 ORDER BY COUNT(*) DESC, %1")
            .arg(column),
        {kind});
    QJsonArray out;
    while (rows.next())
        out.append(QJsonObject{{QStringLiteral("key"), rows.value(0).toString()},
                               {QStringLiteral("n"), rows.value(1).toInt()}});
    return out;
}

std::optional<QJsonObject> ListingReader::detail(const QString& ref, const QString& lang,
                                                 bool forms, const QString& origin) const
{
    m_store.exec(QStringLiteral("UPDATE listings SET views = views + 1 WHERE ref = ? AND "
                                "status IN ('live', 'closed')"),
                 {ref});
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT ") + summaryColumns(lang) +
            QStringLiteral(", COALESCE(t.description, o.description), e.website, l.deadline, "
                           "l.views, l.lang, l.apply_url, l.can_apply, l.can_enquire, "
                           "l.deliver_to, l.apply_on_web, l.contact_channels, l.form, l.status") +
            joins() + QStringLiteral(" WHERE l.ref = ? AND l.status IN ('live', 'closed')"),
        {m_clock.now() - 7 * Clock::day, normalizeLocale(lang), ref});
    if (!row.next())
        return std::nullopt;
    QJsonObject out = summary(row);
    const bool open = row.value(32).toString() == QLatin1String("live");
    const QString form = row.value(31).toString();
    const bool hasForm = ApplyForm::exists(form);
    out.insert(QStringLiteral("description"), row.value(20).toString());
    if (!row.value(21).toString().isEmpty())
        out.insert(QStringLiteral("employerWebsite"), row.value(21).toString());
    putOptional(out, QStringLiteral("deadline"), row.value(22));
    out.insert(QStringLiteral("views"), row.value(23).toInt());
    out.insert(QStringLiteral("lang"), row.value(24).toString());
    putOptional(out, QStringLiteral("applyUrl"), row.value(25));
    out.insert(QStringLiteral("canApply"), open && row.value(26).toBool());
    out.insert(QStringLiteral("canEnquire"), open && row.value(27).toBool());
    putOptional(out, QStringLiteral("deliverTo"), row.value(28));
    out.insert(QStringLiteral("siteUrl"), origin + QStringLiteral("/jobs/") + ref);
    // A client that cannot show the employer's questions is sent to the website for them.
    out.insert(QStringLiteral("applyOnWeb"), row.value(29).toBool() || (hasForm && !forms));
    putOptional(out, QStringLiteral("contactChannels"), row.value(30), true);
    if (hasForm && forms)
        out.insert(QStringLiteral("form"), ApplyForm::toJson(form, normalizeLocale(lang)));
    return out;
}

} // namespace vl
