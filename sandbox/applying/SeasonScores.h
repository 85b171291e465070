#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>

namespace vl {

class Store;

// The season's points: ten per application, a gold ticket for every three, spent by sending an
// application with one.
class SeasonScores {
public:
    explicit SeasonScores(Store& store);

    static constexpr int perApplication = 10;
    static constexpr int ticketEvery = 3;

    int applications(qint64 seeker) const;
    int ticketsLeft(qint64 seeker) const;
    // 1 for the most points; nothing without any.
    std::optional<int> rank(qint64 seeker) const;

    // HsMeOnly: `me` and the hint for the apply sheet.
    QJsonObject meOnly(qint64 seeker, const QString& lang) const;
    // HsMoment after an application.
    QJsonObject moment(qint64 seeker, std::optional<int> rankBefore, bool gold,
                       const QString& lang) const;

private:
    Store& m_store;
};

} // namespace vl
