#include "sandbox/seed/SeekerPostSeed.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"

#include <QStringList>

namespace vl::SeekerPostSeed {

namespace {

struct Profile {
    const char* title;
    const char* category;
    const char* about;
};

struct Language {
    const char* lang;
    QStringList names;
    QList<Profile> profiles;
};

QList<Language> languages()
{
    auto names = [](const char* list) { return QString::fromUtf8(list).split(u'|'); };
    return {
        {"ka",
         names("ნინო კაპანაძე|გიორგი მაისურაძე|მარიამ ჯაფარიძე|დავით ლომიძე|ანა ბერიძე|ლუკა "
               "წიკლაური|სალომე გოგიჩაიშვილი|ირაკლი ხუციშვილი|თამარ ნოზაძე|ნიკა ქავთარაძე|ეკა "
               "მამულაშვილი|ზურაბ ჩხეიძე|ქეთი სამხარაძე|ლევან დოლიძე"),
         {{"ბარისტა გამოცდილებით", "hospitality",
           "სამი წელი ვმუშაობდი ყავის მაღაზიაში თბილისში. ვიცი ესპრესოს აპარატის მოვლა."},
          {"გაყიდვების კონსულტანტი", "sales",
           "მიყვარს ადამიანებთან ურთიერთობა, ვმუშაობდი ტანსაცმლის მაღაზიაში ორი წელი."},
          {"უმცროსი პროგრამისტი", "it",
           "ვიცი Python და JavaScript, დავამთავრე ბუთქემფი, ვეძებ პირველ სამსახურს."},
          {"მძღოლი B კატეგორიით", "logistics",
           "ათი წლის სტაჟი, ვიცნობ თბილისის ქუჩებს, მზად ვარ ღამის ცვლისთვისაც."},
          {"ბუღალტერი", "finance", "ხუთი წლის გამოცდილება მცირე კომპანიებში, ვიცი ORIS."}}},
        {"en",
         names("Sarah Mitchell|James Carter|Emily Watson|Daniel Brooks|Olivia Turner|Michael "
               "Hayes|Sophie Bennett|Thomas Reed|Grace Collins|Ben Foster|Lucy Palmer|Ryan "
               "Morgan|Hannah Price"),
         {{"English teacher with CELTA", "education",
           "Four years teaching adults and teenagers in Tbilisi. Happy to run evening groups."},
          {"Front-end developer", "it",
           "React and TypeScript, three years at a product studio. Looking for remote work."},
          {"Hotel receptionist", "hospitality",
           "Front desk experience in Batumi, fluent English and Russian, night shifts fine."},
          {"Graphic designer", "marketing",
           "Brand identities and social media for small businesses. Portfolio on request."},
          {"Warehouse operative", "logistics",
           "Forklift licence, used to scanners and stock counts, available immediately."}}},
        {"ru",
         names("Анна Смирнова|Дмитрий Иванов|Екатерина Волкова|Сергей Козлов|Мария "
               "Новикова|Алексей Морозов|Ольга Павлова|Игорь Соколов|Наталья Лебедева|Павел "
               "Егоров|Юлия Орлова|Андрей Фёдоров|Ирина Васильева"),
         {{"Повар горячего цеха", "hospitality",
           "Пять лет в ресторанах Тбилиси, грузинская и европейская кухня."},
          {"Администратор салона красоты", "beauty",
           "Веду запись клиентов, работаю с кассой, говорю по-грузински."},
          {"Бухгалтер", "finance", "Опыт в торговой компании, 1С и налоговая отчётность."},
          {"Курьер на своём авто", "logistics",
           "Знаю город, пунктуален, готов работать по выходным."},
          {"Менеджер по продажам", "sales",
           "B2B продажи, ведение клиентской базы, опыт переговоров."}}},
    };
}

const char* const cities[] = {"tbilisi", "batumi", "kutaisi", "rustavi", "remote"};
const char* const types[] = {"full", "part", "shift"};

} // namespace

void write(Store& store, const Clock& clock)
{
    QSqlQuery insert = store.prepare(QStringLiteral(
        "INSERT INTO seeker_posts(ref, manage_key, name, email, phone, age, title, description, "
        "category, city, type, lang, created_at, live_at) "
        "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    int n = 0;
    for (const Language& language : languages()) {
        for (qsizetype i = 0; i < language.names.size(); ++i, ++n) {
            const Profile& profile = language.profiles[i % language.profiles.size()];
            const qint64 at = clock.now() - (n + 1) * 7 * 3600;
            Store::run(insert,
                       {QStringLiteral("S-%1").arg(1000 + n),
                        QStringLiteral("seed-manage-%1").arg(n), language.names[i],
                        QStringLiteral("seeker%1@example.ge").arg(n, 2, 10, QLatin1Char('0')),
                        QString(), QString::number(20 + (n * 7) % 30),
                        QString::fromUtf8(profile.title), QString::fromUtf8(profile.about),
                        QString::fromLatin1(profile.category), QString::fromLatin1(cities[n % 5]),
                        QString::fromLatin1(types[n % 3]), QString::fromLatin1(language.lang), at,
                        at});
        }
    }
}

} // namespace vl::SeekerPostSeed
