#include "core/applying/CvFile.h"

namespace vl::CvPick {

std::optional<QString> mimeFor(const QString& filename)
{
    const qsizetype dot = filename.lastIndexOf(QLatin1Char('.'));
    if (dot < 0)
        return std::nullopt;
    const QString extension = filename.mid(dot + 1).toLower();
    if (extension == QLatin1StringView("pdf"))
        return QStringLiteral("application/pdf");
    if (extension == QLatin1StringView("doc"))
        return QStringLiteral("application/msword");
    if (extension == QLatin1StringView("docx"))
        return QStringLiteral(
            "application/vnd.openxmlformats-officedocument.wordprocessingml.document");
    return std::nullopt;
}

std::variant<CvFile, L10n::Key> accept(const QString& path, QByteArray data)
{
    if (data.size() > maxBytes)
        return L10n::Key::errCvSize;
    const QString filename = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const auto mime = mimeFor(filename);
    if (!mime)
        return L10n::Key::errCvType;
    return CvFile{std::move(data), filename, *mime};
}

} // namespace vl::CvPick
