#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/SeekerPostForm.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

// A public seeker profile, sent for review without an account.
class SeekerPostSheetModel : public QObject {
    Q_OBJECT
public:
    explicit SeekerPostSheetModel(ApplyServices services, QObject* parent = nullptr);

    SeekerPostForm form;

    const std::optional<QString>& error() const { return m_error; }
    // The field the refusal is about: "name", "email", "age", "headline" or "about".
    const std::optional<QString>& badField() const { return m_badField; }
    const std::optional<QString>& ref() const { return m_ref; }
    bool working() const { return m_working; }
    bool sent() const { return m_ref.has_value(); }

    QCoro::Task<> send();

Q_SIGNALS:
    void changed();

private:
    ApplyServices m_services;
    std::optional<QString> m_error;
    std::optional<QString> m_badField;
    std::optional<QString> m_ref;
    bool m_working = false;
};

} // namespace vl
