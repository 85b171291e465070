#pragma once

#include <QHash>
#include <QString>

namespace vl {

class Clock;
class Store;

// Writes every company of the board; the six that post here are employer accounts with
// realistic counters and, on some, a paid plan and a suggested next step.
namespace EmployerSeed {

// Company key to employer id.
QHash<QString, qint64> write(Store& store, const Clock& clock);

} // namespace EmployerSeed

} // namespace vl
