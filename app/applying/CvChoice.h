#pragma once

#include "core/applying/CvFile.h"
#include "core/l10n/Lang.h"

#include <QString>
#include <optional>

namespace vl {

enum class CvChoice { unreadable, refused, taken };

// Reads the file a person picked for a sheet and holds it to a CV's rules. A CV that passes
// replaces `cv` and clears `error`; a refused one leaves `cv` as it was and puts the reason, in
// `lang`, in `error`; a file that cannot be read changes nothing.
CvChoice chooseCv(const QString& path, Lang lang, std::optional<CvFile>& cv,
                  std::optional<QString>& error);

} // namespace vl
