#include "core/l10n/RatingTags.h"

#include "core/l10n/StaticText.h"

#include <array>
#include <string_view>

namespace vl::RatingTags {

namespace {

using namespace Qt::Literals::StringLiterals;

struct Row {
    QLatin1StringView id;
    std::u16string_view en;
    std::u16string_view ka;
    std::u16string_view ru;
};

// Tag id, English, Georgian, Russian.
// clang-format off
constexpr std::array rows{
    Row{"on_time"_L1, u"On time", u"დროზე", u"Вовремя"},
    Row{"quality"_L1, u"Great quality", u"მაღალი ხარისხი", u"Отличное качество"},
    Row{"friendly"_L1, u"Friendly", u"თავაზიანი", u"Доброжелательность"},
    Row{"again"_L1, u"Would work together again", u"კიდევ ვიმუშავებდი ერთად", u"Работал бы снова"},
    Row{"late"_L1, u"Late", u"დაგვიანება", u"Опоздание"},
    Row{"no_show"_L1, u"Did not show up", u"არ გამოცხადდა", u"Не пришёл"},
    Row{"comms"_L1, u"Poor communication", u"ცუდი კომუნიკაცია", u"Плохая коммуникация"},
    Row{"paid"_L1, u"Paid as agreed", u"გადაიხადა შეთანხმებისამებრ", u"Оплатил как договаривались"},
    Row{"clear"_L1, u"Clear brief", u"გასაგები დავალება", u"Понятная задача"},
    Row{"respectful"_L1, u"Respectful", u"პატივისცემით", u"Уважительное отношение"},
    Row{"payment_issue"_L1, u"Payment issue", u"გადახდის პრობლემა", u"Проблема с оплатой"},
    Row{"unclear"_L1, u"Unclear brief", u"ბუნდოვანი დავალება", u"Неясная задача"},
};
// clang-format on

constexpr std::array workerTags{"on_time"_L1, "quality"_L1, "friendly"_L1, "again"_L1,
                                "late"_L1,    "no_show"_L1, "comms"_L1};
constexpr std::array employerTags{"paid"_L1,  "clear"_L1,         "respectful"_L1,
                                  "again"_L1, "payment_issue"_L1, "unclear"_L1};

} // namespace

QString label(QStringView tagId, Lang lang)
{
    for (const Row& row : rows) {
        if (tagId != row.id)
            continue;
        return staticText(inLang(lang, row.en, row.ka, row.ru));
    }
    return tagId.toString();
}

std::span<const QLatin1StringView> forWorker()
{
    return workerTags;
}

std::span<const QLatin1StringView> forEmployer()
{
    return employerTags;
}

} // namespace vl::RatingTags
