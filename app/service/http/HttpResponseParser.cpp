#include "app/service/http/HttpResponseParser.h"

#include <utility>

namespace vl {

namespace {

// Bounds that no sane answer reaches; beyond them the peer is not speaking HTTP to us.
constexpr qsizetype maxHeadBytes = 256 * 1024;
constexpr qsizetype maxFieldCount = 512;
constexpr qsizetype maxChunkLine = 4096;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// A non-negative decimal or hexadecimal count, digits only: no sign, prefix or blanks.
bool parseCount(QByteArrayView text, int base, qint64& out)
{
    if (text.isEmpty() || text.size() > 15)
        return false;
    qint64 value = 0;
    for (const char c : text) {
        int digit = 0;
        if (isDigit(c))
            digit = c - '0';
        else if (base == 16 && isHexDigit(c))
            digit = (c | 0x20) - 'a' + 10;
        else
            return false;
        value = value * base + digit;
    }
    out = value;
    return true;
}

} // namespace

HttpResponseParser::HttpResponseParser(bool answersHead)
    : m_answersHead(answersHead)
{
}

bool HttpResponseParser::feed(QByteArrayView data)
{
    if (m_state == State::Failed)
        return false;
    if (data.isEmpty())
        return true;
    m_receivedAnything = true;
    if (m_pos == m_input.size()) {
        m_input.clear();
        m_pos = 0;
    } else if (m_pos > 0 && m_pos >= m_input.size() / 2) {
        m_input.remove(0, m_pos);
        m_pos = 0;
    }
    m_input.append(data);
    while (step()) {
    }
    return m_state != State::Failed;
}

bool HttpResponseParser::finishAtClose()
{
    if (m_state == State::Close)
        m_state = State::Complete;
    return m_state == State::Complete;
}

qint64 HttpResponseParser::announcedLength() const
{
    return m_length;
}

bool HttpResponseParser::keepsConnection() const
{
    if (m_state != State::Complete || m_closeFramed || hasLeftover())
        return false;
    bool keepAlive = false;
    for (const QByteArray& token : m_head.listItems("Connection")) {
        if (token.compare("close", Qt::CaseInsensitive) == 0)
            return false;
        if (token.compare("keep-alive", Qt::CaseInsensitive) == 0)
            keepAlive = true;
    }
    return m_head.minorVersion >= 1 || keepAlive;
}

QByteArray HttpResponseParser::takeBody()
{
    return std::exchange(m_body, QByteArray());
}

bool HttpResponseParser::step()
{
    const qsizetype available = m_input.size() - m_pos;
    QByteArrayView line;
    switch (m_state) {
    case State::Head:
        if (!nextLine(line))
            return m_headBytes + available > maxHeadBytes ? fail() : false;
        m_headBytes += line.size() + 1;
        if (m_headBytes > maxHeadBytes)
            return fail();
        return parseHeadLine(line);
    case State::Length:
    case State::ChunkData: {
        if (available == 0)
            return false;
        const qsizetype taken = qsizetype(qMin<qint64>(available, m_remaining));
        m_body.append(m_input.constData() + m_pos, taken);
        m_pos += taken;
        m_remaining -= taken;
        if (m_remaining == 0)
            m_state = m_state == State::Length ? State::Complete : State::ChunkEnd;
        return true;
    }
    case State::ChunkSize: {
        if (!nextLine(line))
            return available > maxChunkLine ? fail() : false;
        const qsizetype extension = line.indexOf(';');
        qint64 size = 0;
        if (!parseCount((extension < 0 ? line : line.first(extension)).trimmed(), 16, size))
            return fail();
        m_remaining = size;
        m_state = size == 0 ? State::Trailer : State::ChunkData;
        return true;
    }
    case State::ChunkEnd:
        if (!nextLine(line))
            return available >= 2 ? fail() : false;
        if (!line.isEmpty())
            return fail();
        m_state = State::ChunkSize;
        return true;
    case State::Trailer:
        if (!nextLine(line))
            return available > maxHeadBytes ? fail() : false;
        if (line.isEmpty())
            m_state = State::Complete;
        return true;
    case State::Close:
        m_body.append(m_input.constData() + m_pos, available);
        m_pos = m_input.size();
        return false;
    case State::Complete:
    case State::Failed:
        return false;
    }
    return false;
}

bool HttpResponseParser::nextLine(QByteArrayView& line)
{
    const qsizetype end = m_input.indexOf('\n', m_pos);
    if (end < 0)
        return false;
    line = QByteArrayView(m_input).sliced(m_pos, end - m_pos);
    if (line.endsWith('\r'))
        line.chop(1);
    m_pos = end + 1;
    return true;
}

bool HttpResponseParser::parseHeadLine(QByteArrayView line)
{
    if (!m_statusSeen)
        return line.isEmpty() ? true : parseStatusLine(line);
    if (line.isEmpty())
        return endHead();
    if (line.front() == ' ' || line.front() == '\t') {
        if (m_head.fields.isEmpty())
            return fail();
        m_head.fields.last().second += ' ' + line.trimmed().toByteArray();
        return true;
    }
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0 || m_head.fields.size() >= maxFieldCount)
        return fail();
    const QByteArrayView name = line.first(colon);
    if (name.contains(' ') || name.contains('\t'))
        return fail();
    m_head.fields.append({name.toByteArray(), line.sliced(colon + 1).trimmed().toByteArray()});
    return true;
}

bool HttpResponseParser::parseStatusLine(QByteArrayView line)
{
    // "HTTP/1.1 200 OK": the reason phrase may be empty or missing altogether.
    if (line.size() < 12 || !line.startsWith("HTTP/1.") || !isDigit(line[7]) || line[8] != ' ')
        return fail();
    qint64 status = 0;
    if (!parseCount(line.sliced(9, 3), 10, status) || status < 100)
        return fail();
    if (line.size() > 12 && line[12] != ' ')
        return fail();
    m_head.minorVersion = line[7] - '0';
    m_head.status = int(status);
    m_head.reason = line.size() > 13 ? line.sliced(13).toByteArray() : QByteArray();
    m_statusSeen = true;
    return true;
}

bool HttpResponseParser::endHead()
{
    const int status = m_head.status;
    if (status < 200) {
        // 101 would hand the connection to another protocol, which no request of ours asks for.
        if (status == 101)
            return fail();
        m_head = HttpResponseHead();
        m_statusSeen = false;
        m_headBytes = 0;
        return true;
    }
    if (m_answersHead || status == 204 || status == 304) {
        m_length = 0;
        m_state = State::Complete;
        return true;
    }
    const QList<QByteArray> codings = m_head.listItems("Transfer-Encoding");
    if (!codings.isEmpty()) {
        if (codings.last().compare("chunked", Qt::CaseInsensitive) == 0) {
            m_state = State::ChunkSize;
        } else {
            m_closeFramed = true;
            m_state = State::Close;
        }
        return true;
    }
    const QList<QByteArray> lengths = m_head.listItems("Content-Length");
    if (!lengths.isEmpty()) {
        qint64 length = -1;
        for (const QByteArray& text : lengths) {
            qint64 each = 0;
            if (!parseCount(text, 10, each) || (length >= 0 && each != length))
                return fail();
            length = each;
        }
        m_length = length;
        m_remaining = length;
        m_state = length == 0 ? State::Complete : State::Length;
        return true;
    }
    m_closeFramed = true;
    m_state = State::Close;
    return true;
}

bool HttpResponseParser::fail()
{
    m_state = State::Failed;
    return false;
}

} // namespace vl
