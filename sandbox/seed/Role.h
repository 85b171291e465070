#pragma once

#include "sandbox/Locale.h"

#include <QString>
#include <QStringList>

namespace vl {

// A kind of work that seeded listings are made from: its title and duties in the three
// languages, its field, and the usual terms.
struct Role {
    QString key;
    QString category;
    // "vacancy" or "gig".
    QString kind;
    // Employment types it is offered as; the first is the most common.
    QStringList types;
    // "month", "hour", "day" or "fixed", with the usual range of pay in lari.
    QString payType;
    int payLow = 0;
    int payHigh = 0;
    // Gigs: about how long the job takes.
    int gigHours = 0;
    bool noExperience = false;
    bool english = false;
    Trilingual title;
    Trilingual duties;

    // The role with that key, or nullptr.
    static const Role* find(const QString& key);
};

} // namespace vl
