#include "tests/support/TlsServer.h"

#include <QFile>
#include <QStandardPaths>

namespace vl::test {

namespace {

const char* serverScript = R"(
import http.server, ssl, sys
folder, target = sys.argv[1], sys.argv[2]
class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = 'HTTP/1.1'
    def do_GET(self):
        if self.path.endswith('/down'):
            self.send_response(302)
            self.send_header('Location', target)
            self.send_header('Content-Length', '0')
            self.end_headers()
            return
        body = b'{"ok":true,"data":{}}'
        self.send_response(200)
        self.send_header('Content-Type', 'application/json')
        self.send_header('Content-Length', str(len(body)))
        self.end_headers()
        self.wfile.write(body)
    def log_message(self, *args):
        pass
server = http.server.ThreadingHTTPServer(('127.0.0.1', 0), Handler)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(folder + '/server.pem', folder + '/server.key')
server.socket = context.wrap_socket(server.socket, server_side=True)
print(server.server_port, flush=True)
server.serve_forever()
)";

} // namespace

TlsServer::TlsServer(const QString& downgradeTo)
{
    const QString dir = m_dir.path();
    const bool made =
        run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
             QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-days"),
             QStringLiteral("2"), QStringLiteral("-subj"), QStringLiteral("/CN=Test Authority"),
             QStringLiteral("-keyout"), dir + QStringLiteral("/ca.key"), QStringLiteral("-out"),
             dir + QStringLiteral("/ca.pem")}) &&
        run({QStringLiteral("req"), QStringLiteral("-newkey"), QStringLiteral("rsa:2048"),
             QStringLiteral("-nodes"), QStringLiteral("-subj"), QStringLiteral("/CN=localhost"),
             QStringLiteral("-keyout"), dir + QStringLiteral("/server.key"), QStringLiteral("-out"),
             dir + QStringLiteral("/server.csr")}) &&
        run({QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"),
             dir + QStringLiteral("/server.csr"), QStringLiteral("-CA"),
             dir + QStringLiteral("/ca.pem"), QStringLiteral("-CAkey"),
             dir + QStringLiteral("/ca.key"), QStringLiteral("-CAcreateserial"),
             QStringLiteral("-days"), QStringLiteral("2"), QStringLiteral("-extfile"),
             dir + QStringLiteral("/san.ext"), QStringLiteral("-out"),
             dir + QStringLiteral("/server.pem")});
    if (!made)
        return;
    m_authority = QSslCertificate::fromPath(dir + QStringLiteral("/ca.pem")).value(0);
    m_server.start(QStandardPaths::findExecutable(QStringLiteral("python3")),
                   {QStringLiteral("-c"), QString::fromLatin1(serverScript), dir, downgradeTo});
    if (!m_server.waitForReadyRead(10000)) {
        m_problem = QString::fromUtf8(m_server.readAllStandardError());
        return;
    }
    m_port = quint16(m_server.readLine().trimmed().toUInt());
}

TlsServer::~TlsServer()
{
    m_server.kill();
    m_server.waitForFinished(3000);
}

bool TlsServer::run(const QStringList& arguments)
{
    QFile san(m_dir.path() + QStringLiteral("/san.ext"));
    if (!san.exists() && san.open(QIODevice::WriteOnly))
        san.write("subjectAltName=DNS:localhost\n");
    san.close();
    QProcess openssl;
    openssl.start(QStandardPaths::findExecutable(QStringLiteral("openssl")), arguments);
    const bool ok = openssl.waitForFinished(30000) && openssl.exitCode() == 0;
    if (!ok)
        m_problem = QString::fromUtf8(openssl.readAllStandardError());
    return ok;
}

} // namespace vl::test
