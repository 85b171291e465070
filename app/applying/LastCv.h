#pragma once

#include "core/applying/CvFile.h"

#include <optional>

namespace vl {

class Preferences;

// The CV of the last application: its bytes alone in a folder of the user's data, its name and
// type in `vl.lastCv`.
class LastCv {
public:
    // `folder` is the folder that holds the one file; by default "lastcv" in the XDG data folder.
    explicit LastCv(Preferences& preferences, QString folder = defaultFolder());

    static QString defaultFolder();

    // Nothing unless `vl.lastCv` holds exactly two strings and the file reads and is not empty.
    std::optional<CvFile> load() const;
    // Replaces the folder's file and the remembered name. Failures are swallowed.
    void remember(const CvFile& cv);

private:
    Preferences& m_preferences;
    QString m_folder;
};

} // namespace vl
