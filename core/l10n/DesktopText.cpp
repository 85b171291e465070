#include "core/l10n/DesktopText.h"

#include "core/l10n/StaticText.h"

#include <array>
#include <string_view>

namespace vl::L10n {

namespace {

struct Row {
    DesktopKey key;
    std::u16string_view en;
    std::u16string_view ka;
    std::u16string_view ru;
};

// Key, English, Georgian, Russian.
// clang-format off
constexpr std::array rows{
    Row{DesktopKey::undo, u"Undo", u"დაბრუნება", u"Отменить"},
    Row{DesktopKey::aboutApp, u"About Velmora", u"Velmora-ს შესახებ", u"О Velmora"},
    Row{DesktopKey::general, u"General", u"ზოგადი", u"Основные"},
    Row{DesktopKey::open, u"Open", u"გახსნა", u"Открыть"},
};
// clang-format on

constexpr std::array keysInOrder = [] {
    std::array<DesktopKey, rows.size()> keys{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        keys[i] = rows[i].key;
    return keys;
}();

} // namespace

QString text(DesktopKey key, Lang lang)
{
    for (const Row& row : rows) {
        if (row.key == key)
            return staticText(inLang(lang, row.en, row.ka, row.ru));
    }
    return QString();
}

std::span<const DesktopKey> allDesktopKeys()
{
    return keysInOrder;
}

} // namespace vl::L10n
