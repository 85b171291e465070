#pragma once

#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

// The signed-in job seeker's own activity: applications, posted profiles and their threads.
struct MyActivityPayload {
    struct Interview {
        QString scheduledAt;
        QString mode;
        QString location;
        QString status;
        VL_JSON_FIELDS(Interview, scheduledAt, mode, location, status)
    };
    struct App {
        QString ref;
        QString kind;
        QString status;
        QString createdAt;
        QString lastAt;
        int unread = 0;
        QString preview;
        QString jobTitle;
        QString employerName;
        std::optional<Interview> interview;
        VL_JSON_FIELDS(App, ref, kind, status, createdAt, lastAt, unread, preview, jobTitle,
                       employerName, interview)
    };
    struct Profile {
        QString ref;
        QString title;
        QString status;
        VL_JSON_FIELDS(Profile, ref, title, status)
    };
    struct SeekerThread {
        QString id;
        QString seekerRef;
        QString employerName;
        QString preview;
        QString lastAt;
        int unread = 0;
        bool contactRequested = false;
        VL_JSON_FIELDS(SeekerThread, id, seekerRef, employerName, preview, lastAt, unread,
                       contactRequested)
    };

    std::vector<App> applications;
    std::vector<Profile> seekerProfiles;
    std::vector<SeekerThread> seekerThreads;
    VL_JSON_FIELDS(MyActivityPayload, applications, seekerProfiles, seekerThreads)
};

} // namespace vl
