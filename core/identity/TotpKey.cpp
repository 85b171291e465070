#include "core/identity/TotpKey.h"

namespace vl {

QString otpauthUri(const QString& secret)
{
    return QStringLiteral("otpauth://totp/Velmora:?secret=") + secret +
           QStringLiteral("&issuer=Velmora");
}

QString groupedSecret(const QString& secret)
{
    QString grouped;
    for (qsizetype at = 0; at < secret.size(); at += 4) {
        if (at > 0)
            grouped += u' ';
        grouped += secret.mid(at, 4);
    }
    return grouped;
}

} // namespace vl
