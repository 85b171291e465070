#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace vl::test {

// A real velmora-sandbox on a free loopback port with an in-memory store, for one test.
class SandboxProcess {
public:
    explicit SandboxProcess(QStringList extraArgs = {});
    ~SandboxProcess();
    SandboxProcess(const SandboxProcess&) = delete;
    SandboxProcess& operator=(const SandboxProcess&) = delete;

    bool started() const { return m_port != 0; }
    quint16 port() const { return m_port; }
    // The web origin, e.g. http://127.0.0.1:40123, without a trailing slash.
    QString site() const;

    // Blocking helpers for the development-only routes; they never touch the client code.
    QJsonValue devGet(const QString& path) const;
    QJsonValue devPost(const QString& path, const QByteArray& json) const;
    // The newest mail the sandbox would have sent to this address, or an empty value.
    QString lastMailBody(const QString& to) const;
    // The six-digit code in the newest mail to this address.
    QString lastCode(const QString& to) const;
    // Where the stand-in of the browser sign-in sends the browser after picking this address.
    QUrl oauthCallback(const QString& email) const;
    // Everything the process printed so far, for a failing test's message.
    QString output();

private:
    QProcess m_process;
    quint16 m_port = 0;
    QByteArray m_seen;
};

} // namespace vl::test
