#include "tests/support/CliProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>

namespace vl::test {

CliProcess::CliProcess(QString site)
    : m_site(std::move(site))
{
}

CliProcess::Run CliProcess::run(const QStringList& args) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELMORA_SITE"), m_site);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       m_home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
    const QString runtime = m_home.filePath(QStringLiteral("runtime"));
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(VELMORA_CLI_PATH), args);
    process.waitForFinished(60000);
    Run run;
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    run.json = QJsonDocument::fromJson(run.out.toUtf8()).object();
    return run;
}

bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS");
}

} // namespace vl::test
