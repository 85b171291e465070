// Scrolling the board's ledger frame by frame, and the memory it holds. The board model loads its
// pages over real HTTP from a canned jobs endpoint in this process (500 listings a page), the
// ledger model groups them, and a list view set up as the board's draws them with the board's
// delegate and theme. Each frame moves the view by a wheel step and paints at once; the figures
// are the frame times' percentiles and the resident memory after scrolling to the end.
//
//   velmora_scroll_bench [listings (default 10000)] [step px (default 120)]

#include "app/discovery/BoardModel.h"
#include "app/discovery/LedgerModel.h"
#include "app/kit/LedgerDelegate.h"
#include "app/kit/Theme.h"
#include "app/platform/TimerScheduler.h"
#include "app/service/APIClient.h"

#include <QApplication>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QFile>
#include <QHttpServer>
#include <QHttpServerRequest>
#include <QHttpServerResponse>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListView>
#include <QNetworkAccessManager>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int perPage = 500;

QByteArray jobsPage(int page, int listings)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QJsonArray rows;
    const int first = (page - 1) * perPage;
    for (int i = first; i < std::min(listings, first + perPage); ++i) {
        rows.append(QJsonObject{
            {QStringLiteral("ref"), QStringLiteral("VL%1").arg(100000 + i)},
            {QStringLiteral("kind"), QStringLiteral("vacancy")},
            {QStringLiteral("title"), QStringLiteral("ბარისტა / Barista / Бариста %1").arg(i)},
            {QStringLiteral("employerName"), QStringLiteral("Coffee Lab Tbilisi %1").arg(i % 70)},
            {QStringLiteral("category"), QStringLiteral("hospitality")},
            {QStringLiteral("city"), QStringLiteral("tbilisi")},
            {QStringLiteral("employmentType"), QStringLiteral("full")},
            {QStringLiteral("salaryMin"), 1000 + i % 7 * 100},
            {QStringLiteral("salaryMax"), 1800},
            {QStringLiteral("payType"), QStringLiteral("month")},
            {QStringLiteral("featured"), i < 3},
            {QStringLiteral("translated"), i % 3 == 0},
            {QStringLiteral("aggregated"), i % 4 == 0},
            // Newest first, about one every ten minutes, so the rows span many day heads.
            {QStringLiteral("publishedAt"),
             now.addSecs(-qint64(i) * 600).toString(Qt::ISODateWithMs)},
            {QStringLiteral("direct"), i % 4 != 0},
            {QStringLiteral("pinned"), i >= 3 && i < 12},
        });
    }
    const QJsonObject envelope{
        {QStringLiteral("ok"), true},
        {QStringLiteral("data"), rows},
        {QStringLiteral("meta"), QJsonObject{{QStringLiteral("page"), page},
                                             {QStringLiteral("per"), perPage},
                                             {QStringLiteral("total"), listings},
                                             {QStringLiteral("more"), first + perPage < listings}}},
    };
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

long residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

double percentile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    const auto at = std::size_t(share * double(values.size() - 1));
    return values[at];
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const int listings = argc > 1 ? QByteArray(argv[1]).toInt() : 10000;
    const int step = argc > 2 ? QByteArray(argv[2]).toInt() : 120;
    vl::Theme::apply(app);

    QHttpServer server;
    server.route(QStringLiteral("/api/app/v1/jobs"), [listings](const QHttpServerRequest& request) {
        const int page =
            std::max(1, request.query().queryItemValue(QStringLiteral("page")).toInt());
        return QHttpServerResponse("application/json", jobsPage(page, listings));
    });
    const quint16 port = server.listen(QHostAddress::LocalHost, 0);
    if (port == 0) {
        std::fprintf(stderr, "no port for the jobs endpoint\n");
        return 1;
    }

    QNetworkAccessManager network;
    const vl::APIClient api(&network, QStringLiteral("http://127.0.0.1:%1").arg(port),
                            [] { return std::optional<QString>(); });
    vl::TimerScheduler scheduler;
    vl::BoardModel board(vl::JobKind::vacancy, api, scheduler);
    QElapsedTimer loading;
    loading.start();
    QCoro::waitFor(board.load(vl::Lang::en, true, false));
    while (board.more() && !board.failed())
        QCoro::waitFor(board.loadMore(vl::Lang::en));
    if (int(board.items().size()) != listings) {
        std::fprintf(stderr, "loaded %zu of %d listings\n", board.items().size(), listings);
        return 1;
    }
    const qint64 loadMs = loading.elapsed();

    vl::LedgerModel ledger(board, scheduler);
    ledger.setLang(vl::Lang::en);
    QListView view;
    vl::Theme::setRole(&view, "ledger");
    view.setModel(&ledger);
    auto* delegate = new vl::LedgerDelegate(&view);
    delegate->setLang(vl::Lang::en);
    view.setItemDelegate(delegate);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setLayoutMode(QListView::Batched);
    view.setBatchSize(200);
    view.resize(760, 820);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        return 1;
    // Batched layout finishes over a few turns of the event loop, as it does in the window.
    QElapsedTimer layout;
    layout.start();
    while (view.verticalScrollBar()->maximum() == 0 && layout.elapsed() < 10000)
        QCoreApplication::processEvents();
    QTest::qWait(200);

    QScrollBar* bar = view.verticalScrollBar();
    std::vector<double> frames;
    QElapsedTimer frame;
    while (bar->value() < bar->maximum()) {
        frame.start();
        bar->setValue(bar->value() + step);
        view.viewport()->repaint();
        QCoreApplication::processEvents();
        frames.push_back(double(frame.nsecsElapsed()) / 1e6);
    }
    if (frames.empty())
        return 1;

    std::printf("platform %s, %d listings in %zu rows, loaded in %lld ms\n",
                qPrintable(QGuiApplication::platformName()), listings, ledger.rows().size(),
                static_cast<long long>(loadMs));
    std::printf("scroll frames %zu (step %d px): p50 %.2f ms, p99 %.2f ms, max %.2f ms\n",
                frames.size(), step, percentile(frames, 0.5), percentile(frames, 0.99),
                percentile(frames, 1.0));
    std::printf("resident after scrolling to the end: %.1f MB\n", double(residentKiB()) / 1024.0);
    return 0;
}
