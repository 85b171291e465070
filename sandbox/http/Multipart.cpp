#include "sandbox/http/Multipart.h"

#include "sandbox/http/Request.h"

namespace vl {

namespace {

// The value of `name="..."` in a Content-Disposition line.
QByteArray parameter(const QByteArray& line, const QByteArray& name)
{
    const QByteArray key = name + "=\"";
    const qsizetype start = line.indexOf(key);
    if (start < 0)
        return {};
    const qsizetype from = start + key.size();
    const qsizetype end = line.indexOf('"', from);
    return end < 0 ? QByteArray() : line.mid(from, end - from);
}

bool readPart(QByteArrayView part, Multipart& out)
{
    const qsizetype split = part.indexOf("\r\n\r\n");
    if (split < 0)
        return false;
    QByteArray disposition;
    QByteArray mime;
    for (const QByteArray& line : part.first(split).toByteArray().split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.toLower().startsWith("content-disposition:"))
            disposition = trimmed;
        else if (trimmed.toLower().startsWith("content-type:"))
            mime = trimmed.mid(13).trimmed();
    }
    const QString name = QString::fromUtf8(parameter(disposition, "name"));
    if (name.isEmpty())
        return false;
    const QByteArray value = part.sliced(split + 4).toByteArray();
    out.order.append(name);
    if (disposition.contains("filename=\""))
        out.files.insert(name,
                         {QString::fromUtf8(parameter(disposition, "filename")), mime, value});
    else
        out.fields.insert(name, QString::fromUtf8(value));
    return true;
}

} // namespace

std::optional<Multipart::File> Multipart::file(const QString& name) const
{
    const auto found = files.constFind(name);
    return found == files.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<Multipart> Multipart::parse(const Request& request)
{
    const QByteArray type = request.header("content-type");
    const qsizetype at = type.indexOf("boundary=");
    if (!type.startsWith("multipart/form-data") || at < 0)
        return std::nullopt;
    const QByteArray delimiter = "--" + type.mid(at + 9).trimmed();
    const QByteArrayView body(request.body);
    Multipart out;
    qsizetype from = body.indexOf(delimiter);
    while (from >= 0) {
        const qsizetype start = from + delimiter.size();
        if (body.sliced(start).startsWith("--"))
            return out;
        if (!body.sliced(start).startsWith("\r\n"))
            return std::nullopt;
        const qsizetype next = body.indexOf("\r\n" + delimiter, start + 2);
        if (next < 0 || !readPart(body.sliced(start + 2, next - start - 2), out))
            return std::nullopt;
        from = next + 2;
    }
    return std::nullopt;
}

} // namespace vl
