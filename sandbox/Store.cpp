#include "sandbox/Store.h"

#include "sandbox/Schema.h"

#include <QSqlError>
#include <QTextStream>

namespace vl {

namespace {

void report(const QSqlQuery& query)
{
    QTextStream err(stderr);
    err << "sql: " << query.lastError().text() << " in " << query.lastQuery() << '\n';
}

} // namespace

Store::~Store()
{
    if (m_connection.isEmpty())
        return;
    QSqlDatabase::database(m_connection).close();
    QSqlDatabase::removeDatabase(m_connection);
}

bool Store::open(const QString& path)
{
    m_connection = QStringLiteral("sandbox");
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    db.setDatabaseName(path);
    if (!db.open()) {
        QTextStream(stderr) << "cannot open " << path << ": " << db.lastError().text() << '\n';
        return false;
    }
    exec(QStringLiteral("PRAGMA foreign_keys = ON"));
    return createSchema();
}

bool Store::createSchema()
{
    for (const QString& statement : Schema::statements()) {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        if (!query.exec(statement)) {
            report(query);
            return false;
        }
    }
    return true;
}

std::optional<qint64> Store::seededAt() const
{
    const QVariant at = scalar(QStringLiteral("SELECT value FROM meta WHERE key = 'seeded'"));
    return at.isValid() ? std::optional(at.toLongLong()) : std::nullopt;
}

void Store::markSeeded(qint64 at)
{
    exec(QStringLiteral("INSERT OR REPLACE INTO meta(key, value) VALUES('seeded', ?)"), {at});
}

QSqlQuery Store::prepare(const QString& sql) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    if (!query.prepare(sql))
        report(query);
    return query;
}

bool Store::run(QSqlQuery& query, const QVariantList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(int(i), values[i]);
    if (query.exec())
        return true;
    report(query);
    return false;
}

QSqlQuery Store::exec(const QString& sql, const QVariantList& values) const
{
    QSqlQuery query = prepare(sql);
    run(query, values);
    return query;
}

QVariant Store::scalar(const QString& sql, const QVariantList& values) const
{
    QSqlQuery query = exec(sql, values);
    return query.next() ? query.value(0) : QVariant();
}

bool Store::begin()
{
    return QSqlDatabase::database(m_connection).transaction();
}

bool Store::commit()
{
    return QSqlDatabase::database(m_connection).commit();
}

} // namespace vl
