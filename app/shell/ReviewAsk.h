#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>

namespace vl {

class Preferences;

// The counted invitation to write a review. Launches and good moments are counted under
// vl.review.*; the invitation comes only to someone who has used the app for a few days, has had
// reasons to like it, and has not been asked too often. This desktop has no review request of
// its own, so an invitation always takes the form of the card.
class ReviewAsk : public QObject {
    Q_OBJECT
public:
    using Clock = std::function<QDateTime()>;

    enum class GoodMoment { applicationSent, messageSent, listingSubmitted };

    explicit ReviewAsk(Preferences& preferences, Clock now = {}, QObject* parent = nullptr);

    // An invitation is waiting to be shown as the card.
    bool pending() const { return m_pending; }
    bool cardVisible() const { return m_cardVisible; }

    // Once per launch: the first launch ever is remembered, and every launch is counted.
    void countLaunch();
    // Counts the moment, then asks if the rule allows it now.
    void record(GoodMoment moment);
    // The first reply to an application is a good moment once per application.
    void sawReply(const QString& applicationId);
    // Whether an invitation may be made now.
    bool mayAsk() const;
    // Decides the card when the account screen appears.
    void evaluateCard();
    void reviewWritten();
    void hideCard();
    // The page where a review of the application is written, from its store page.
    static QUrl reviewPage(const QString& storePage);

Q_SIGNALS:
    void changed();

private:
    void countGoodMoment();
    double daysSinceFirstSeen() const;

    Preferences& m_preferences;
    Clock m_now;
    bool m_pending = false;
    bool m_cardVisible = false;
};

} // namespace vl
