#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;
struct Request;

// The applications and questions the sandbox keeps whole, as an employer's desk would read them.
class Applications {
public:
    struct Listing {
        QString ref;
        QString title;
        QString employerName;
        qint64 employerId = 0;
        bool applyOnWeb = false;
        QString formKey;
        QString text; // title and description, for the CV check
    };
    struct Sent {
        QString ref;
        QString token;
    };
    struct New {
        std::optional<qint64> seeker;
        QString email, listingRef, kind, name, phone, message;
        bool pool = true;
        QString answers = QStringLiteral("{}");
        QString cvName, cvMime;
        QByteArray cvData;
        bool gold = false;
        QString status = QStringLiteral("new");
        std::optional<qint64> at;
    };

    Applications(Store& store, const Clock& clock);

    std::optional<Listing> listing(const QString& ref, const QString& lang) const;
    Sent insert(const New& application);
    // An application of this address to this listing since the given time.
    bool sentSince(const QString& email, const QString& listingRef, qint64 since) const;
    int countSince(const QString& email, qint64 since) const;

    // The application's id when `key` or the signed-in seeker opens it.
    std::optional<qint64> open(const QString& ref, const QString& key,
                               std::optional<qint64> seeker) const;
    QJsonObject conversation(qint64 id) const;
    QJsonObject cv(qint64 id) const;
    QString status(qint64 id) const;
    void setStatus(qint64 id, const QString& status);
    QByteArray cvData(qint64 id) const;
    QString cvName(qint64 id) const;
    int cvLeft(qint64 id) const;
    // Puts the new CV in place and adds the notice message; the notice comes back.
    QJsonObject replaceCv(qint64 id, const QString& name, const QString& mime,
                          const QByteArray& data, const QString& note);
    QJsonObject addMessage(qint64 id, const QString& sender, const QString& body,
                           std::optional<qint64> at = std::nullopt);

    // MyActivityPayload.App rows of a seeker, newest first.
    QJsonArray activity(qint64 seeker) const;

    static constexpr int cvUpdates = 3;

private:
    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
