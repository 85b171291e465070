#pragma once

#include <QByteArray>
#include <QString>

namespace vl::test {

// A one-page PDF whose text pdftotext reads back: ASCII only, up to about 60 lines of 90.
QByteArray pdfWithText(const QByteArray& text);
// Writes bytes to a file of that name in the folder and returns its path.
QString writeFile(const QString& folder, const QString& name, const QByteArray& bytes);

} // namespace vl::test
