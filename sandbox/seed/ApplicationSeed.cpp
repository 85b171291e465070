#include "sandbox/seed/ApplicationSeed.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/applying/Applications.h"

#include <QSqlQuery>

namespace vl::ApplicationSeed {

namespace {

struct Seeded {
    const char* email;
    const char* name;
    const char* status;
    const char* reply; // the employer's message, if any
    int daysAgo;
};

constexpr Seeded applications[] = {
    {"nino.beridze@mail.ge", "ნინო ბერიძე", "replied",
     "გმადლობთ განაცხადისთვის! შეგიძლიათ ხვალ 11 საათზე დაგვირეკოთ?", 6},
    {"nino.beridze@mail.ge", "ნინო ბერიძე", "interview",
     "We would like to meet you. Please pick a time that suits you.", 4},
    {"anna.petrova@yandex.ru", "Анна Петрова", "withdrawn", nullptr, 9},
    {"giorgi.kapanadze@gmail.com", "გიორგი კაპანაძე", "replied",
     "Thank you, we have read your CV and will call you this week.", 3},
};

// A small but well-formed PDF whose page says who sent it.
QByteArray cvPdf(const QString& name)
{
    const QByteArray text = "CV " + name.toUtf8().toPercentEncoding() + " 2019 2024";
    const QByteArray stream = "BT /F1 12 Tf 72 720 Td (" + text + ") Tj ET";
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 612 792]/Contents 4 0 R"
           "/Resources<</Font<</F1 5 0 R>>>>>>endobj\n"
           "4 0 obj<</Length " +
           QByteArray::number(stream.size()) + ">>stream\n" + stream +
           "\nendstream endobj\n5 0 obj<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

} // namespace

void write(Store& store, const Clock& clock)
{
    Applications all(store, clock);
    QSqlQuery listings = store.exec(QStringLiteral(
        "SELECT ref FROM listings WHERE status = 'live' AND apply_on_web = 0 AND form IS NULL "
        "ORDER BY ref LIMIT 8"));
    QStringList refs;
    while (listings.next())
        refs.append(listings.value(0).toString());
    int i = 0;
    for (const Seeded& seeded : applications) {
        const QString email = QString::fromLatin1(seeded.email);
        const QVariant seeker =
            store.scalar(QStringLiteral("SELECT id FROM seekers WHERE email = ?"), {email});
        if (!seeker.isValid() || refs.isEmpty())
            continue;
        const qint64 at = clock.now() - seeded.daysAgo * Clock::day;
        Applications::New application;
        application.seeker = seeker.toLongLong();
        application.email = email;
        application.listingRef = refs[i++ % refs.size()];
        application.kind = QStringLiteral("application");
        application.name = QString::fromUtf8(seeded.name);
        application.message = QStringLiteral("Hello, I would like to apply.");
        application.cvName = QStringLiteral("cv.pdf");
        application.cvMime = QStringLiteral("application/pdf");
        application.cvData = cvPdf(application.name);
        application.status = QString::fromLatin1(seeded.status);
        application.at = at;
        const auto sent = all.insert(application);
        if (!seeded.reply)
            continue;
        const auto id = all.open(sent.ref, sent.token, std::nullopt);
        all.addMessage(*id, QStringLiteral("employer"), QString::fromUtf8(seeded.reply),
                       at + 3 * 3600);
    }
}

} // namespace vl::ApplicationSeed
