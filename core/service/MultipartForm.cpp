#include "core/service/MultipartForm.h"

#include <QUuid>

namespace vl {

MultipartForm::MultipartForm()
    : MultipartForm(QStringLiteral("vl-") +
                    QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper())
{
}

MultipartForm::MultipartForm(QString boundary)
    : m_boundary(std::move(boundary))
{
}

QByteArray MultipartForm::contentType() const
{
    return "multipart/form-data; boundary=" + m_boundary.toUtf8();
}

void MultipartForm::text(const QString& name, const QString& value)
{
    m_parts += "--" + m_boundary.toUtf8() + "\r\nContent-Disposition: form-data; name=\"" +
               name.toUtf8() + "\"\r\n\r\n" + value.toUtf8() + "\r\n";
}

void MultipartForm::textIfAny(const QString& name, const QString& value)
{
    if (!value.isEmpty())
        text(name, value);
}

void MultipartForm::file(const QString& name, const QString& filename, const QString& mime,
                         const QByteArray& bytes)
{
    // Appended piece by piece: the file's bytes are copied once, straight into the body.
    m_parts += "--" + m_boundary.toUtf8() + "\r\nContent-Disposition: form-data; name=\"" +
               name.toUtf8() + "\"; filename=\"" + sanitiseFilename(filename).toUtf8() +
               "\"\r\nContent-Type: " + mime.toUtf8() + "\r\n\r\n";
    m_parts += bytes;
    m_parts += "\r\n";
}

QByteArray MultipartForm::body() const
{
    return m_parts + "--" + m_boundary.toUtf8() + "--\r\n";
}

QByteArray MultipartForm::takeBody() &&
{
    m_parts += "--" + m_boundary.toUtf8() + "--\r\n";
    return std::move(m_parts);
}

QString MultipartForm::sanitiseFilename(const QString& name)
{
    QString clean = name;
    clean.replace(QLatin1Char('"'), QLatin1Char('\''));
    clean.remove(QLatin1Char('\r'));
    clean.remove(QLatin1Char('\n'));
    return clean;
}

} // namespace vl
