#pragma once

#include "core/applying/CvCheckPayload.h"
#include "core/applying/CvFile.h"
#include "core/discovery/JobDetail.h"
#include "core/l10n/L10nKey.h"
#include "core/l10n/Lang.h"
#include "core/reputation/Highscores.h"
#include "core/service/APIError.h"

#include <QByteArray>
#include <map>
#include <optional>

namespace vl {

// What the apply sheet holds when Send is pressed.
struct ApplyDraft {
    QString name;
    QString phone;
    QString message;
    std::optional<CvFile> cv;
    bool poolOptOut = false;
    bool useTicket = false;
    std::map<QString, QString> answers; // by the question's id
};

// Why a form is not sent. A silent refusal leaves the word to the sign-in gate.
struct FormRefusal {
    std::optional<L10n::Key> message;
    std::optional<QString> badField;
    bool silent() const { return !message; }
    bool operator==(const FormRefusal&) const = default;
};

// How a refused send changes the sheet.
struct SendFailure {
    enum class Effect {
        signin,      // the session is gone: the address goes, the gate returns, no message
        webFormOnly, // the listing takes applications on the web only
        message,     // the message is shown; `badField` stays as it was
    };
    Effect effect = Effect::message;
    QString message;
};

namespace ApplyRules {

// The checks before an application goes out, in their fixed order; nothing when it may go.
std::optional<FormRefusal> validate(const ApplyDraft& draft, const std::optional<QString>& email,
                                    const JobDetail& job);

// The multipart body of an application. `email` is the signed-in address; the ticket goes
// only with a ticket hint. The form is consumed, so the CV's bytes are copied just once.
QByteArray body(const ApplyDraft& draft, const QString& email, const QString& jobRef,
                const std::optional<HsHint>& hint, const QString& boundary);

SendFailure applyFailure(const APIError& error, Lang lang);

// The question to the employer: name, address, then ten characters of message.
std::optional<FormRefusal> validateEnquiry(const QString& name, const std::optional<QString>& email,
                                           const QString& message);
SendFailure enquiryFailure(const APIError& error, Lang lang);

// "Send anyway" while the check reads the CV as a stretch, else "Send".
L10n::Key sendLabel(const std::optional<CvCheckPayload>& check);

} // namespace ApplyRules

} // namespace vl
