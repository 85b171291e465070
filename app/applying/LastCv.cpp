#include "app/applying/LastCv.h"

#include "app/platform/Preferences.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace vl {

namespace {

const QString key = QStringLiteral("vl.lastCv");

} // namespace

LastCv::LastCv(Preferences& preferences, QString folder)
    : m_preferences(preferences)
    , m_folder(std::move(folder))
{
}

QString LastCv::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/lastcv");
}

std::optional<CvFile> LastCv::load() const
{
    const QStringList kept = m_preferences.value(key).toStringList();
    if (kept.size() != 2)
        return std::nullopt;
    QFile file(QDir(m_folder).filePath(kept[0]));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray data = file.readAll();
    if (data.isEmpty())
        return std::nullopt;
    return CvFile{std::move(data), kept[0], kept[1]};
}

void LastCv::remember(const CvFile& cv)
{
    QDir folder(m_folder);
    folder.removeRecursively();
    if (!QDir().mkpath(m_folder))
        return;
    QSaveFile file(folder.filePath(cv.filename));
    if (!file.open(QIODevice::WriteOnly) || file.write(cv.data) != cv.data.size() || !file.commit())
        return;
    m_preferences.setValue(key, QStringList{cv.filename, cv.mime});
}

} // namespace vl
