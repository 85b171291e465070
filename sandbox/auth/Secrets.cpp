#include "sandbox/auth/Secrets.h"

#include <QByteArray>
#include <QRandomGenerator>
#include <QRegularExpression>

namespace vl::Secrets {

QString token(int bytes) {
    QByteArray raw(bytes, Qt::Uninitialized);
    for (char& byte : raw)
        byte = char(QRandomGenerator::system()->bounded(256));
    return QString::fromLatin1(raw.toHex());
}

QString digits(int count) {
    QString out;
    for (int i = 0; i < count; ++i)
        out.append(QChar(u'0' + QRandomGenerator::system()->bounded(10)));
    return out;
}

bool isEmail(const QString& address) {
    static const QRegularExpression shape(QStringLiteral("^[^@\\s]+@[^@\\s]+\\.[^@\\s]+$"));
    return shape.match(address).hasMatch();
}

} // namespace vl::Secrets
