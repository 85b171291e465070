#include "core/navigation/HandOverReader.h"

namespace vl {

QStringList HandOverReader::feed(QByteArrayView bytes)
{
    QStringList links;
    while (!m_overflowed && !bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf('\n');
        const QByteArrayView piece = end < 0 ? bytes : bytes.first(end);
        if (m_pending.size() + piece.size() > maxLink) {
            m_overflowed = true;
            m_pending.clear();
            break;
        }
        m_pending.append(piece);
        if (end < 0)
            break;
        links.append(QString::fromUtf8(m_pending).trimmed());
        m_pending.clear();
        bytes = bytes.sliced(end + 1);
    }
    return links;
}

} // namespace vl
