#include "app/cli/PendingSignIn.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <array>

namespace vl::cli::pendingSignIn {

namespace {

using Step = CandidateGate::Step;

constexpr std::array<std::pair<Step, const char*>, 5> steps{{
    {Step::email, "email"},
    {Step::code, "code"},
    {Step::factorEnroll, "factorEnroll"},
    {Step::factorVerify, "factorVerify"},
    {Step::totpEnroll, "totpEnroll"},
}};

QString path()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/velmora/candidate-sign-in.json");
}

} // namespace

QString stepName(Step step)
{
    for (const auto& [value, name] : steps)
        if (value == step)
            return QString::fromLatin1(name);
    return {};
}

std::optional<CandidateGate::Pending> load()
{
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    CandidateGate::Pending pending;
    const QString step = object.value(QStringLiteral("step")).toString();
    for (const auto& [value, name] : steps)
        if (step == QLatin1StringView(name))
            pending.step = value;
    pending.email = object.value(QStringLiteral("email")).toString();
    pending.ticket = object.value(QStringLiteral("ticket")).toString();
    pending.mailOnly = object.value(QStringLiteral("mailOnly")).toBool();
    pending.totpSecret = object.value(QStringLiteral("totpSecret")).toString();
    return pending;
}

void save(const CandidateGate::Pending& pending)
{
    const QString file = path();
    QDir().mkpath(QFileInfo(file).path());
    QFile::setPermissions(QFileInfo(file).path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return;
    out.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    out.write(QJsonDocument(QJsonObject{{QStringLiteral("step"), stepName(pending.step)},
                                        {QStringLiteral("email"), pending.email},
                                        {QStringLiteral("ticket"), pending.ticket},
                                        {QStringLiteral("mailOnly"), pending.mailOnly},
                                        {QStringLiteral("totpSecret"), pending.totpSecret}})
                  .toJson(QJsonDocument::Compact));
    out.commit();
}

void clear()
{
    QFile::remove(path());
}

} // namespace vl::cli::pendingSignIn
