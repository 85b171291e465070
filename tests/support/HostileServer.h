#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace vl::test {

// What the server does with one request: write the pieces (pausing between them), then keep
// writing `repeat` forever (pausing `gapMs` between writes) or keep the connection open or
// close it.
struct Answer {
    enum class Then { KeepOpen, Close, Repeat };
    QList<QByteArray> pieces;
    Then then = Then::KeepOpen;
    int gapMs = 0;
    QByteArray repeat{};

    static Answer with(QByteArray bytes) { return {{std::move(bytes)}}; }
    static Answer closing(QByteArray bytes) { return {{std::move(bytes)}, Then::Close}; }
    // Reads the request, then drops the connection without a word.
    static Answer hangUp() { return {{}, Then::Close}; }
    static Answer endless(QByteArray head, QByteArray repeat, int gapMs)
    {
        return {{std::move(head)}, Then::Repeat, gapMs, std::move(repeat)};
    }
};

// A 200 answer with a body of its own length, kept alive.
QByteArray okAnswer(const QByteArray& body, const QByteArray& fields = {});

// A scripted HTTP/1.1 server on loopback that does what a hostile or broken one would: records
// every request byte for byte, answers each with the next scripted Answer, and counts the
// connections it accepted and the bytes it wrote.
class HostileServer : public QObject {
public:
    HostileServer();

    QUrl url(const QString& path) const;
    QString origin() const;
    quint16 port() const { return m_server.serverPort(); }

    void script(Answer answer) { m_answers.append(std::move(answer)); }
    // Every request for this path gets this answer, before anything scripted: for reads, which
    // Qt may send again on its own.
    void serve(const QByteArray& path, Answer answer) { m_served.insert(path, std::move(answer)); }
    bool waitForRequests(qsizetype count, int timeoutMs = 5000);

    QList<QByteArray> requests;
    int connections = 0;
    qint64 written = 0;

private:
    void accept();
    void read(QTcpSocket* socket);
    Answer answerFor(const QByteArray& request);
    void respond(QPointer<QTcpSocket> socket, Answer answer, qsizetype index);
    void keepWriting(QPointer<QTcpSocket> socket, QByteArray repeat, int gapMs);
    void write(QTcpSocket* socket, const QByteArray& bytes);

    QList<Answer> m_answers;
    QHash<QByteArray, Answer> m_served;
    QHash<QTcpSocket*, QByteArray> m_inboxes;
    // Last, so its sockets go while the inboxes they are removed from still exist.
    QTcpServer m_server;
};

} // namespace vl::test
