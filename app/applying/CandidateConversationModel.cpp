#include "app/applying/CandidateConversationModel.h"

#include "app/identity/CandidateStore.h"
#include "app/shell/AppState.h"

#include <QPointer>
#include <QSaveFile>

namespace vl {

CandidateConversationModel::CandidateConversationModel(ApplyServices services, QString ref,
                                                       QString key, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_ref(std::move(ref))
    , m_key(std::move(key))
{
}

std::vector<ChatItem> CandidateConversationModel::timeline() const
{
    if (!m_conversation)
        return {};
    return ChatItem::merged(m_conversation->messages, m_conversation->calls);
}

QCoro::Task<> CandidateConversationModel::load()
{
    QPointer self(this);
    m_loading = true;
    m_error.reset();
    Q_EMIT changed();
    auto read = co_await m_services.api.application(m_ref, m_key, this);
    if (!self)
        co_return;
    if (read) {
        m_conversation = std::move(read).value();
    } else {
        m_error = read.error().message(m_services.state.lang());
        if (read.error().isServer(QLatin1StringView("not_found")) && !m_key.isEmpty())
            co_await m_services.store.remove(m_ref);
        if (!self)
            co_return;
    }
    m_loading = false;
    Q_EMIT changed();
}

QCoro::Task<> CandidateConversationModel::withdraw()
{
    if (m_withdrawing)
        co_return;
    QPointer self(this);
    m_withdrawing = true;
    m_error.reset();
    Q_EMIT changed();
    const auto result = co_await m_services.api.withdraw(m_ref, m_key, this);
    if (!self)
        co_return;
    m_withdrawing = false;
    if (!result) {
        m_error = result.error().message(m_services.state.lang());
        Q_EMIT changed();
        co_return;
    }
    co_await load();
}

QCoro::Task<std::optional<QString>> CandidateConversationModel::cvCopy()
{
    if (!m_conversation || !m_conversation->application.cv)
        co_return std::nullopt;
    QPointer self(this);
    const auto bytes = co_await m_services.api.cvFile(m_ref, m_key, this);
    if (!self || !bytes)
        co_return std::nullopt;
    // Each copy lives in a fresh folder that goes with the screen.
    m_cvFolder = std::make_unique<QTemporaryDir>();
    const QString name = m_conversation->application.cv->name.value_or(QStringLiteral("cv"));
    QSaveFile file(m_cvFolder->filePath(name.mid(name.lastIndexOf(QLatin1Char('/')) + 1)));
    if (!m_cvFolder->isValid() || !file.open(QIODevice::WriteOnly) ||
        file.write(bytes.value()) != bytes->size() || !file.commit())
        co_return std::nullopt;
    co_return file.fileName();
}

void CandidateConversationModel::cvUpdated(const CandidateCvUpdate& update)
{
    if (!m_conversation)
        return;
    m_conversation->application.cv = update.cv;
    m_conversation->messages.push_back(update.message);
    m_newCv = true;
    Q_EMIT changed();
}

} // namespace vl
