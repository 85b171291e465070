#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/ApplyRules.h"
#include "core/applying/CvCheckPayload.h"
#include "core/discovery/JobDetail.h"
#include "core/reputation/Highscores.h"

#include <QCoroTask>
#include <QObject>
#include <map>
#include <optional>

namespace vl {

// An application to one listing: the form, the CV and its check, the send and what follows it.
// A failure never loses a field or the chosen CV.
class ApplySheetModel : public QObject {
    Q_OBJECT
public:
    ApplySheetModel(ApplyServices services, JobDetail job, QObject* parent = nullptr);

    // The form, as the person fills it in.
    QString name;
    QString phone;
    QString message;
    bool poolOptOut = false;
    bool useTicket = false;
    std::map<QString, QString> answers;

    const JobDetail& job() const { return m_job; }
    const ApplyServices& services() const { return m_services; }
    std::optional<QString> email() const;
    const std::optional<CvFile>& cv() const { return m_cv; }
    const std::optional<CvFile>& lastCv() const { return m_lastCv; }
    const std::optional<HsHint>& hint() const { return m_hint; }
    const std::optional<CvCheckPayload>& check() const { return m_check; }
    const std::optional<HsMoment>& moment() const { return m_moment; }
    const std::optional<QString>& error() const { return m_error; }
    const std::optional<QString>& badField() const { return m_badField; }
    bool checking() const { return m_checking; }
    bool sending() const { return m_sending; }
    bool sent() const { return m_sent; }
    // The reference the service gave what was sent.
    const QString& sentRef() const { return m_sentRef; }
    bool webFormOnly() const { return m_webFormOnly; }
    L10n::Key sendLabel() const { return ApplyRules::sendLabel(m_check); }

    // The hint and the remembered CV, for a signed-in job seeker; the phone sent last time.
    QCoro::Task<> open();
    // Reads a picked file whole and takes it as the CV, or shows why not. False when the CV
    // did not change; an unreadable file changes nothing and says nothing.
    bool choose(const QString& path);
    // Reads the chosen CV against the listing; a later check wins, a failed one is silent.
    QCoro::Task<> runCheck();
    QCoro::Task<> pick(QString path);
    QCoro::Task<> useLastCv();
    QCoro::Task<> send();
    // "Use another account": the job seeker signs out and the gate stands above the form.
    QCoro::Task<> switchAccount();

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<> succeed(CandidateCredential credential, std::optional<CvFile> cv);
    void fail(const APIError& error);

    ApplyServices m_services;
    JobDetail m_job;
    std::optional<CvFile> m_cv;
    std::optional<CvFile> m_lastCv;
    std::optional<HsHint> m_hint;
    std::optional<CvCheckPayload> m_check;
    std::optional<HsMoment> m_moment;
    std::optional<QString> m_error;
    std::optional<QString> m_badField;
    bool m_checking = false;
    bool m_sending = false;
    bool m_sent = false;
    QString m_sentRef;
    bool m_webFormOnly = false;
    int m_checkRun = 0;
};

} // namespace vl
