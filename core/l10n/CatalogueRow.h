#pragma once

#include "core/l10n/L10nKey.h"

#include <span>
#include <string_view>

namespace vl::L10n {

// One line of a catalogue table: the key, its name, and its three texts side by side.
struct CatalogueRow {
    Key key;
    const char* name;
    std::u16string_view en;
    std::u16string_view ka;
    std::u16string_view ru;
};

// Rows are written as VL_TEXT(key, "English", "Georgian", "Russian"), one per line, so that a
// translator reads and edits the three texts of a key together. The sources are UTF-8.
#define VL_TEXT(key, en, ka, ru)                                                                   \
    ::vl::L10n::CatalogueRow                                                                       \
    {                                                                                              \
        ::vl::L10n::Key::key, #key, u"" en, u"" ka, u"" ru                                         \
    }

// The keys from tabJobs to rateLater.
std::span<const CatalogueRow> mainRows();
// The keys from callVoice to reportDanger: calls, safety, voice, documents and message editing.
std::span<const CatalogueRow> callsRows();

} // namespace vl::L10n
