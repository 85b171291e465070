#pragma once

#include <QHash>
#include <QString>

namespace vl {

class Clock;
class Store;

// The board's listings, made from roles, companies and cities with a fixed random seed: the same
// refs hold the same listings on every run, and their dates are relative to the sandbox clock.
namespace ListingSeed {

void write(Store& store, const Clock& clock, const QHash<QString, qint64>& employers);

// Moves the seeded listings' dates by the whole days that passed since they were seeded, so
// that a sandbox kept in a file still shows a board of today, yesterday and this week.
void keepCurrent(Store& store, const Clock& clock);

} // namespace ListingSeed

} // namespace vl
