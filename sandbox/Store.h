#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <optional>

namespace vl {

// The sandbox's SQLite database: a file that keeps accounts and listings between runs, or
// ":memory:" for tests. Queries print their failures to the console; a failed query reads as
// no rows.
class Store {
public:
    Store() = default;
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    bool open(const QString& path);
    // When the seed was written, in the sandbox clock's seconds; nothing before it was.
    std::optional<qint64> seededAt() const;
    void markSeeded(qint64 at);

    QSqlQuery prepare(const QString& sql) const;
    // Binds the values in order and executes; for a query prepared once and run many times.
    static bool run(QSqlQuery& query, const QVariantList& values);
    QSqlQuery exec(const QString& sql, const QVariantList& values = {}) const;
    // The first column of the first row, or an invalid value.
    QVariant scalar(const QString& sql, const QVariantList& values = {}) const;

    bool begin();
    bool commit();

private:
    bool createSchema();

    QString m_connection;
};

} // namespace vl
