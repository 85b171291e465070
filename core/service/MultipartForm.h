#pragma once

#include <QByteArray>
#include <QString>

namespace vl {

// A multipart/form-data body, written part by part in the order the operation lists them.
class MultipartForm {
public:
    // A new form with the boundary "vl-" and a fresh UUID.
    MultipartForm();
    explicit MultipartForm(QString boundary);

    const QString& boundary() const { return m_boundary; }
    QByteArray contentType() const;

    // A text field; an empty optional value is left out by calling textIfAny.
    void text(const QString& name, const QString& value);
    void textIfAny(const QString& name, const QString& value);
    void file(const QString& name, const QString& filename, const QString& mime,
              const QByteArray& bytes);

    // Room for the parts still to come, so that a large file part is not copied on growth.
    void reserve(qsizetype bytes) { m_parts.reserve(bytes); }

    // The finished body, with the closing boundary.
    QByteArray body() const;
    // The same without a copy of the parts: the form is spent.
    QByteArray takeBody() &&;

    // Double quotes become single quotes; carriage returns and line feeds go.
    static QString sanitiseFilename(const QString& name);

private:
    QString m_boundary;
    QByteArray m_parts;
};

} // namespace vl
