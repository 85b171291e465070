#include "sandbox/dev/FaultTable.h"

#include <QJsonObject>

namespace vl {

namespace {

const QByteArray errorPage = "<!DOCTYPE html>\n<html><head><title>502 Bad Gateway</title></head>"
                             "<body><h1>Bad Gateway</h1><p>The upstream server did not answer."
                             "</p></body></html>\n";

} // namespace

Reply Fault::reply() const
{
    switch (mode) {
    case Mode::Drop:
        return Reply::dropped();
    case Mode::Html:
        return Reply::html(errorPage);
    case Mode::Status:
        if (body == QLatin1String("envelope"))
            return Reply::json(
                {{QStringLiteral("ok"), false},
                 {QStringLiteral("error"), code.isEmpty() ? QStringLiteral("generic") : code}},
                status);
        if (body == QLatin1String("ok"))
            return Reply::json({{QStringLiteral("ok"), true}}, status);
        return Reply::html(errorPage, status);
    case Mode::Slow:
        break;
    }
    return Reply::html(errorPage, 500);
}

QString FaultTable::key(const QByteArray& method, const QString& path)
{
    return QString::fromLatin1(method.toUpper()) + u' ' + path;
}

void FaultTable::set(const QByteArray& method, const QString& path, const Fault& fault)
{
    m_faults.insert(key(method, path), fault);
}

void FaultTable::clear(const QByteArray& method, const QString& path)
{
    m_faults.remove(key(method, path));
}

void FaultTable::clearAll()
{
    m_faults.clear();
}

std::optional<Fault> FaultTable::find(const QByteArray& method, const QString& path) const
{
    const auto it = m_faults.constFind(key(method, path));
    if (it == m_faults.cend())
        return std::nullopt;
    return *it;
}

} // namespace vl
