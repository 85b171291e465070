#include "core/l10n/CatalogueRow.h"

#include <gtest/gtest.h>

using namespace vl::L10n;

// The tables hold every key exactly once, split at callVoice, in declaration order.
TEST(CatalogueCount, EveryKeyOnceInItsTable)
{
    EXPECT_EQ(keyCount, 821);
    const auto main = mainRows();
    const auto calls = callsRows();
    EXPECT_EQ(main.size(), 696u);
    EXPECT_EQ(calls.size(), 125u);

    int expected = 0;
    for (const auto rows : {main, calls}) {
        for (const CatalogueRow& row : rows) {
            EXPECT_EQ(static_cast<int>(row.key), expected) << row.name;
            ++expected;
        }
    }
    EXPECT_EQ(expected, keyCount);
    EXPECT_EQ(main.front().key, Key::tabJobs);
    EXPECT_EQ(main.back().key, Key::rateLater);
    EXPECT_EQ(calls.front().key, Key::callVoice);
    EXPECT_EQ(calls.back().key, Key::reportDanger);
}
