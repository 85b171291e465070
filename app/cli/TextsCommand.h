#pragma once

#include <QStringList>

namespace vl::cli {

// `texts [--lang L]`: the whole catalogue as JSON, {"key": {"ka": …, "en": …, "ru": …}}, or one
// language's texts {"key": "…"} with --lang, for translators and scripts.
int runTexts(const QStringList& args);

} // namespace vl::cli
