#include "app/kit/Theme.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

// Screens are tested, and photographed, in the look the application gives them.
class ThemeEnvironment : public testing::Environment {
public:
    void SetUp() override
    {
        vl::Theme::apply(*static_cast<QApplication*>(QApplication::instance()));
    }
};

[[maybe_unused]] const testing::Environment* const themed =
    testing::AddGlobalTestEnvironment(new ThemeEnvironment);

} // namespace
