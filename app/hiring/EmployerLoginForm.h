#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <optional>

namespace vl {

class APIClient;
class AppState;
class AuthManager;
class CandidateAuth;

// The employer's sign-in by a six-digit code sent to an address: the address first, then the
// code. Every failure lands in `error`; nothing the person typed is lost.
class EmployerLoginForm : public QObject {
    Q_OBJECT
public:
    enum class Stage { email, code };

    struct Parts {
        const APIClient& api;
        AuthManager& auth;
        CandidateAuth& candidate;
        AppState& appState;
    };

    explicit EmployerLoginForm(Parts parts, QObject* parent = nullptr);

    QString email;
    QString code;
    Stage stage() const { return m_stage; }
    bool working() const { return m_working; }
    const std::optional<QString>& error() const { return m_error; }

    // The address needs an "@" and a "."; everything else is the service's to judge. Both
    // fields go out as typed.
    QCoro::Task<> sendCode();
    // The code must be six characters; a good answer signs in and reports `done`.
    QCoro::Task<> verifyCode();
    // Back to the address, keeping it.
    void changeEmail();

Q_SIGNALS:
    void changed();
    void done();

private:
    void setWorking(bool working);
    void fail(QString message);

    Parts m_parts;
    Stage m_stage = Stage::email;
    bool m_working = false;
    std::optional<QString> m_error;
};

} // namespace vl
