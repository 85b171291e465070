#include "app/profile/ProfileAPI.h"

#include "core/service/MultipartForm.h"

namespace vl {

namespace {

APIClient::Request photoRequest(const QByteArray& jpeg, const std::optional<QString>& key)
{
    MultipartForm form;
    if (key)
        form.text(QStringLiteral("key"), *key);
    form.file(QStringLiteral("photo"), QStringLiteral("photo.jpg"), QStringLiteral("image/jpeg"),
              jpeg);
    return {.shape = APIClient::Shape::multipartWrite,
            .path = QStringLiteral("/api/profile-photo"),
            .body = form.body(),
            .contentType = form.contentType()};
}

} // namespace

QCoro::Task<Result<Nothing>> ProfileAPI::uploadPhoto(QByteArray jpeg, std::optional<QString> key,
                                                     QObject* owner) const
{
    co_return co_await m_api.call<Nothing>(photoRequest(jpeg, key), owner);
}

} // namespace vl
