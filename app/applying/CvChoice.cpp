#include "app/applying/CvChoice.h"

#include "core/l10n/L10n.h"

#include <QFile>

namespace vl {

CvChoice chooseCv(const QString& path, Lang lang, std::optional<CvFile>& cv,
                  std::optional<QString>& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return CvChoice::unreadable;
    auto picked = CvPick::accept(path, file.readAll());
    if (const auto* refusal = std::get_if<L10n::Key>(&picked)) {
        error = L10n::text(*refusal, lang);
        return CvChoice::refused;
    }
    error.reset();
    cv = std::get<CvFile>(std::move(picked));
    return CvChoice::taken;
}

} // namespace vl
