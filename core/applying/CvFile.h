#pragma once

#include "core/l10n/L10nKey.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

namespace vl {

// A CV as it goes out: its bytes, the name the person gave it and its mime type.
struct CvFile {
    QByteArray data;
    QString filename;
    QString mime;
    bool operator==(const CvFile&) const = default;
};

namespace CvPick {

inline constexpr qint64 maxBytes = 5 * 1024 * 1024;

// The mime type a CV goes out with, decided by the extension alone; none for other kinds.
std::optional<QString> mimeFor(const QString& filename);

// A file the person picked, read whole: the CV, or the message that refuses it. Size is
// judged before kind. `path` may be a full path; the CV keeps its last component.
std::variant<CvFile, L10n::Key> accept(const QString& path, QByteArray data);

} // namespace CvPick

} // namespace vl
