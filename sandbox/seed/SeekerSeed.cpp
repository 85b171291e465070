#include "sandbox/seed/SeekerSeed.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/auth/SeekerAccounts.h"

namespace vl::SeekerSeed {

namespace {

struct Seeker {
    const char* email;
    const char* name;
    // Base32 authenticator secret; nullptr when none is set.
    const char* secret;
    bool mailOnly;
    // Recovery codes separated by blanks.
    const char* recovery;
};

// The first secret is the RFC 6238 test key ("12345678901234567890"), so published test
// vectors hold for it.
constexpr Seeker seekers[] = {
    {"nino.beridze@mail.ge", "ნინო ბერიძე", "GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ", false,
     "7QK2-M4XD P9TR-3WZA H5CN-8JUE B2VY-6KLQ X8MF-4RDT C3PW-9HNS L7ZA-2QEV T4GX-5MBR "
     "E6SJ-7YKC R9DU-3FWP"},
    {"giorgi.kapanadze@gmail.com", "გიორგი კაპანაძე", nullptr, false, ""},
    {"tamar.lomidze@mail.ge", "თამარ ლომიძე", nullptr, true, ""},
    {"levan.gelashvili@gmail.com", "ლევან გელაშვილი", "JBSWY3DPEHPK3PXPJBSWY3DPEHPK3PXP", true,
     "K4ZP-7MXA W2HD-9QRT"},
    {"anna.petrova@yandex.ru", "Анна Петрова", "MFRGGZDFMZTWQ2LKNNWG23TPOBYXE43U", false,
     "Z3NQ-8VKE F6TB-2YHM"},
    {"dato@kodari.ge", "დავით ხარაიშვილი", nullptr, true, ""},
};

} // namespace

void write(Store& store, const Clock& clock)
{
    SeekerAccounts accounts(store, clock);
    for (const Seeker& s : seekers) {
        const qint64 id =
            store
                .exec(QStringLiteral("INSERT INTO seekers(email, name, totp_secret, mail_only, "
                                     "created_at) VALUES(?, ?, ?, ?, ?)"),
                      {QString::fromLatin1(s.email), QString::fromUtf8(s.name),
                       s.secret ? QVariant(QString::fromLatin1(s.secret)) : QVariant(), s.mailOnly,
                       clock.now() - 90 * Clock::day})
                .lastInsertId()
                .toLongLong();
        accounts.addRecoveryCodes(id,
                                  QString::fromLatin1(s.recovery).split(u' ', Qt::SkipEmptyParts));
    }
}

} // namespace vl::SeekerSeed
