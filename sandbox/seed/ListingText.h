#pragma once

#include "sandbox/Locale.h"

#include <QString>
#include <optional>

namespace vl {

struct Company;
struct Role;
struct Term;

// What a seeded listing says about itself, from which its text is written in each language.
struct ListingTerms {
    const Role* role = nullptr;
    const Company* company = nullptr;
    const Term* city = nullptr;
    QString employmentType;
    std::optional<int> salaryMin;
    std::optional<int> salaryMax;
    QString payType;
    // Gigs: the day ("yyyy-MM-dd") and about how many hours.
    QString gigDate;
    int gigHours = 0;
    bool direct = false;
    bool fromPrivatePerson = false;
};

// Titles and plain-text descriptions of seeded listings, written in Georgian, English and
// Russian from the same terms, so that each language reads as if written in it.
namespace ListingText {

Trilingual title(const ListingTerms& terms);
Trilingual description(const ListingTerms& terms);

} // namespace ListingText

} // namespace vl
