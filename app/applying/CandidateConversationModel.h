#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/CandidateApplication.h"
#include "core/conversations/ChatItem.h"

#include <QCoroTask>
#include <QObject>
#include <QTemporaryDir>
#include <memory>
#include <optional>

namespace vl {

// One of the job seeker's own applications, opened by its reference and key (an empty key:
// the session opens it). Reading, withdrawing and taking a newer CV.
class CandidateConversationModel : public QObject {
    Q_OBJECT
public:
    CandidateConversationModel(ApplyServices services, QString ref, QString key,
                               QObject* parent = nullptr);

    const QString& ref() const { return m_ref; }
    const QString& key() const { return m_key; }
    const std::optional<CandidateConversation>& conversation() const { return m_conversation; }
    std::vector<ChatItem> timeline() const;
    bool loading() const { return m_loading; }
    bool withdrawing() const { return m_withdrawing; }
    const std::optional<QString>& error() const { return m_error; }
    // The CV was just replaced in this session.
    bool newCv() const { return m_newCv; }

    // A "not_found" answer ends the stored application: its entry goes from the store.
    QCoro::Task<> load();
    QCoro::Task<> withdraw();
    // The CV as a temporary file of its own name, for the desktop to open; nothing on failure.
    QCoro::Task<std::optional<QString>> cvCopy();
    // A newer CV accepted: the conversation takes it and its notice.
    void cvUpdated(const CandidateCvUpdate& update);

Q_SIGNALS:
    void changed();

private:
    ApplyServices m_services;
    QString m_ref;
    QString m_key;
    std::optional<CandidateConversation> m_conversation;
    std::optional<QString> m_error;
    bool m_loading = false;
    bool m_withdrawing = false;
    bool m_newCv = false;
    std::unique_ptr<QTemporaryDir> m_cvFolder;
};

} // namespace vl
