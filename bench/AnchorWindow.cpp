// The yardstick of the start-up benchmark: a bare Qt window with one line of text. It prints
// "first-paint <ms>" once its first paint is done, counted from main as the client counts, and
// ends. StartBench runs it beside the client in the same run, so the machine's speed and the
// display's cost cancel out of the ratio.

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace {

class AnchorWindow : public QWidget {
public:
    explicit AnchorWindow(const QElapsedTimer& started)
        : m_started(started)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Velmora"));
        if (m_painted)
            return;
        m_painted = true;
        // Reported once the paint has been handed to the display, as the client reports.
        QTimer::singleShot(0, this, [this] {
            std::printf("first-paint %lld\n", static_cast<long long>(m_started.elapsed()));
            std::fflush(stdout);
            QApplication::quit();
        });
    }

private:
    const QElapsedTimer& m_started;
    bool m_painted = false;
};

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer started;
    started.start();
    QApplication app(argc, argv);
    AnchorWindow window(started);
    window.resize(1180, 820); // the main window's own size
    window.show();
    return app.exec();
}
