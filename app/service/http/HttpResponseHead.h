#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QPair>

namespace vl {

// The status line and header fields of one HTTP answer, in the order the server sent them.
// Repeated fields (Set-Cookie above all) stay separate entries.
struct HttpResponseHead {
    int minorVersion = 1;
    int status = 0;
    QByteArray reason;
    QList<QPair<QByteArray, QByteArray>> fields;

    // The first value of a field, compared without regard to case; empty when absent.
    QByteArray value(QByteArrayView name) const;
    QList<QByteArray> values(QByteArrayView name) const;
    bool has(QByteArrayView name) const;
    // The comma-separated items of every occurrence of a list-valued field, trimmed.
    QList<QByteArray> listItems(QByteArrayView name) const;
};

} // namespace vl
