#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

// Every Qt-facing test binary shares this main: an offscreen QApplication, test-mode standard
// paths so nothing touches the user's own settings, and GoogleTest's runner.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("velmora-tests"));
    QApplication::setApplicationName(QStringLiteral("velmora-tests"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
