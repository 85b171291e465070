#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <optional>

namespace vl {

class APIClient;
class AppState;
class AuthManager;

// The employer's company profile: name, website and phone, saved together.
class ProfileEditForm : public QObject {
    Q_OBJECT
public:
    ProfileEditForm(const APIClient& api, AuthManager& auth, AppState& appState,
                    QObject* parent = nullptr);

    QString name;
    QString website;
    QString phone;
    bool working() const { return m_working; }
    const std::optional<QString>& note() const { return m_note; }

    // "Saved." and a fresh summary on success, the general failure otherwise.
    QCoro::Task<> save();

Q_SIGNALS:
    void changed();

private:
    const APIClient& m_api;
    AuthManager& m_auth;
    AppState& m_appState;
    bool m_working = false;
    std::optional<QString> m_note;
};

} // namespace vl
