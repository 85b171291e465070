#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

namespace vl {

// Splits what a later launch writes to the single-instance socket into links: one a line, in
// UTF-8, an empty line asking only to come forward. A line longer than maxLink is no link at
// all: the reader stops taking bytes, so the channel can drop that connection, and memory stays
// bounded whatever a local process sends.
class HandOverReader {
public:
    static constexpr qsizetype maxLink = 16 * 1024;

    // Takes the next bytes as they arrived; returns the links they complete.
    QStringList feed(QByteArrayView bytes);
    bool overflowed() const { return m_overflowed; }

private:
    QByteArray m_pending;
    bool m_overflowed = false;
};

} // namespace vl
