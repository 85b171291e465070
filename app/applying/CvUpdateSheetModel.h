#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/CandidateApplication.h"
#include "core/applying/CvFile.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

// A newer CV for one application. The file and the note stay after any failure.
class CvUpdateSheetModel : public QObject {
    Q_OBJECT
public:
    CvUpdateSheetModel(ApplyServices services, QString ref, QString key, CandidateCvDTO cv,
                       QObject* parent = nullptr);

    QString note;

    const CandidateCvDTO& cv() const { return m_cv; }
    const std::optional<CvFile>& file() const { return m_file; }
    const std::optional<QString>& error() const { return m_error; }
    bool sending() const { return m_sending; }
    const std::optional<CandidateCvUpdate>& done() const { return m_done; }
    // The service refused for good; the offer to update should go.
    bool refused() const { return m_refused; }

    bool choose(const QString& path);
    QCoro::Task<> send();

Q_SIGNALS:
    void changed();
    void sent(const vl::CandidateCvUpdate& update);

private:
    ApplyServices m_services;
    QString m_ref;
    QString m_key;
    CandidateCvDTO m_cv;
    std::optional<CvFile> m_file;
    std::optional<QString> m_error;
    std::optional<CandidateCvUpdate> m_done;
    bool m_sending = false;
    bool m_refused = false;
};

} // namespace vl
