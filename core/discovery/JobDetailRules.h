#pragma once

#include "core/discovery/JobDetail.h"
#include "core/l10n/L10nKey.h"
#include "core/l10n/Lang.h"

#include <QStringList>
#include <optional>

namespace vl::JobDetailRules {

// The one way forward a listing's pane offers, the first that holds.
enum class Action {
    none,
    apply,                  // the apply sheet
    applyAndContactsOnSite, // the site, for the form and the contacts
    applyOnSite,            // the site, for the employer's own questions
    contactsOnSite,         // the site, for the contact details
    external,               // the original listing elsewhere
};

Action action(const JobDetail& job);

// The explanation shown with the action, if it has one.
std::optional<L10n::Key> actionNote(Action action);
// The button's text; nothing when the action is only a note.
std::optional<L10n::Key> actionButton(Action action);

// The amount and the pay period, or "Negotiable" with neither amount.
QString payLine(std::optional<int> min, std::optional<int> max, const QString& payType, Lang lang);

// A date of the listing, either a calendar date ("2026-10-24") or an internet date-time, as
// a medium date; "" when unreadable.
QString dateText(const std::optional<QString>& text, Lang lang);

// The pane's small print in a fixed order: translation, source, direct, featured, deadline,
// publication and views.
QStringList notes(const JobDetail& job, Lang lang);

} // namespace vl::JobDetailRules
