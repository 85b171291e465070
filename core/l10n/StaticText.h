#pragma once

#include "core/l10n/Lang.h"

#include <QString>
#include <string_view>

namespace vl {

// A text in static storage, for the whole run: the string only points at it, nothing is copied.
inline QString staticText(std::u16string_view text)
{
    return QString::fromRawData(reinterpret_cast<const QChar*>(text.data()),
                                static_cast<qsizetype>(text.size()));
}

// Of three texts side by side, the one in `lang`.
template <class Text>
const Text& inLang(Lang lang, const Text& en, const Text& ka, const Text& ru)
{
    switch (lang) {
    case Lang::en:
        return en;
    case Lang::ru:
        return ru;
    case Lang::ka:
        break;
    }
    return ka;
}

} // namespace vl
