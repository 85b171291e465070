#pragma once

#include "core/l10n/L10nKey.h"
#include "core/l10n/Lang.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>
#include <optional>
#include <span>

namespace vl::L10n {

// The text of `key` in `lang`; "" for a key in no table. There is no fallback between languages.
QString text(Key key, Lang lang);
// The same with every "{n}" replaced by the number's decimal text, or by `n`.
QString text(Key key, Lang lang, int n);
QString text(Key key, Lang lang, const QString& n);
// The same with both "{n}" and "{max}" replaced.
QString textNMax(Key key, Lang lang, int n, int max);

// The desktop wording of a text that mentions the device; every other key maps to itself.
Key macVariant(Key key);

QLatin1StringView keyName(Key key);
std::optional<Key> keyFromName(QStringView name);

// Every key, in declaration order.
std::span<const Key> allKeys();

} // namespace vl::L10n
