// The application's multipart body around a CV at the size limit: how long it takes to build,
// and how many copies of the file are alive once it stands (the CV itself and the body).

#include "core/applying/ApplyRules.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

vl::ApplyDraft draft()
{
    vl::ApplyDraft out;
    out.name = QStringLiteral("ნინო ბერიძე");
    out.phone = QStringLiteral("599 11 22 33");
    out.message = QStringLiteral("I would like to apply.");
    out.answers = {{QStringLiteral("english"), QStringLiteral("yes")},
                   {QStringLiteral("shifts"), QStringLiteral("Morning, Night")}};
    out.cv = vl::CvFile{QByteArray(vl::CvPick::maxBytes, 'x'), QStringLiteral("cv.pdf"),
                        QStringLiteral("application/pdf")};
    return out;
}

// Bytes the allocator has handed out, in its arena and in blocks it mapped on its own.
double bytesInUse()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

void applyBody(benchmark::State& state)
{
    const vl::ApplyDraft cv = draft();
    const vl::HsHint hint{QStringLiteral("ticket"), {}, {}, 1, {}};
    // The CV itself is the first copy; what the body adds on top is counted against it.
    const double before = bytesInUse();
    double copies = 0;
    for (auto _ : state) {
        const QByteArray body =
            vl::ApplyRules::body(cv, QStringLiteral("nino@mail.ge"), QStringLiteral("VL30285"),
                                 hint, QStringLiteral("vl-bench"));
        benchmark::DoNotOptimize(body.constData());
        copies = 1 + (bytesInUse() - before) / double(vl::CvPick::maxBytes);
    }
    state.counters["file_copies"] = copies;
    state.SetBytesProcessed(state.iterations() * vl::CvPick::maxBytes);
}

} // namespace

BENCHMARK(applyBody)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
