#include "core/discovery/JobDetailRules.h"

#include "core/format/Format.h"
#include "core/l10n/L10n.h"

namespace vl::JobDetailRules {

using L10n::Key;

namespace {

QString withDate(Key key, const std::optional<QString>& date, Lang lang)
{
    return L10n::text(key, lang).replace(QLatin1StringView("{date}"), dateText(date, lang));
}

} // namespace

QString dateText(const std::optional<QString>& text, Lang lang)
{
    // A calendar date names a day, not an instant: read at noon UTC it stays the same day on
    // every reader's clock.
    if (text && text->size() == 10 && QDate::fromString(*text, Qt::ISODate).isValid())
        return Format::date(*text + QStringLiteral("T12:00:00Z"), lang);
    return Format::date(text, lang);
}

Action action(const JobDetail& job)
{
    const bool onWeb = job.applyOnWeb.value_or(false);
    const bool contacts = job.contactChannels.value_or(0) > 0;
    if (job.canApply && !onWeb)
        return Action::apply;
    if (onWeb && contacts)
        return Action::applyAndContactsOnSite;
    if (onWeb)
        return Action::applyOnSite;
    if (contacts)
        return Action::contactsOnSite;
    if (job.applyUrl)
        return Action::external;
    return Action::none;
}

std::optional<Key> actionNote(Action action)
{
    switch (action) {
    case Action::applyAndContactsOnSite:
        return Key::applyAndContactsOnSite;
    case Action::applyOnSite:
        return Key::applyOnSiteWhy;
    case Action::contactsOnSite:
        return Key::contactsOnSite;
    case Action::none:
    case Action::apply:
    case Action::external:
        break;
    }
    return std::nullopt;
}

std::optional<Key> actionButton(Action action)
{
    switch (action) {
    case Action::apply:
        return Key::applyTitle;
    case Action::applyAndContactsOnSite:
    case Action::applyOnSite:
        return Key::applyOnSite;
    case Action::external:
        return Key::applyExternal;
    case Action::none:
    case Action::contactsOnSite:
        break;
    }
    return std::nullopt;
}

QString payLine(std::optional<int> min, std::optional<int> max, const QString& payType, Lang lang)
{
    if (!min && !max)
        return L10n::text(Key::negotiable, lang);
    Key period = Key::payDay;
    if (payType == QLatin1StringView("month"))
        period = Key::perMonth;
    else if (payType == QLatin1StringView("fixed"))
        period = Key::payFixed;
    else if (payType == QLatin1StringView("hour"))
        period = Key::payHour;
    return Format::salary(min, max) + QLatin1Char(' ') + L10n::text(period, lang);
}

QStringList notes(const JobDetail& job, Lang lang)
{
    QStringList out;
    if (job.translated)
        out << L10n::text(Key::translatedNote, lang);
    if (job.aggregated)
        out << L10n::text(Key::applySourceExternal, lang);
    if (job.direct.value_or(false))
        out << L10n::text(Key::directBadge, lang) + QStringLiteral(" · ") +
                   L10n::text(Key::directWhy, lang);
    if (job.featured)
        out << L10n::text(Key::featured, lang);
    if (job.deadline)
        out << withDate(Key::deadline, job.deadline, lang);
    if (job.publishedAt)
        out << withDate(Key::posted, job.publishedAt, lang);
    out << L10n::text(Key::views, lang, job.views);
    return out;
}

} // namespace vl::JobDetailRules
