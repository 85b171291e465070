// From starting `velmora` to its first board page drawn, against a local sandbox: the wall time
// seen from outside, and the time the client reports from its own start.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

// A sandbox on a free loopback port, for the whole run.
class Sandbox {
public:
    Sandbox()
    {
        m_process.start(QStringLiteral(VELMORA_SANDBOX_PATH),
                        {QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--db"),
                         QStringLiteral(":memory:")});
        m_process.waitForStarted();
        static const QRegularExpression listening(QStringLiteral("listening on (http://[^\\s]+)"));
        QByteArray seen;
        while (m_process.waitForReadyRead(20000)) {
            seen += m_process.readAllStandardOutput();
            const auto match = listening.match(QString::fromUtf8(seen));
            if (match.hasMatch()) {
                site = match.captured(1);
                break;
            }
        }
    }
    ~Sandbox()
    {
        m_process.terminate();
        m_process.waitForFinished(3000);
    }

    QString site;

private:
    QProcess m_process;
};

void startToFirstPage(benchmark::State& state)
{
    static Sandbox sandbox;
    if (sandbox.site.isEmpty()) {
        state.SkipWithError("the sandbox did not start");
        return;
    }
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELMORA_SITE"), sandbox.site);
    environment.insert(QStringLiteral("VELMORA_BENCH_FIRST_PAGE"), QStringLiteral("1"));
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path() + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.path() + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    if (!environment.contains(QStringLiteral("DISPLAY")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    double reported = 0;
    for (auto _ : state) {
        QProcess client;
        client.setProcessEnvironment(environment);
        QElapsedTimer wall;
        wall.start();
        client.start(QStringLiteral(VELMORA_APP_PATH), {});
        QByteArray out;
        while (!out.contains('\n') && client.waitForReadyRead(20000))
            out += client.readAllStandardOutput();
        state.SetIterationTime(double(wall.nsecsElapsed()) / 1e9);
        const QList<QByteArray> words = out.trimmed().split(' ');
        if (words.size() != 2 || words[0] != "first-page-drawn") {
            state.SkipWithError("the client drew no board");
            break;
        }
        reported += words[1].toDouble();
        client.waitForFinished(5000);
    }
    state.counters["reported_ms"] =
        benchmark::Counter(reported, benchmark::Counter::kAvgIterations);
}

} // namespace

BENCHMARK(startToFirstPage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
