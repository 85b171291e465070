#pragma once

#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;

// Six-digit codes mailed for a sign-in, per purpose ("employer", "candidate"), valid for ten
// minutes. Every unexpired code of an address works until one of them is used.
class CodeBook {
public:
    static constexpr qint64 lifetime = 600;

    CodeBook(Store& store, const Clock& clock, QString purpose);

    QString issue(const QString& email, const QString& locale);
    // The locale the redeemed code was asked in, or nothing when the code is wrong or expired.
    std::optional<QString> redeem(const QString& email, const QString& code);

private:
    Store& m_store;
    const Clock& m_clock;
    QString m_purpose;
};

} // namespace vl
