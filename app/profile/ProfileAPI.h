#pragma once

#include "app/service/APIClient.h"

#include <optional>

namespace vl {

// The job seeker's older profile client: the photo upload.
class ProfileAPI {
public:
    explicit ProfileAPI(const APIClient& api)
        : m_api(api)
    {
    }

    // A JPEG as "photo.jpg"; `key` opens it for a job seeker without a session.
    QCoro::Task<Result<Nothing>> uploadPhoto(QByteArray jpeg, std::optional<QString> key,
                                             QObject* owner) const;

private:
    const APIClient& m_api;
};

} // namespace vl
