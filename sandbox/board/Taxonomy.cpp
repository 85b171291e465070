#include "sandbox/board/Taxonomy.h"

#include <QJsonObject>

namespace vl::Taxonomy {

namespace {

Term term(const char* key, const char* ka, const char* en, const char* ru)
{
    return {QString::fromUtf8(key),
            {QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)},
            {}};
}

Term city(const char* key, const char* ka, const char* en, const char* ru, const char* inKa,
          const char* inRu)
{
    Term out = term(key, ka, en, ru);
    out.where = {QString::fromUtf8(inKa), QStringLiteral("in ") + QString::fromUtf8(en),
                 QString::fromUtf8(inRu)};
    return out;
}

} // namespace

const QList<Term>& categories()
{
    static const QList<Term> list{
        term("hospitality", "სასტუმროები და რესტორნები", "Hospitality", "Гостиницы и рестораны"),
        term("retail", "საცალო ვაჭრობა", "Retail", "Розничная торговля"),
        term("it", "IT და პროგრამირება", "IT and software", "IT и разработка"),
        term("construction", "მშენებლობა", "Construction", "Строительство"),
        term("healthcare", "ჯანდაცვა", "Healthcare", "Здравоохранение"),
        term("education", "განათლება", "Education", "Образование"),
        term("logistics", "ლოჯისტიკა და ტრანსპორტი", "Logistics and transport",
             "Логистика и транспорт"),
        term("finance", "ფინანსები და ბუღალტერია", "Finance and accounting",
             "Финансы и бухгалтерия"),
        term("sales", "გაყიდვები", "Sales", "Продажи"),
        term("beauty", "სილამაზე და ესთეტიკა", "Beauty and wellness", "Красота и уход"),
        term("manufacturing", "წარმოება", "Manufacturing", "Производство"),
        term("security", "დაცვა", "Security", "Охрана"),
        term("cleaning", "დასუფთავება", "Cleaning", "Уборка и клининг"),
        term("marketing", "მარკეტინგი და დიზაინი", "Marketing and design", "Маркетинг и дизайн"),
        term("other", "სხვა", "Other", "Другое"),
    };
    return list;
}

const QList<Term>& cities()
{
    static const QList<Term> list{
        city("tbilisi", "თბილისი", "Tbilisi", "Тбилиси", "თბილისში", "в Тбилиси"),
        city("batumi", "ბათუმი", "Batumi", "Батуми", "ბათუმში", "в Батуми"),
        city("kutaisi", "ქუთაისი", "Kutaisi", "Кутаиси", "ქუთაისში", "в Кутаиси"),
        city("rustavi", "რუსთავი", "Rustavi", "Рустави", "რუსთავში", "в Рустави"),
        city("gori", "გორი", "Gori", "Гори", "გორში", "в Гори"),
        city("zugdidi", "ზუგდიდი", "Zugdidi", "Зугдиди", "ზუგდიდში", "в Зугдиди"),
        city("poti", "ფოთი", "Poti", "Поти", "ფოთში", "в Поти"),
        city("telavi", "თელავი", "Telavi", "Телави", "თელავში", "в Телави"),
        city("kobuleti", "ქობულეთი", "Kobuleti", "Кобулети", "ქობულეთში", "в Кобулети"),
        city("borjomi", "ბორჯომი", "Borjomi", "Боржоми", "ბორჯომში", "в Боржоми"),
        city("mtskheta", "მცხეთა", "Mtskheta", "Мцхета", "მცხეთაში", "в Мцхете"),
        city("akhaltsikhe", "ახალციხე", "Akhaltsikhe", "Ахалцихе", "ახალციხეში", "в Ахалцихе"),
        term("remote", "დისტანციური", "Remote", "Удалённо"),
    };
    return list;
}

const QList<Term>& employmentTypes()
{
    static const QList<Term> list{
        term("full", "სრული განაკვეთი", "Full-time", "Полная занятость"),
        term("part", "ნახევარი განაკვეთი", "Part-time", "Частичная занятость"),
        term("shift", "ცვლებში მუშაობა", "Shift work", "Сменный график"),
        term("contract", "კონტრაქტით", "Contract", "По договору"),
        term("internship", "სტაჟირება", "Internship", "Стажировка"),
    };
    return list;
}

const Term* find(const QList<Term>& terms, const QString& key)
{
    for (const Term& t : terms) {
        if (t.key == key)
            return &t;
    }
    return nullptr;
}

QJsonArray toJson(const QList<Term>& terms)
{
    QJsonArray out;
    for (const Term& t : terms) {
        out.append(QJsonObject{
            {QStringLiteral("key"), t.key},
            {QStringLiteral("labels"), QJsonObject{{QStringLiteral("ka"), t.label.ka},
                                                   {QStringLiteral("en"), t.label.en},
                                                   {QStringLiteral("ru"), t.label.ru}}}});
    }
    return out;
}

} // namespace vl::Taxonomy
