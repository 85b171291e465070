#pragma once

#include "app/identity/CandidateAuth.h"

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <optional>

namespace vl {

class AppState;

// The job seeker's sign-in form that stands in front of what only a signed-in job seeker may do:
// an address and its code (or the browser sign-in), then the second factor, until the service
// holds a session. Every call runs through runBusy: one at a time, its failure under the form,
// the step unchanged.
class CandidateGate : public QObject {
    Q_OBJECT
public:
    enum class Step { email, code, factorEnroll, factorVerify, totpEnroll };

    // Opens a link in the desktop's default handler; false when nothing took it.
    using UrlOpener = std::function<bool(const QUrl&)>;

    // A sign-in under way, as far as it can be carried from one process to the next.
    struct Pending {
        Step step = Step::email;
        QString email;
        QString ticket;
        bool mailOnly = false;
        QString totpSecret;
    };

    CandidateGate(CandidateAuth& auth, AppState& appState, UrlOpener openUrl,
                  QObject* parent = nullptr);

    bool showsIntro = true;
    QString email;
    QString code;

    Step step() const { return m_step; }
    bool mailOnly() const { return m_mailOnly; }
    const QString& ticket() const { return m_ticket; }
    const QString& totpSecret() const { return m_totpSecret; }
    QString groupedTotpSecret() const;
    bool busy() const { return m_busy; }
    const std::optional<QString>& error() const { return m_error; }
    bool noPasskey() const { return m_noPasskey; }
    bool passkeysAvailable() const { return m_auth.passkeysAvailable(); }
    // The machine reached a session.
    bool finished() const { return m_finished; }

    Pending pending() const;
    void resume(const Pending& pending);
    // Drops the ticket and everything typed: the form starts over.
    void reset();

    // The email step.
    QCoro::Task<> sendCode();
    void continueWithGoogle();
    // The velm: link that the browser sign-in came back with.
    QCoro::Task<> handleCallback(QUrl url);
    QCoro::Task<> signInWithPasskey();
    // The code step.
    QCoro::Task<> verifyCode();
    // factorEnroll.
    QCoro::Task<> createPasskey();
    QCoro::Task<> useAuthenticatorApp();
    QCoro::Task<> continueMailOnly();
    // factorVerify: six digits or a recovery code.
    QCoro::Task<> usePasskey();
    QCoro::Task<> verifyFactor();
    // totpEnroll.
    QCoro::Task<> enrollTotp();

Q_SIGNALS:
    void changed();

private:
    // A call's outcome for the form: nothing when it went well, else the words to show.
    using Outcome = std::optional<QString>;
    QCoro::Task<> runBusy(std::function<QCoro::Task<Outcome>()> work);
    QCoro::Task<Outcome> routeAfterTicket();
    QString messageOf(const APIError& error) const;
    QString messageOf(const PasskeyError& error) const;
    void finish();

    CandidateAuth& m_auth;
    AppState& m_appState;
    UrlOpener m_openUrl;
    Step m_step = Step::email;
    bool m_mailOnly = false;
    QString m_ticket;
    QString m_totpSecret;
    bool m_busy = false;
    std::optional<QString> m_error;
    bool m_noPasskey = false;
    bool m_finished = false;
};

} // namespace vl
