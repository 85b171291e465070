#include "sandbox/Sandbox.h"
#include "sandbox/SandboxOptions.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velmora-sandbox"));
    const auto options = vl::SandboxOptions::parse(QCoreApplication::arguments());
    if (!options)
        return 2;
    vl::Sandbox sandbox(*options);
    if (!sandbox.start())
        return 1;
    return QCoreApplication::exec();
}
