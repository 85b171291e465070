#include "core/applying/ApplicationStatus.h"

#include "core/l10n/L10n.h"

#include <array>
#include <utility>

namespace vl {

QString applicationStatusText(const QString& status, Lang lang)
{
    using L10n::Key;
    static constexpr std::array<std::pair<const char*, Key>, 11> byStatus{{
        {"new", Key::stageSent},
        {"seen", Key::stageOpened},
        {"opened", Key::stageOpened},
        {"replied", Key::stageReplied},
        {"shortlisted", Key::stageShortlisted},
        {"interview", Key::stageInterview},
        {"hired", Key::stageHired},
        {"hold", Key::stageHold},
        {"rejected", Key::stageDeclined},
        {"declined", Key::stageDeclined},
        {"withdrawn", Key::stageWithdrawn},
    }};
    for (const auto& [name, key] : byStatus) {
        if (status == QLatin1StringView(name))
            return L10n::text(key, lang);
    }
    return status;
}

} // namespace vl
