#include "sandbox/auth/CodeBook.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"

#include <QSqlQuery>

namespace vl {

CodeBook::CodeBook(Store& store, const Clock& clock, QString purpose)
    : m_store(store)
    , m_clock(clock)
    , m_purpose(std::move(purpose)) {}

QString CodeBook::issue(const QString& email, const QString& locale) {
    const QString code = Secrets::digits(6);
    m_store.exec(QStringLiteral("INSERT INTO codes(purpose, email, code, locale, expires_at) "
                                "VALUES(?, ?, ?, ?, ?)"),
                 {m_purpose, email, code, locale, m_clock.now() + lifetime});
    return code;
}

std::optional<QString> CodeBook::redeem(const QString& email, const QString& code) {
    QSqlQuery found = m_store.exec(
        QStringLiteral("SELECT locale FROM codes WHERE purpose = ? AND email = ? AND code = ? "
                       "AND used = 0 AND expires_at > ? ORDER BY id DESC LIMIT 1"),
        {m_purpose, email, code.trimmed(), m_clock.now()});
    if (!found.next())
        return std::nullopt;
    const QString locale = found.value(0).toString();
    m_store.exec(QStringLiteral("UPDATE codes SET used = 1 WHERE purpose = ? AND email = ?"),
                 {m_purpose, email});
    return locale;
}

} // namespace vl
