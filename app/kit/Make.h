#pragma once

#include "app/kit/Theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

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

// An endless bar for work under way.
inline QProgressBar* busyBar(QWidget* parent)
{
    auto* made = new QProgressBar(parent);
    made->setRange(0, 0);
    made->setTextVisible(false);
    return made;
}

// The page a sheet turns to once it has sent: its message, and the button that closes it.
inline QWidget* sentPage(QLabel*& message, QPushButton*& close)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    message = label(page, "title");
    close = button(page, "primary");
    layout->addWidget(message);
    layout->addWidget(close);
    layout->addStretch();
    return page;
}

} // namespace vl::make
