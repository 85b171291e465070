#include "app/service/OneShotBody.h"

#include <cstring>

namespace vl {

OneShotBody::OneShotBody(QByteArray bytes, QObject* parent)
    : QIODevice(parent)
    , m_bytes(std::move(bytes))
{
    open(QIODevice::ReadOnly);
}

qint64 OneShotBody::bytesAvailable() const
{
    return m_bytes.size() - m_read + QIODevice::bytesAvailable();
}

qint64 OneShotBody::readData(char* data, qint64 maxSize)
{
    const qint64 count = std::min<qint64>(maxSize, m_bytes.size() - m_read);
    if (count <= 0)
        return -1;
    std::memcpy(data, m_bytes.constData() + m_read, size_t(count));
    m_read += count;
    return count;
}

qint64 OneShotBody::writeData(const char*, qint64)
{
    return -1;
}

} // namespace vl
