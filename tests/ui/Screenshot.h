#pragma once

#include <QString>

class QWidget;

namespace vl::test {

// Saves what the window shows, with its open sheets and dialogs painted over it where they
// stand, to screenshots/<name>.png in the build folder, and prints the path.
QString saveScreenshot(QWidget* window, const QString& name);

} // namespace vl::test
