#include "core/l10n/L10n.h"

#include "core/l10n/CatalogueRow.h"
#include "core/l10n/StaticText.h"

#include <QHash>
#include <array>

namespace vl::L10n {

namespace {

struct Entry {
    QString en;
    QString ka;
    QString ru;

    const QString& in(Lang lang) const { return inLang(lang, en, ka, ru); }
};

using Table = QHash<Key, Entry>;

struct Catalogue {
    Table main;
    Table calls;
    std::array<QLatin1StringView, keyCount> names{};
    QHash<QString, Key> byName;
};

void fill(Catalogue& catalogue, Table& table, std::span<const CatalogueRow> rows)
{
    table.reserve(static_cast<qsizetype>(rows.size()));
    for (const CatalogueRow& row : rows) {
        table.insert(row.key, Entry{staticText(row.en), staticText(row.ka), staticText(row.ru)});
        const QLatin1StringView name(row.name);
        catalogue.names[static_cast<std::size_t>(row.key)] = name;
        catalogue.byName.insert(QString(name), row.key);
    }
}

Catalogue build()
{
    Catalogue catalogue;
    catalogue.byName.reserve(keyCount);
    fill(catalogue, catalogue.main, mainRows());
    fill(catalogue, catalogue.calls, callsRows());
    return catalogue;
}

const Catalogue& catalogue()
{
    static const Catalogue instance = build();
    return instance;
}

constexpr std::array<Key, keyCount> keysInOrder = [] {
    std::array<Key, keyCount> keys{};
    for (int i = 0; i < keyCount; ++i)
        keys[static_cast<std::size_t>(i)] = static_cast<Key>(i);
    return keys;
}();

} // namespace

QString text(Key key, Lang lang)
{
    const Catalogue& c = catalogue();
    auto found = c.main.constFind(key);
    if (found == c.main.cend()) {
        found = c.calls.constFind(key);
        if (found == c.calls.cend())
            return QString();
    }
    return found->in(lang);
}

QString text(Key key, Lang lang, int n)
{
    return text(key, lang, QString::number(n));
}

QString text(Key key, Lang lang, const QString& n)
{
    return text(key, lang).replace(QLatin1StringView("{n}"), n);
}

QString textNMax(Key key, Lang lang, int n, int max)
{
    return text(key, lang, n).replace(QLatin1StringView("{max}"), QString::number(max));
}

Key macVariant(Key key)
{
    switch (key) {
    case Key::fySavedOnPhone:
        return Key::fySavedOnMac;
    case Key::candNoPasskey:
        return Key::candNoPasskeyMac;
    case Key::noApplications:
        return Key::noApplicationsMac;
    case Key::seekerNoAccountNote:
        return Key::seekerNoAccountNoteMac;
    case Key::gigAlertsSub:
        return Key::gigAlertsSubMac;
    case Key::appsOnPhone:
        return Key::appsOnMac;
    default:
        return key;
    }
}

QLatin1StringView keyName(Key key)
{
    const auto index = static_cast<std::size_t>(key);
    if (index >= keysInOrder.size())
        return {};
    return catalogue().names[index];
}

std::optional<Key> keyFromName(QStringView name)
{
    const auto& byName = catalogue().byName;
    const auto found = byName.constFind(name.toString());
    if (found == byName.cend())
        return std::nullopt;
    return *found;
}

std::span<const Key> allKeys()
{
    return keysInOrder;
}

} // namespace vl::L10n
