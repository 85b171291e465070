#pragma once

#include "core/l10n/Lang.h"

#include <QString>
#include <QtGlobal>
#include <span>

namespace vl::L10n {

// Texts only the desktop client writes: its menus, its About dialog and its undo. They live in
// a table of their own so the main catalogue stays the one every client shares.
enum class DesktopKey : quint8 {
    undo,
    aboutApp,
    general,
    open,
};

// The text of `key` in `lang`; "" for a value outside the table.
QString text(DesktopKey key, Lang lang);

// Every desktop key, in declaration order.
std::span<const DesktopKey> allDesktopKeys();

} // namespace vl::L10n
