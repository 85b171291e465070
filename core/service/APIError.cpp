#include "core/service/APIError.h"

#include "core/l10n/L10n.h"
#include "core/l10n/QuotaText.h"

#include <array>
#include <utility>

namespace vl {

QString APIError::message(Lang lang) const
{
    using L10n::Key;
    if (m_kind != Kind::server)
        return L10n::text(Key::errLoadBody, lang);
    if (m_code == QLatin1StringView("locked"))
        return QuotaText::text(QuotaText::Key::locked, lang);

    static constexpr std::array<std::pair<const char*, Key>, 10> byCode{{
        {"rate", Key::errRate},
        {"already", Key::errAlready},
        {"cv_type", Key::errCvType},
        {"cv_size", Key::errCvSize},
        {"email", Key::errEmail},
        {"required", Key::errRequired},
        {"code", Key::errCode},
        {"auth", Key::errAuth},
        {"bump_wait", Key::errBumpWait},
        {"form_web_only", Key::applyOnSiteWhy},
    }};
    for (const auto& [code, key] : byCode) {
        if (m_code == QLatin1StringView(code))
            return L10n::text(key, lang);
    }
    return L10n::text(Key::errGeneric, lang);
}

} // namespace vl
