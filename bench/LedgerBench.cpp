// The ledger is recomputed at every render of the board: 10,000 listings across every tier and
// day, grouped and flat.

#include "core/discovery/BoardLedger.h"

#include <benchmark/benchmark.h>

namespace {

const QDateTime now = QDateTime::fromString(QStringLiteral("2026-03-10T12:00:00Z"), Qt::ISODate);

std::vector<vl::JobSummary> listings(int count)
{
    std::vector<vl::JobSummary> out;
    out.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        vl::JobSummary job;
        job.ref = QStringLiteral("VL%1").arg(100000 + i);
        job.title = QStringLiteral("Barista %1").arg(i);
        job.featured = i < 3;
        if (i >= 3 && i < 12)
            job.pinned = true;
        // Newest first, a listing every minute or so, reaching weeks back.
        job.publishedAt = now.addSecs(-qint64(i) * 97).toString(Qt::ISODateWithMs);
        if (i % 17 == 0)
            job.bumpedAt = now.addSecs(-qint64(i) * 90).toString(Qt::ISODate);
        out.push_back(std::move(job));
    }
    return out;
}

void ledgerRows(benchmark::State& state)
{
    const auto items = listings(int(state.range(0)));
    const bool grouped = state.range(1) != 0;
    for (auto _ : state) {
        auto rows = vl::BoardLedger::rows(items, grouped, now);
        benchmark::DoNotOptimize(rows.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(ledgerRows)->Args({10000, 1})->Args({10000, 0})->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
