#include "app/platform/KeychainSecretStore.h"

#include <QCoroSignal>
#include <memory>
#include <qt6keychain/keychain.h>

namespace vl {

namespace {

const QString service = QStringLiteral("org.velmora.app");

struct JobDeleter {
    void operator()(QKeychain::Job* job) const { job->deleteLater(); }
};

// Runs a keychain job to its end. The job queues its own start, so the wait below is in place
// before it can finish, even when there is no Secret Service at all.
template <class Job>
QCoro::Task<std::unique_ptr<Job, JobDeleter>> run(Job* raw, const QString& key)
{
    std::unique_ptr<Job, JobDeleter> job(raw);
    job->setAutoDelete(false);
    job->setKey(key);
    job->start();
    co_await qCoro(job.get(), &QKeychain::Job::finished);
    co_return job;
}

} // namespace

QCoro::Task<std::optional<QString>> KeychainSecretStore::get(QString key)
{
    const auto job = co_await run(new QKeychain::ReadPasswordJob(service), key);
    if (job->error() != QKeychain::NoError)
        co_return std::nullopt;
    co_return QString::fromUtf8(job->binaryData());
}

QCoro::Task<> KeychainSecretStore::set(QString value, QString key)
{
    auto* job = new QKeychain::WritePasswordJob(service);
    job->setBinaryData(value.toUtf8());
    co_await run(job, key);
}

QCoro::Task<> KeychainSecretStore::remove(QString key)
{
    co_await run(new QKeychain::DeletePasswordJob(service), key);
}

} // namespace vl
