#include "core/l10n/QuotaText.h"

#include "core/l10n/StaticText.h"

#include <array>
#include <string_view>

namespace vl::QuotaText {

namespace {

struct Row {
    Key key;
    std::u16string_view en;
    std::u16string_view ka;
    std::u16string_view ru;
};

#define VL_QUOTA(key, en, ka, ru)                                                                  \
    Row                                                                                            \
    {                                                                                              \
        Key::key, u"" en, u"" ka, u"" ru                                                           \
    }

// Key, English, Georgian, Russian; in the order of the enum.
// clang-format off
constexpr std::array rows{
    VL_QUOTA(locked, "Not opened yet", "ჯერ არ არის გახსნილი", "Ещё не открыт"),
    VL_QUOTA(maskedName, "Application", "განაცხადი", "Отклик"),
    VL_QUOTA(title, "Open this application?", "გავხსნათ ეს განაცხადი?", "Открыть этот отклик?"),
    VL_QUOTA(what, "You will see their name, their CV and the whole conversation. Once opened it stays open for good, including anything they send you later.", "დაინახავთ კანდიდატის სახელს, მის CV-ს და მთელ მიმოწერას. გახსნილი განაცხადი სამუდამოდ ღია რჩება, მათ შორის ყველაფერი, რასაც მოგვიანებით გამოგიგზავნით.", "Вы увидите имя, резюме и всю переписку. Открытый отклик остаётся открытым навсегда, включая всё, что кандидат пришлёт позже."),
    VL_QUOTA(count, "Free applications this week: {0} of {1}", "ამ კვირის უფასო განაცხადები: {0} / {1}", "Бесплатные отклики на этой неделе: {0} из {1}"),
    VL_QUOTA(resets, "Your free applications come back on Monday.", "უფასო განაცხადები ორშაბათს განახლდება.", "Бесплатные отклики снова станут доступны в понедельник."),
    VL_QUOTA(uses, "You have {0} free left this week", "ამ კვირაში კიდევ {0} უფასო განაცხადი გაქვთ", "На этой неделе осталось бесплатных: {0}"),
    VL_QUOTA(outTitle, "No free applications left this week", "ამ კვირის უფასო განაცხადები ამოიწურა", "Бесплатные отклики на этой неделе закончились"),
    VL_QUOTA(outBody, "Your free applications come back on Monday. Applications already opened stay open, and new ones keep arriving while you wait.", "უფასო განაცხადები ორშაბათს განახლდება. უკვე გახსნილი განაცხადები ღია რჩება, ახალი კი ამ დროსაც შემოდის.", "Бесплатные отклики снова станут доступны в понедельник. Уже открытые отклики остаются открытыми, а новые продолжают приходить."),
    VL_QUOTA(creditsLeft, "You have {0} credits", "თქვენ გაქვთ {0} კრედიტი", "Кредитов на счёте: {0}"),
    VL_QUOTA(useCredit, "This uses 1 of your {0} credits", "ამისთვის დაიხარჯება 1 კრედიტი თქვენი {0}-დან", "Будет списан 1 кредит из {0}"),
    VL_QUOTA(payTitle, "Or pay for this one only", "ან გადაიხადეთ მხოლოდ ამ ერთისთვის", "Или оплатите только этот отклик"),
    VL_QUOTA(payWhat, "Credits never expire, and your free applications are always spent first. No subscription.", "კრედიტებს ვადა არ გასდის, უფასო განაცხადები კი ყოველთვის პირველ რიგში იხარჯება. გამოწერა საჭირო არ არის.", "Кредиты не сгорают, а бесплатные отклики всегда расходуются первыми. Без подписки."),
    VL_QUOTA(pro, "Get unlimited with Pro", "შეუზღუდავი წვდომა Pro-თი", "Без ограничений с Pro"),
    VL_QUOTA(proWhat, "Pro opens every application straight away, with no weekly limit.", "Pro ყველა განაცხადს მაშინვე ხსნის, კვირის ლიმიტის გარეშე.", "С Pro каждый отклик открывается сразу, без недельного лимита."),
    VL_QUOTA(weekTitle, "Free applications this week", "ამ კვირის უფასო განაცხადები", "Бесплатные отклики на этой неделе"),
    VL_QUOTA(openOnWeb, "Continue on the website", "ვებსაიტზე გაგრძელება", "Продолжить на сайте"),
    VL_QUOTA(webWhy, "Applications are opened on Velmora, so this button takes you there.", "განაცხადები Velmora-ს საიტზე იხსნება, ამიტომ ეს ღილაკი იქ გადაგიყვანთ.", "Отклики открываются на сайте Velmora, поэтому кнопка ведёт туда."),
    VL_QUOTA(writeBlocked, "Open this application first. Until then nothing can be sent.", "ჯერ ეს განაცხადი გახსენით. მანამდე ვერაფერს გაგზავნით.", "Сначала откройте этот отклик. До этого отправить ничего нельзя."),
};
// clang-format on

#undef VL_QUOTA

static_assert(rows.size() == static_cast<std::size_t>(Key::writeBlocked) + 1);
static_assert([] {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].key) != i)
            return false;
    }
    return true;
}());

} // namespace

QString text(Key key, Lang lang)
{
    const auto index = static_cast<std::size_t>(key);
    if (index >= rows.size())
        return QString();
    const Row& row = rows[index];
    return staticText(inLang(lang, row.en, row.ka, row.ru));
}

QString text(Key key, Lang lang, int first)
{
    return text(key, lang).replace(QLatin1StringView("{0}"), QString::number(first));
}

QString text(Key key, Lang lang, int first, int second)
{
    return text(key, lang, first).replace(QLatin1StringView("{1}"), QString::number(second));
}

} // namespace vl::QuotaText
