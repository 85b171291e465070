#pragma once

#include "core/l10n/Lang.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace vl::Translit {

// Any character in U+10A0..U+10FF.
bool hasGeorgian(QStringView text);
// Any character in U+0400..U+04FF.
bool hasCyrillic(QStringView text);

// The text in Latin letters, Georgian and Russian letters replaced, each word capitalised where a
// replacement starts it: "თბილისი ბათუმი" gives "Tbilisi Batumi".
QString latin(QStringView text);

// The Latin form of a Georgian or Cyrillic name for a reader who may not read that script;
// nothing for a Latin name, for a name in the reader's own script, or when it reads the same.
std::optional<QString> subtitle(const QString& name, Lang lang);

} // namespace vl::Translit
