#pragma once

#include <QProcess>
#include <QSslCertificate>
#include <QString>
#include <QTemporaryDir>

namespace vl::test {

// A real TLS server on loopback: Python's http.server behind its ssl module, with a certificate
// for "localhost" only, issued by an authority made for this server with the openssl tool. Every
// GET is answered with an empty envelope, except /down, which redirects to `downgradeTo`.
class TlsServer {
public:
    explicit TlsServer(const QString& downgradeTo);
    ~TlsServer();
    TlsServer(const TlsServer&) = delete;
    TlsServer& operator=(const TlsServer&) = delete;

    bool started() const { return m_port != 0; }
    quint16 port() const { return m_port; }
    QSslCertificate authority() const { return m_authority; }
    QString problem() const { return m_problem; }

private:
    bool run(const QStringList& arguments);

    QTemporaryDir m_dir;
    QProcess m_server;
    QSslCertificate m_authority;
    quint16 m_port = 0;
    QString m_problem;
};

} // namespace vl::test
