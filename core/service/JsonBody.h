#pragma once

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <optional>
#include <utility>

namespace vl {

// A JSON object body from optional strings: a key whose value is absent is left out, never sent
// as null.
QByteArray stringBody(std::initializer_list<std::pair<QString, std::optional<QString>>> fields);

} // namespace vl
