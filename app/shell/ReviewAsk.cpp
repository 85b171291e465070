#include "app/shell/ReviewAsk.h"

#include "app/platform/Preferences.h"

#include <QStringList>
#include <QUrlQuery>

namespace vl {

namespace {

const QString firstSeenKey = QStringLiteral("vl.review.firstSeen");
const QString sessionsKey = QStringLiteral("vl.review.sessions");
const QString goodKey = QStringLiteral("vl.review.good");
const QString repliedKey = QStringLiteral("vl.review.replied");
const QString asksKey = QStringLiteral("vl.review.asks");
const QString lastAskKey = QStringLiteral("vl.review.lastAsk");
const QString doneKey = QStringLiteral("vl.review.done");
const QString cardHiddenKey = QStringLiteral("vl.review.cardHidden");

constexpr qsizetype repliedCap = 200;
constexpr qint64 year = 31536000;
constexpr qint64 quarter = 7776000;
constexpr int asksPerYear = 2;

QString stamp(const QDateTime& when)
{
    return when.toUTC().toString(Qt::ISODateWithMs);
}

QDateTime readStamp(const QVariant& value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

} // namespace

ReviewAsk::ReviewAsk(Preferences& preferences, Clock now, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_now(now ? std::move(now) : [] { return QDateTime::currentDateTimeUtc(); })
{
}

void ReviewAsk::countLaunch()
{
    if (!m_preferences.contains(firstSeenKey))
        m_preferences.setValue(firstSeenKey, stamp(m_now()));
    m_preferences.setValue(sessionsKey, m_preferences.value(sessionsKey).toInt() + 1);
}

void ReviewAsk::record(GoodMoment)
{
    countGoodMoment();
}

void ReviewAsk::sawReply(const QString& applicationId)
{
    QStringList replied = m_preferences.value(repliedKey).toStringList();
    if (replied.contains(applicationId))
        return;
    replied.append(applicationId);
    if (replied.size() > repliedCap)
        replied.remove(0, replied.size() - repliedCap);
    m_preferences.setValue(repliedKey, replied);
    countGoodMoment();
}

bool ReviewAsk::mayAsk() const
{
    if (m_preferences.value(doneKey).toBool())
        return false;
    if (daysSinceFirstSeen() < 2.0)
        return false;
    if (m_preferences.value(sessionsKey).toInt() < 3)
        return false;
    if (m_preferences.value(goodKey).toInt() < 2)
        return false;
    const QDateTime now = m_now();
    int recent = 0;
    for (const QString& ask : m_preferences.value(asksKey).toStringList()) {
        const QDateTime when = readStamp(ask);
        if (when.isValid() && when.secsTo(now) <= year)
            ++recent;
    }
    if (recent > asksPerYear)
        return false;
    const QDateTime last = readStamp(m_preferences.value(lastAskKey));
    return !last.isValid() || last.secsTo(now) > quarter;
}

void ReviewAsk::evaluateCard()
{
    const bool visible =
        !m_preferences.value(doneKey).toBool() && !m_preferences.value(cardHiddenKey).toBool() &&
        daysSinceFirstSeen() >= 1.0 &&
        m_preferences.value(sessionsKey).toInt() + m_preferences.value(goodKey).toInt() >= 3;
    if (visible == m_cardVisible)
        return;
    m_cardVisible = visible;
    Q_EMIT changed();
}

void ReviewAsk::reviewWritten()
{
    m_preferences.setValue(doneKey, true);
    m_pending = false;
    m_cardVisible = false;
    Q_EMIT changed();
}

void ReviewAsk::hideCard()
{
    m_preferences.setValue(cardHiddenKey, true);
    m_pending = false;
    m_cardVisible = false;
    Q_EMIT changed();
}

QUrl ReviewAsk::reviewPage(const QString& storePage)
{
    QUrl page(storePage);
    QUrlQuery query(page);
    query.removeAllQueryItems(QStringLiteral("action"));
    query.addQueryItem(QStringLiteral("action"), QStringLiteral("write-review"));
    page.setQuery(query);
    return page;
}

void ReviewAsk::countGoodMoment()
{
    m_preferences.setValue(goodKey, m_preferences.value(goodKey).toInt() + 1);
    if (!mayAsk())
        return;
    // Asks older than the year no longer count, so they are not kept.
    const QDateTime now = m_now();
    QStringList asks;
    for (const QString& ask : m_preferences.value(asksKey).toStringList()) {
        const QDateTime when = readStamp(ask);
        if (when.isValid() && when.secsTo(now) <= year)
            asks.append(ask);
    }
    asks.append(stamp(now));
    m_preferences.setValue(asksKey, asks);
    m_preferences.setValue(lastAskKey, stamp(now));
    m_pending = true;
    m_cardVisible = true;
    Q_EMIT changed();
}

double ReviewAsk::daysSinceFirstSeen() const
{
    const QDateTime first = readStamp(m_preferences.value(firstSeenKey));
    if (!first.isValid())
        return 0.0;
    return double(first.msecsTo(m_now())) / 1000.0 / 86400.0;
}

} // namespace vl
