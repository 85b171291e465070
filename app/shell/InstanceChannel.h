#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

namespace vl {

// One running client per user and service: a later launch hands its link to the first one over
// a local socket in the user's runtime folder, and ends.
class InstanceChannel : public QObject {
    Q_OBJECT
public:
    explicit InstanceChannel(const QString& site, QObject* parent = nullptr);

    // The socket's path, one per service origin.
    const QString& path() const { return m_path; }

    // Gives the link (empty: only come forward) to a running client; false when none listens.
    bool handOver(const QString& link) const;
    // Starts taking links from later launches; false when the socket can't be made.
    bool listen();

Q_SIGNALS:
    void linkReceived(const QString& link);

private:
    QString m_path;
    QLocalServer* m_server = nullptr;
};

} // namespace vl
