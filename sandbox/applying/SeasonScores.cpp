#include "sandbox/applying/SeasonScores.h"

#include "sandbox/Locale.h"
#include "sandbox/Store.h"

#include <QJsonArray>

namespace vl {

namespace {

QString in(const QString& lang, const char* ka, const char* en, const char* ru)
{
    return Trilingual{QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)}.in(lang);
}

constexpr int goal = 100;

} // namespace

SeasonScores::SeasonScores(Store& store)
    : m_store(store)
{
}

int SeasonScores::applications(qint64 seeker) const
{
    return m_store
        .scalar(QStringLiteral("SELECT COUNT(*) FROM applications WHERE seeker_id = ? AND "
                               "kind = 'application'"),
                {seeker})
        .toInt();
}

int SeasonScores::ticketsLeft(qint64 seeker) const
{
    const int spent =
        m_store
            .scalar(QStringLiteral("SELECT COUNT(*) FROM applications WHERE seeker_id = ? AND "
                                   "gold = 1"),
                    {seeker})
            .toInt();
    return applications(seeker) / ticketEvery - spent;
}

std::optional<int> SeasonScores::rank(qint64 seeker) const
{
    const int mine = applications(seeker);
    if (mine == 0)
        return std::nullopt;
    const int ahead =
        m_store
            .scalar(QStringLiteral("SELECT COUNT(*) FROM (SELECT seeker_id, COUNT(*) n FROM "
                                   "applications WHERE kind = 'application' AND seeker_id IS NOT "
                                   "NULL GROUP BY seeker_id) WHERE n > ?"),
                    {mine})
            .toInt();
    return ahead + 1;
}

QJsonObject SeasonScores::meOnly(qint64 seeker, const QString& lang) const
{
    const int apps = applications(seeker);
    const int points = apps * perApplication;
    const int tickets = ticketsLeft(seeker);
    const auto place = rank(seeker);
    const QString rankText = place ? QStringLiteral("#%1").arg(*place) : QString();
    QJsonObject me{
        {QStringLiteral("points"), points},
        {QStringLiteral("apps"), apps},
        {QStringLiteral("gold"), points >= goal},
        {QStringLiteral("pass"), false},
        {QStringLiteral("toGold"), std::max(0, goal - points)},
        {QStringLiteral("hidden"), false},
        {QStringLiteral("tickets"),
         QJsonObject{{QStringLiteral("available"), tickets},
                     {QStringLiteral("nextIn"), ticketEvery - apps % ticketEvery},
                     {QStringLiteral("filled"), apps % ticketEvery},
                     {QStringLiteral("every"), ticketEvery}}},
        {QStringLiteral("streak"), QJsonObject{{QStringLiteral("current"), apps > 0 ? 1 : 0},
                                               {QStringLiteral("appliedToday"), apps > 0},
                                               {QStringLiteral("restUsed"), false}}},
        {QStringLiteral("goalPct"), std::min(100, points * 100 / goal)},
        {QStringLiteral("honours"), QJsonArray()},
        {QStringLiteral("text"),
         QJsonObject{
             {QStringLiteral("rank"), rankText},
             {QStringLiteral("rankOf"), QString()},
             {QStringLiteral("goal"), in(lang, "ოქროს ზღვარი", "Gold line", "Золотая линия")},
             {QStringLiteral("pointsNow"), QString::number(points)},
             {QStringLiteral("thisSeason"), in(lang, "ამ სეზონში", "This season", "В этом сезоне")},
             {QStringLiteral("streak"), QString()},
             {QStringLiteral("streakNote"), QString()},
             {QStringLiteral("tickets"), QString::number(tickets)},
             {QStringLiteral("ticketsSub"), QString()},
             {QStringLiteral("ticketsExpire"), QString()},
             {QStringLiteral("hiddenNote"), QString()}}}};
    if (place)
        me.insert(QStringLiteral("rank"), *place);
    QString kind = QStringLiteral("none");
    if (tickets > 0)
        kind = QStringLiteral("ticket");
    else if (place && *place <= 10)
        kind = QStringLiteral("auto");
    const QJsonObject hint{
        {QStringLiteral("kind"), kind},
        {QStringLiteral("title"),
         kind == QLatin1String("ticket")
             ? in(lang, "გაქვთ ოქროს ბილეთი", "You have a gold ticket", "У вас есть золотой билет")
             : in(lang, "თქვენ ათეულში ხართ", "You are in the top ten", "Вы в первой десятке")},
        {QStringLiteral("sub"),
         kind == QLatin1String("ticket")
             ? in(lang, "ბილეთი განაცხადს სიის თავში აყენებს.",
                  "A ticket puts this application at the top of the pile.",
                  "Билет поднимет этот отклик наверх.")
             : in(lang, "განაცხადი ავტომატურად გამოირჩევა.",
                  "Your application stands out on its own.", "Ваш отклик выделится сам.")},
        {QStringLiteral("tickets"), tickets},
        {QStringLiteral("board"), in(lang, "ლიდერების დაფა", "Highscores", "Таблица лидеров")}};
    return {{QStringLiteral("me"), me}, {QStringLiteral("hint"), hint}};
}

QJsonObject SeasonScores::moment(qint64 seeker, std::optional<int> rankBefore, bool gold,
                                 const QString& lang) const
{
    const int points = applications(seeker) * perApplication;
    const auto place = rank(seeker);
    QString move;
    if (place && (!rankBefore || *place < *rankBefore))
        move = in(lang, "ადგილი გაიუმჯობესეთ", "You moved up", "Вы поднялись");
    QJsonArray chips{QStringLiteral("+%1").arg(perApplication)};
    if (gold)
        chips.append(in(lang, "ოქროს ბილეთი", "Gold ticket", "Золотой билет"));
    return {
        {QStringLiteral("gold"),
         gold ? in(lang, "ბილეთი გამოყენებულია", "Ticket used", "Билет использован") : QString()},
        {QStringLiteral("rank"), place ? QStringLiteral("#%1").arg(*place) : QString()},
        {QStringLiteral("move"), move},
        {QStringLiteral("points"),
         QStringLiteral("%1 ").arg(points) + in(lang, "ქულა", "points", "очков")},
        {QStringLiteral("passed"), QString()},
        {QStringLiteral("goal"), in(lang, "ოქროს ზღვარი", "Gold line", "Золотая линия")},
        {QStringLiteral("goalPct"), std::min(100, points * 100 / goal)},
        {QStringLiteral("chips"), chips},
        {QStringLiteral("see"),
         in(lang, "ლიდერების დაფა", "See the highscores", "Таблица лидеров")}};
}

} // namespace vl
