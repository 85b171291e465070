#pragma once

#include <QDate>
#include <QString>
#include <vector>

namespace vl::AnswerText {

// The chosen options of a "multi" question, joined by ", " in the options' own order.
QString multi(const std::vector<QString>& options, const std::vector<QString>& chosen);

// A date answer as the service reads it: "yyyy-MM-dd" of the moment in Tbilisi.
QString date(const QDateTime& moment);

} // namespace vl::AnswerText
