#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <optional>

namespace vl {

// Reads the text of a CV the way the service does: PDF through pdftotext, Word's DOCX through
// its word/document.xml; other files have no text the sandbox can read.
namespace CvReader {

std::optional<QString> text(const QByteArray& data, const QString& mime);

// A Word file that carries macros.
bool hasMacros(const QByteArray& data);

// CvCheckPayload for a CV's text (none when unreadable) against a listing's words.
QJsonObject check(const std::optional<QString>& cvText, const QString& listingText,
                  const QString& jobRef, const QString& jobTitle, const QString& lang);

} // namespace CvReader

} // namespace vl
