#include "core/applying/CvUpdateRules.h"

#include "core/l10n/L10n.h"

#include <array>
#include <utility>

namespace vl::CvUpdateRules {

Failure failure(const APIError& error, Lang lang, int max)
{
    using L10n::Key;
    if (error.kind() == APIError::Kind::network)
        return {L10n::text(Key::sendFailed, lang)};
    if (error.kind() == APIError::Kind::http)
        return {L10n::text(Key::cvUpdateFailed, lang)};
    const QString& code = error.code();
    if (code == QLatin1StringView("limit"))
        return {L10n::textNMax(Key::cvUpdateLimit, lang, max, max), true};
    for (const char* closed : {"closed", "hired", "archived", "enquiry", "missing"}) {
        if (code == QLatin1StringView(closed))
            return {L10n::text(Key::cvUpdateClosed, lang), true};
    }
    static constexpr std::array<std::pair<const char*, Key>, 6> byCode{{
        {"same", Key::cvUpdateSame},
        {"busy", Key::cvUpdateBusy},
        {"cv_type", Key::errCvType},
        {"cv_size", Key::errCvSize},
        {"cv_unsafe", Key::cvUpdateUnsafe},
        {"rate", Key::cvUpdateRate},
    }};
    for (const auto& [name, key] : byCode) {
        if (code == QLatin1StringView(name))
            return {L10n::text(key, lang)};
    }
    return {L10n::text(Key::cvUpdateFailed, lang)};
}

} // namespace vl::CvUpdateRules
