#pragma once

#include "sandbox/seed/ListingDraft.h"

#include <QList>

namespace vl::ListingGenerator {

// Decides what the board holds: each account's own listings, mirrored ones from other
// companies, gigs from private people, with pay, dates, languages, forms and placements drawn
// from a fixed random seed, so that every run makes the same listings.
QList<ListingDraft> drafts();

} // namespace vl::ListingGenerator
