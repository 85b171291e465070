#include "app/service/http/HttpCache.h"

#include <QAbstractNetworkCache>
#include <QIODevice>
#include <QLocale>
#include <QSet>
#include <QVariantMap>
#include <memory>

namespace vl {

namespace {

using Fields = QList<QPair<QByteArray, QByteArray>>;

// The request field values an answer varies on, kept with the entry to match later requests.
constexpr auto varyAttribute = QNetworkRequest::User;

// Fields that describe one connection or set state elsewhere: replaying them from the cache
// would be wrong.
bool isKeptField(QByteArrayView name)
{
    static const QByteArrayView dropped[] = {
        "connection",          "keep-alive", "proxy-authenticate",
        "proxy-authorization", "te",         "trailer",
        "transfer-encoding",   "upgrade",    "set-cookie"};
    for (const QByteArrayView each : dropped) {
        if (name.compare(each, Qt::CaseInsensitive) == 0)
            return false;
    }
    return true;
}

QDateTime parseHttpDate(const QByteArray& text)
{
    if (text.isEmpty())
        return {};
    // QNetworkRequest reads every date form HTTP allows (IMF-fixdate, RFC 850, asctime) when
    // it parses a Last-Modified field.
    QNetworkRequest probe;
    probe.setRawHeader("Last-Modified", text);
    return probe.header(QNetworkRequest::LastModifiedHeader).toDateTime();
}

QByteArray formatHttpDate(const QDateTime& moment)
{
    return QLocale::c()
        .toString(moment.toUTC(), QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"))
        .toLatin1();
}

HttpResponseHead headOf(const Fields& fields)
{
    HttpResponseHead head;
    head.fields = fields;
    return head;
}

QList<QByteArray> cacheDirectives(const QList<QByteArray>& items)
{
    QList<QByteArray> directives;
    for (const QByteArray& item : items)
        directives.append(item.toLower());
    return directives;
}

bool hasDirective(const QList<QByteArray>& directives, QByteArrayView name)
{
    for (const QByteArray& directive : directives) {
        if (directive == name || (directive.startsWith(name) && directive.size() > name.size() &&
                                  directive.at(name.size()) == '='))
            return true;
    }
    return false;
}

// Seconds an answer stays fresh from its Date, or nothing when it does not say.
std::optional<qint64> freshnessLifetime(const HttpResponseHead& head, const QDateTime& date)
{
    const QList<QByteArray> directives = cacheDirectives(head.listItems("Cache-Control"));
    if (hasDirective(directives, "no-cache"))
        return 0;
    for (const QByteArray& directive : directives) {
        if (!directive.startsWith("max-age="))
            continue;
        QByteArray value = directive.mid(8);
        if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
            value = value.mid(1, value.size() - 2);
        bool ok = false;
        const qint64 seconds = value.toLongLong(&ok);
        return ok && seconds > 0 ? seconds : 0;
    }
    if (head.has("Expires")) {
        const QDateTime expires = parseHttpDate(head.value("Expires"));
        return expires.isValid() ? qMax<qint64>(0, date.secsTo(expires)) : 0;
    }
    return std::nullopt;
}

QDateTime expirationOf(const HttpResponseHead& head, const QDateTime& received)
{
    QDateTime date = parseHttpDate(head.value("Date"));
    if (!date.isValid())
        date = received;
    const std::optional<qint64> lifetime = freshnessLifetime(head, date);
    if (!lifetime)
        return {};
    bool ok = false;
    qint64 age = head.value("Age").toLongLong(&ok);
    if (!ok || age < 0)
        age = 0;
    age += qMax<qint64>(0, date.secsTo(received));
    return received.toUTC().addSecs(*lifetime - age);
}

} // namespace

HttpCache::HttpCache(QAbstractNetworkCache* store)
    : m_store(store)
{
}

std::optional<QNetworkCacheMetaData> HttpCache::lookup(const QUrl& url,
                                                       const QNetworkRequest& request) const
{
    if (!m_store)
        return std::nullopt;
    const QNetworkCacheMetaData stored = m_store->metaData(url);
    if (!stored.isValid() ||
        !stored.attributes().contains(QNetworkRequest::HttpStatusCodeAttribute))
        return std::nullopt;
    const QVariantMap varied = stored.attributes().value(varyAttribute).toMap();
    for (const QByteArray& name : headOf(stored.rawHeaders()).listItems("Vary")) {
        if (varied.value(QString::fromLatin1(name.toLower())).toByteArray() !=
            request.rawHeader(name))
            return std::nullopt;
    }
    return stored;
}

std::optional<QByteArray> HttpCache::body(const QUrl& url) const
{
    if (!m_store)
        return std::nullopt;
    const std::unique_ptr<QIODevice> device(m_store->data(url));
    if (!device)
        return std::nullopt;
    return device->readAll();
}

bool HttpCache::isFresh(const QNetworkCacheMetaData& stored, const QDateTime& now)
{
    return stored.expirationDate().isValid() && now < stored.expirationDate();
}

QList<QPair<QByteArray, QByteArray>> HttpCache::validators(const QNetworkCacheMetaData& stored)
{
    const HttpResponseHead head = headOf(stored.rawHeaders());
    QList<QPair<QByteArray, QByteArray>> fields;
    if (head.has("ETag"))
        fields.append({"If-None-Match", head.value("ETag")});
    if (head.has("Last-Modified"))
        fields.append({"If-Modified-Since", head.value("Last-Modified")});
    return fields;
}

bool HttpCache::canStore(const HttpResponseHead& head, const QNetworkRequest& request)
{
    if (head.status != 200 ||
        !request.attribute(QNetworkRequest::CacheSaveControlAttribute, true).toBool())
        return false;
    if (hasDirective(cacheDirectives(head.listItems("Cache-Control")), "no-store"))
        return false;
    const QList<QByteArray> asked = request.rawHeader("Cache-Control").split(',');
    for (const QByteArray& directive : asked) {
        if (directive.trimmed().compare("no-store", Qt::CaseInsensitive) == 0)
            return false;
    }
    if (head.listItems("Vary").contains("*"))
        return false;
    if (head.has("ETag") || head.has("Last-Modified"))
        return true;
    QDateTime date = parseHttpDate(head.value("Date"));
    if (!date.isValid())
        date = QDateTime::currentDateTimeUtc();
    return freshnessLifetime(head, date).value_or(0) > 0;
}

QNetworkCacheMetaData HttpCache::describe(const QUrl& url, const HttpResponseHead& head,
                                          const QNetworkRequest& request, const QDateTime& received)
{
    Fields fields;
    for (const auto& field : head.fields) {
        if (isKeptField(field.first))
            fields.append(field);
    }
    // Freshness is measured from the answer's Date; one without it was made as it arrived.
    if (!head.has("Date"))
        fields.append({"Date", formatHttpDate(received)});

    QVariantMap varied;
    for (const QByteArray& name : head.listItems("Vary"))
        varied.insert(QString::fromLatin1(name.toLower()), request.rawHeader(name));
    QNetworkCacheMetaData::AttributesMap attributes;
    attributes.insert(QNetworkRequest::HttpStatusCodeAttribute, head.status);
    attributes.insert(QNetworkRequest::HttpReasonPhraseAttribute, head.reason);
    attributes.insert(varyAttribute, varied);

    QNetworkCacheMetaData stored;
    stored.setUrl(url);
    stored.setRawHeaders(fields);
    stored.setAttributes(attributes);
    stored.setExpirationDate(expirationOf(headOf(fields), received));
    stored.setLastModified(parseHttpDate(head.value("Last-Modified")));
    stored.setSaveToDisk(true);
    return stored;
}

QNetworkCacheMetaData HttpCache::refresh(const QNetworkCacheMetaData& stored,
                                         const HttpResponseHead& notModified,
                                         const QDateTime& received)
{
    QSet<QByteArray> replaced;
    Fields updates;
    for (const auto& field : notModified.fields) {
        if (!isKeptField(field.first) ||
            field.first.compare("Content-Length", Qt::CaseInsensitive) == 0)
            continue;
        replaced.insert(field.first.toLower());
        updates.append(field);
    }
    if (!notModified.has("Date")) {
        replaced.insert("date");
        updates.append({"Date", formatHttpDate(received)});
    }
    Fields fields;
    for (const auto& field : stored.rawHeaders()) {
        if (!replaced.contains(field.first.toLower()))
            fields.append(field);
    }
    fields.append(updates);

    QNetworkCacheMetaData refreshed = stored;
    refreshed.setRawHeaders(fields);
    refreshed.setExpirationDate(expirationOf(headOf(fields), received));
    refreshed.setLastModified(parseHttpDate(headOf(fields).value("Last-Modified")));
    return refreshed;
}

} // namespace vl
