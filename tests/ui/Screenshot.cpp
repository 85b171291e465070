#include "tests/ui/Screenshot.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <cstdio>

namespace vl::test {

QString saveScreenshot(QWidget* window, const QString& name)
{
    QApplication::processEvents();
    QPixmap shot = window->grab();
    {
        QPainter painter(&shot);
        for (QDialog* dialog : window->findChildren<QDialog*>()) {
            if (!dialog->isVisible() || !dialog->isWindow())
                continue;
            const QPoint at = dialog->mapToGlobal(QPoint(0, 0)) - window->mapToGlobal(QPoint(0, 0));
            painter.fillRect(QRect(at, dialog->size()).adjusted(-1, -1, 1, 1), QColor(0, 0, 0, 40));
            painter.drawPixmap(at, dialog->grab());
        }
    }
    const QString folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../screenshots"));
    QDir().mkpath(folder);
    const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".png");
    shot.save(path);
    std::printf("screenshot: %s\n", qPrintable(path));
    return path;
}

} // namespace vl::test
