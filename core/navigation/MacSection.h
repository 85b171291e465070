#pragma once

#include "core/l10n/L10nKey.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

namespace vl {

// The window's sidebar sections, in their order.
enum class MacSection {
    vacancies,
    forYou,
    saved,
    highscores,
    listings,
    applicants,
    inbox,
    account,
    seekers,
    news,
    support,
};

inline constexpr std::array<MacSection, 11> allMacSections{
    MacSection::vacancies, MacSection::forYou,     MacSection::saved,   MacSection::highscores,
    MacSection::listings,  MacSection::applicants, MacSection::inbox,   MacSection::account,
    MacSection::seekers,   MacSection::news,       MacSection::support,
};

QString rawValue(MacSection section);
std::optional<MacSection> macSectionFromRaw(const QString& raw);
// The row's title in the sidebar.
L10n::Key titleKey(MacSection section);
bool isHiringSection(MacSection section);

struct MacSectionGroup {
    L10n::Key titleKey;
    std::vector<MacSection> items;

    QString id() const { return rawValue(items.front()); }
    bool operator==(const MacSectionGroup&) const = default;
};

// The sidebar's groups; the hiring group only while an employer is signed in.
std::vector<MacSectionGroup> macSectionGroups(bool hiring);
// Every visible section in group order: what next and previous place walk through.
std::vector<MacSection> visibleMacSections(bool hiring);
// The section `delta` places from `from`, wrapping at both ends. A section not shown starts
// from the first one.
MacSection stepMacSection(MacSection from, int delta, bool hiring);

} // namespace vl
