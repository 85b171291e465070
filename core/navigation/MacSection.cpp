#include "core/navigation/MacSection.h"

#include <algorithm>

namespace vl {

using L10n::Key;

QString rawValue(MacSection section)
{
    switch (section) {
    case MacSection::vacancies:
        return QStringLiteral("vacancies");
    case MacSection::forYou:
        return QStringLiteral("forYou");
    case MacSection::saved:
        return QStringLiteral("saved");
    case MacSection::highscores:
        return QStringLiteral("highscores");
    case MacSection::listings:
        return QStringLiteral("listings");
    case MacSection::applicants:
        return QStringLiteral("applicants");
    case MacSection::inbox:
        return QStringLiteral("inbox");
    case MacSection::account:
        return QStringLiteral("account");
    case MacSection::seekers:
        return QStringLiteral("seekers");
    case MacSection::news:
        return QStringLiteral("news");
    case MacSection::support:
        break;
    }
    return QStringLiteral("support");
}

std::optional<MacSection> macSectionFromRaw(const QString& raw)
{
    for (MacSection section : allMacSections) {
        if (rawValue(section) == raw)
            return section;
    }
    return std::nullopt;
}

Key titleKey(MacSection section)
{
    switch (section) {
    case MacSection::vacancies:
        return Key::tabJobs;
    case MacSection::forYou:
        return Key::tabForYou;
    case MacSection::saved:
        return Key::savedJobs;
    case MacSection::highscores:
        return Key::hsTitle;
    case MacSection::listings:
        return Key::myListings;
    case MacSection::applicants:
        return Key::applicants;
    case MacSection::inbox:
        return Key::inboxTitle;
    case MacSection::account:
        return Key::tabAccount;
    case MacSection::seekers:
        return Key::tabSeekers;
    case MacSection::news:
        return Key::newsTitle;
    case MacSection::support:
        break;
    }
    return Key::supportTitle;
}

bool isHiringSection(MacSection section)
{
    return section == MacSection::listings || section == MacSection::applicants;
}

std::vector<MacSectionGroup> macSectionGroups(bool hiring)
{
    std::vector<MacSectionGroup> groups;
    groups.push_back(
        {Key::macFindWork,
         {MacSection::vacancies, MacSection::forYou, MacSection::saved, MacSection::highscores}});
    if (hiring)
        groups.push_back({Key::macHiring, {MacSection::listings, MacSection::applicants}});
    groups.push_back({Key::macYourAccount, {MacSection::inbox, MacSection::account}});
    groups.push_back(
        {Key::macTheSite, {MacSection::seekers, MacSection::news, MacSection::support}});
    return groups;
}

std::vector<MacSection> visibleMacSections(bool hiring)
{
    std::vector<MacSection> out;
    for (const MacSectionGroup& group : macSectionGroups(hiring))
        out.insert(out.end(), group.items.begin(), group.items.end());
    return out;
}

MacSection stepMacSection(MacSection from, int delta, bool hiring)
{
    const std::vector<MacSection> sections = visibleMacSections(hiring);
    const auto found = std::find(sections.begin(), sections.end(), from);
    if (found == sections.end())
        return sections.front();
    const int size = int(sections.size());
    const int at = int(found - sections.begin());
    return sections[size_t(((at + delta) % size + size) % size)];
}

} // namespace vl
