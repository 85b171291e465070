#include "sandbox/auth/CodeMail.h"

#include "sandbox/Locale.h"
#include "sandbox/dev/Outbox.h"

namespace vl::CodeMail {

namespace {

Trilingual text(const char* ka, const char* en, const char* ru) {
    return {QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)};
}

} // namespace

void sendEmployerCode(Outbox& outbox, const QString& to, const QString& code,
                      const QString& locale) {
    static const Trilingual subject =
        text("Velmora — დამსაქმებლის ანგარიშში შესვლის კოდი", "Your Velmora sign-in code",
             "Код для входа в кабинет работодателя Velmora");
    static const Trilingual body = text(
        "გამარჯობა!\n\nთქვენი შესვლის კოდია: %1\n\nკოდი მოქმედებს 10 წუთის განმავლობაში. "
        "თუ კოდი თქვენ არ მოგითხოვიათ, უბრალოდ უგულებელყავით ეს წერილი.\n\nVelmora",
        "Hello,\n\nYour sign-in code is: %1\n\nIt works for 10 minutes. If you did not ask for "
        "it, you can ignore this email.\n\nVelmora",
        "Здравствуйте!\n\nВаш код для входа: %1\n\nКод действует 10 минут. Если вы его не "
        "запрашивали, просто проигнорируйте это письмо.\n\nVelmora");
    const QString lang = normalizeLocale(locale);
    outbox.send(to, subject.in(lang), body.in(lang).arg(code));
}

void sendCandidateCode(Outbox& outbox, const QString& to, const QString& code,
                       const QString& locale) {
    static const Trilingual subject = text("Velmora — კოდი სამუშაოს მაძიებლის ანგარიშისთვის",
                                           "Your Velmora code", "Ваш код Velmora для соискателя");
    static const Trilingual body =
        text("გამარჯობა!\n\nთქვენი კოდია: %1\n\nშეიყვანეთ ის აპლიკაციაში, რომ გააგრძელოთ. კოდი "
             "მოქმედებს 10 წუთის განმავლობაში.\n\nVelmora",
             "Hello,\n\nYour code is: %1\n\nEnter it in the app to carry on. It works for 10 "
             "minutes.\n\nVelmora",
             "Здравствуйте!\n\nВаш код: %1\n\nВведите его в приложении, чтобы продолжить. Код "
             "действует 10 минут.\n\nVelmora");
    const QString lang = normalizeLocale(locale);
    outbox.send(to, subject.in(lang), body.in(lang).arg(code));
}

} // namespace vl::CodeMail
