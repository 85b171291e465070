#pragma once

#include "sandbox/Locale.h"

#include <QJsonArray>
#include <QList>
#include <QString>

namespace vl {

// One key of the board's taxonomy with its labels.
struct Term {
    QString key;
    Trilingual label;
    // For cities: "in Tbilisi" as each language says it; empty for other terms.
    Trilingual where;
};

// Categories, cities and employment types, as `config` sends them and listings use them.
namespace Taxonomy {

const QList<Term>& categories();
const QList<Term>& cities();
const QList<Term>& employmentTypes();
// The term with that key in the list, or nullptr.
const Term* find(const QList<Term>& terms, const QString& key);
// [{"key":..., "labels":{"ka":...,"en":...,"ru":...}}]
QJsonArray toJson(const QList<Term>& terms);

} // namespace Taxonomy

} // namespace vl
