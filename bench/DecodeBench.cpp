// How much strict reading costs over parsing alone: a jobs page of 2,000 listings, parsed into a
// JSON document, and parsed and read into records.

#include "core/discovery/JobSummary.h"
#include "core/service/Answer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <benchmark/benchmark.h>

namespace {

QByteArray jobsPage(int count)
{
    QJsonArray rows;
    for (int i = 0; i < count; ++i) {
        QJsonObject row{
            {QStringLiteral("ref"), QStringLiteral("VL%1").arg(100000 + i)},
            {QStringLiteral("kind"),
             i % 5 == 0 ? QStringLiteral("gig") : QStringLiteral("vacancy")},
            {QStringLiteral("title"), QStringLiteral("ბარისტა / Barista / Бариста %1").arg(i)},
            {QStringLiteral("employerName"), QStringLiteral("Coffee Lab Tbilisi")},
            {QStringLiteral("employerLogo"),
             QStringLiteral("https://cdn.example/logo/%1.png").arg(i % 40)},
            {QStringLiteral("category"), QStringLiteral("hospitality")},
            {QStringLiteral("city"), QStringLiteral("tbilisi")},
            {QStringLiteral("employmentType"), QStringLiteral("full_time")},
            {QStringLiteral("salaryMin"), 1000 + i % 7 * 100},
            {QStringLiteral("salaryMax"), 1800},
            {QStringLiteral("payType"), QStringLiteral("month")},
            {QStringLiteral("featured"), i % 50 == 0},
            {QStringLiteral("translated"), i % 3 == 0},
            {QStringLiteral("aggregated"), i % 4 == 0},
            {QStringLiteral("publishedAt"), QStringLiteral("2026-11-20T09:15:00.000Z")},
            {QStringLiteral("bumpedAt"), QJsonValue::Null},
            {QStringLiteral("direct"), i % 4 != 0},
            {QStringLiteral("pinned"), i % 9 == 0},
            {QStringLiteral("employerRep"),
             QJsonObject{{QStringLiteral("completed"), i % 30}, {QStringLiteral("stars"), 4.6}}},
        };
        rows.append(row);
    }
    const QJsonObject envelope{
        {QStringLiteral("ok"), true},
        {QStringLiteral("data"), rows},
        {QStringLiteral("meta"), QJsonObject{{QStringLiteral("page"), 1},
                                             {QStringLiteral("per"), count},
                                             {QStringLiteral("total"), count * 3},
                                             {QStringLiteral("more"), true},
                                             {QStringLiteral("postedToday"), 41}}},
    };
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

const QByteArray& page()
{
    static const QByteArray bytes = jobsPage(2000);
    return bytes;
}

void parseOnly(benchmark::State& state)
{
    const QByteArray& bytes = page();
    for (auto _ : state) {
        QJsonDocument document = QJsonDocument::fromJson(bytes);
        benchmark::DoNotOptimize(document);
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void parseAndRead(benchmark::State& state)
{
    const QByteArray& bytes = page();
    for (auto _ : state) {
        auto result = vl::answer::readPage<vl::JobSummary>(bytes, 200);
        if (!result || result->items.size() != 2000)
            state.SkipWithError("the page did not read");
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

} // namespace

BENCHMARK(parseOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(parseAndRead)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
