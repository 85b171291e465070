#pragma once

#include "sandbox/Locale.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace vl {

// A company of the seeded board. Those with an address are employer accounts that post here;
// the others exist through listings mirrored from other boards.
struct Company {
    QString key;
    QString email;
    Trilingual name;
    QString website;
    QString phone;
    // The language the company writes its listings in.
    QString locale;
    QStringList cities;
    QStringList vacancyRoles;
    QStringList gigRoles;

    bool hasAccount() const { return !email.isEmpty(); }

    static const QList<Company>& all();
    // The private individuals who post one-off gigs.
    static const Company& privatePerson();
};

} // namespace vl
