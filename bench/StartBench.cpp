// From starting a program to its first paint, against a local sandbox: the client's first board
// page and, in the same run, a bare Qt window's first paint (velmora_anchor_window). The wall
// time is seen from outside, from before the process starts to its report; `ratio` is the
// client's over the anchor's. The label says which display platform and which keyring the run
// measured: scripts/bench.sh runs it on a real display (Xvfb) with the Secret Service.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <optional>

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

QString platform()
{
    const QString chosen = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!chosen.isEmpty())
        return chosen;
    return qEnvironmentVariableIsSet("DISPLAY") ? QStringLiteral("xcb")
                                                : QStringLiteral("offscreen");
}

QString keyring()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return QStringLiteral("none (no session bus)");
    if (!bus.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.secrets")))
        return QStringLiteral("none (no Secret Service)");
    return QStringLiteral("Secret Service");
}

struct Run {
    double wallMs = 0;
    double reportedMs = 0;
};

// Starts a program with a fresh home and runtime folder, so nothing of an earlier run (a cache,
// the single-instance socket) helps it, and waits for its one-line report.
std::optional<Run> runOnce(const QString& program, const QByteArray& word,
                           QProcessEnvironment environment)
{
    QTemporaryDir home;
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path() + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.path() + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer wall;
    wall.start();
    process.start(program, {});
    QByteArray out;
    while (!out.contains('\n') && process.waitForReadyRead(20000))
        out += process.readAllStandardOutput();
    const double wallMs = double(wall.nsecsElapsed()) / 1e6;
    process.waitForFinished(5000);
    const QList<QByteArray> words = out.trimmed().split(' ');
    if (words.size() != 2 || words[0] != word)
        return std::nullopt;
    return Run{wallMs, words[1].toDouble()};
}

void startToFirstPage(benchmark::State& state)
{
    static Sandbox sandbox;
    if (sandbox.site.isEmpty()) {
        state.SkipWithError("the sandbox did not start");
        return;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELMORA_SITE"), sandbox.site);
    environment.insert(QStringLiteral("VELMORA_BENCH_FIRST_PAGE"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform());

    Run client;
    Run anchor;
    for (auto _ : state) {
        // The two alternate, so a busy moment of the machine falls on both alike.
        const auto bare = runOnce(QStringLiteral(VELMORA_ANCHOR_PATH), "first-paint", environment);
        const auto page =
            runOnce(QStringLiteral(VELMORA_APP_PATH), "first-page-drawn", environment);
        if (!bare || !page) {
            state.SkipWithError(bare ? "the client drew no board" : "the anchor drew nothing");
            break;
        }
        state.SetIterationTime(page->wallMs / 1e3);
        client.wallMs += page->wallMs;
        client.reportedMs += page->reportedMs;
        anchor.wallMs += bare->wallMs;
        anchor.reportedMs += bare->reportedMs;
    }
    const auto average = benchmark::Counter::kAvgIterations;
    state.counters["client_reported_ms"] = benchmark::Counter(client.reportedMs, average);
    state.counters["anchor_ms"] = benchmark::Counter(anchor.wallMs, average);
    state.counters["anchor_reported_ms"] = benchmark::Counter(anchor.reportedMs, average);
    state.counters["ratio"] = anchor.wallMs > 0 ? client.wallMs / anchor.wallMs : 0;
    state.SetLabel(
        QStringLiteral("platform %1, keyring %2").arg(platform(), keyring()).toStdString());
}

} // namespace

BENCHMARK(startToFirstPage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
