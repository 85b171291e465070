#pragma once

#include <QJsonObject>
#include <QString>

namespace vl {

// The employers' own application forms, by key; each is sent in the reader's language.
namespace ApplyForm {

bool exists(const QString& key);
// FormSpecDTO
QJsonObject toJson(const QString& key, const QString& lang);

} // namespace ApplyForm

} // namespace vl
