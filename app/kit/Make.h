#pragma once

#include "app/kit/Theme.h"

#include <QLabel>
#include <QPushButton>

namespace vl::make {

// A wrapping label in one of the theme's roles.
inline QLabel* label(QWidget* parent, const char* role = "plain")
{
    auto* made = new QLabel(parent);
    made->setWordWrap(true);
    Theme::setRole(made, role);
    return made;
}

inline QPushButton* button(QWidget* parent, const char* role = "quiet")
{
    auto* made = new QPushButton(parent);
    made->setAutoDefault(false);
    Theme::setRole(made, role);
    return made;
}

} // namespace vl::make
