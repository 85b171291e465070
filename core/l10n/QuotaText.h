#pragma once

#include "core/l10n/Lang.h"

#include <QString>

namespace vl::QuotaText {

// The messages of the weekly quota of opened applications.
enum class Key : quint8 {
    locked,
    maskedName,
    title,
    what,
    count,
    resets,
    uses,
    outTitle,
    outBody,
    creditsLeft,
    useCredit,
    payTitle,
    payWhat,
    pro,
    proWhat,
    weekTitle,
    openOnWeb,
    webWhy,
    writeBlocked,
};

// The text of `key` in `lang`; "" for a value outside the enum.
QString text(Key key, Lang lang);
// The same with "{0}" replaced by `first`, and "{1}" by `second`.
QString text(Key key, Lang lang, int first);
QString text(Key key, Lang lang, int first, int second);

} // namespace vl::QuotaText
