#pragma once

#include <QStringList>

namespace vl::Schema {

// The CREATE statements of every table, safe to run on an existing database.
QStringList statements();

} // namespace vl::Schema
