#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

namespace vl::test {

// Takes the web addresses the client opens, instead of the system's browser, for one test.
class UrlCatcher : public QObject {
    Q_OBJECT
public:
    UrlCatcher()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open");
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    }
    ~UrlCatcher() override
    {
        QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

} // namespace vl::test
