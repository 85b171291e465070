#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace vl::test {

// Runs velmora-cli as a separate program against a site, with its own settings and cache
// folders, as a person's terminal would. The secure store is whatever Secret Service the test
// session has.
class CliProcess {
public:
    explicit CliProcess(QString site);

    struct Run {
        int exitCode = -1;
        QJsonObject json; // stdout read as one JSON object
        QString out;
        QString err;
    };
    Run run(const QStringList& args) const;
    // The folder that stands for the user's runtime folder in these runs.
    QString runtimeFolder() const { return m_home.filePath(QStringLiteral("runtime")); }

private:
    QString m_site;
    QTemporaryDir m_home;
};

// Whether a session bus is there, so the Secret Service may be.
bool hasSessionBus();

} // namespace vl::test
