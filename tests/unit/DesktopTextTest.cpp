#include "core/l10n/DesktopText.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace vl;
using L10n::DesktopKey;

// Each desktop text exists in all three languages, in each language's own script.
TEST(DesktopText, EveryKeySpeaksEachLanguageInItsScript)
{
    const QRegularExpression latin(QStringLiteral("[A-Za-z]"));
    const auto withoutName = [](QString text) { return text.remove(QStringLiteral("Velmora")); };
    for (const DesktopKey key : L10n::allDesktopKeys()) {
        const QString en = L10n::text(key, Lang::en);
        const QString ka = L10n::text(key, Lang::ka);
        const QString ru = L10n::text(key, Lang::ru);
        EXPECT_TRUE(en.contains(latin)) << en.toStdString();
        EXPECT_FALSE(withoutName(ka).contains(latin)) << ka.toStdString();
        EXPECT_FALSE(withoutName(ru).contains(latin)) << ru.toStdString();
        EXPECT_TRUE(ka.contains(QRegularExpression(QStringLiteral("[\\x{10D0}-\\x{10FF}]"))))
            << ka.toStdString();
        EXPECT_TRUE(ru.contains(QRegularExpression(QStringLiteral("[\\x{0400}-\\x{04FF}]"))))
            << ru.toStdString();
    }
}

TEST(DesktopText, KeysInOrderAndNothingOutsideTheTable)
{
    const auto keys = L10n::allDesktopKeys();
    ASSERT_EQ(keys.size(), 4u);
    for (std::size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(keys[i]), i);
    EXPECT_EQ(L10n::text(DesktopKey::undo, Lang::en), QStringLiteral("Undo"));
    EXPECT_EQ(L10n::text(DesktopKey::aboutApp, Lang::en), QStringLiteral("About Velmora"));
    EXPECT_EQ(L10n::text(static_cast<DesktopKey>(keys.size()), Lang::ka), QString());
}
