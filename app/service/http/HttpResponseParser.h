#pragma once

#include "app/service/http/HttpResponseHead.h"

#include <QByteArray>
#include <QByteArrayView>

namespace vl {

// Reads one HTTP/1.x answer incrementally, as the socket delivers it: status line, header
// fields, then a body framed by Content-Length, by chunks or by the closing of the connection.
// Interim 1xx answers are skipped. Bytes that arrive after the end of the answer are kept as
// leftover so the connection is known not to be clean.
class HttpResponseParser {
public:
    // An answer to HEAD carries no body whatever its fields announce.
    explicit HttpResponseParser(bool answersHead = false);

    // Returns false once the input is not an HTTP answer; the parser stays failed.
    bool feed(QByteArrayView data);
    // The peer closed the connection: true when that ends a close-delimited body.
    bool finishAtClose();

    bool hasReceivedAnything() const { return m_receivedAnything; }
    bool hasHead() const { return m_state > State::Head; }
    bool isComplete() const { return m_state == State::Complete; }
    const HttpResponseHead& head() const { return m_head; }
    // Total body length the answer announced, or -1 when it is not known in advance.
    qint64 announcedLength() const;
    // Whether the connection may carry another request after this answer.
    bool keepsConnection() const;
    // Decoded body bytes received since the last call.
    QByteArray takeBody();

private:
    enum class State {
        Head,
        Length,
        ChunkSize,
        ChunkData,
        ChunkEnd,
        Trailer,
        Close,
        Complete,
        Failed
    };

    bool parseHeadLine(QByteArrayView line);
    bool parseStatusLine(QByteArrayView line);
    bool endHead();
    bool step();
    // The next line without its line end, or false when no full line is buffered yet.
    bool nextLine(QByteArrayView& line);
    bool fail();
    bool hasLeftover() const { return m_pos < m_input.size(); }

    bool m_answersHead;
    bool m_receivedAnything = false;
    bool m_statusSeen = false;
    bool m_closeFramed = false;
    State m_state = State::Head;
    HttpResponseHead m_head;
    QByteArray m_input;
    qsizetype m_pos = 0;
    qsizetype m_headBytes = 0;
    qint64 m_remaining = 0;
    qint64 m_length = -1;
    QByteArray m_body;
};

} // namespace vl
