#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <optional>

namespace vl {

struct Request;

// A multipart/form-data body taken apart: text fields by name, and at most one file per name.
struct Multipart {
    struct File {
        QString filename;
        QByteArray mime;
        QByteArray data;
    };
    QHash<QString, QString> fields;
    QHash<QString, File> files;
    // Part names in the order they came, for the request log and for tests.
    QStringList order;

    QString field(const QString& name) const { return fields.value(name); }
    std::optional<File> file(const QString& name) const;

    // Nothing when the request is not multipart or its body does not parse.
    static std::optional<Multipart> parse(const Request& request);
};

} // namespace vl
