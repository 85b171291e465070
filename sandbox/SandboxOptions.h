#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

namespace vl {

// The command line of velmora-sandbox.
struct SandboxOptions {
    quint16 port = 4321;
    // A file path or ":memory:".
    QString database;
    std::optional<QDateTime> now;
    // The version gate of `config`; each is sent only when given.
    std::optional<qint64> minBuild;
    std::optional<qint64> latestBuild;
    QString updateUrl;
    QString storeUrl;
    QString testflightUrl;

    // Reads the arguments; prints the problem and returns nothing when they are wrong.
    static std::optional<SandboxOptions> parse(const QStringList& arguments);
};

} // namespace vl
