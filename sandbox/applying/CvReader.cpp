#include "sandbox/applying/CvReader.h"

#include "sandbox/Locale.h"

#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>

namespace vl::CvReader {

namespace {

constexpr int toolTimeoutMs = 10000;

// Runs a tool on the bytes (on stdin, or as a file where the tool needs one) and returns its
// output; nothing when it fails.
std::optional<QByteArray> runTool(const QString& program, QStringList args, const QByteArray& input,
                                  bool asFile)
{
    QTemporaryFile file;
    if (asFile) {
        if (!file.open() || file.write(input) != input.size() || !file.flush())
            return std::nullopt;
        args.replaceInStrings(QStringLiteral("{file}"), file.fileName());
    }
    QProcess process;
    process.start(program, args);
    if (!process.waitForStarted(toolTimeoutMs))
        return std::nullopt;
    if (!asFile)
        process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(toolTimeoutMs) || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

QString docxText(const QByteArray& data)
{
    const auto xml = runTool(
        QStringLiteral("unzip"),
        {QStringLiteral("-p"), QStringLiteral("{file}"), QStringLiteral("word/document.xml")}, data,
        true);
    if (!xml)
        return {};
    QString text = QString::fromUtf8(*xml);
    text.replace(QRegularExpression(QStringLiteral("</w:p>")), QStringLiteral("\n"));
    text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    return text;
}

QStringList wordsOf(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[^\\w+#]+"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    return text.toLower().split(separators, Qt::SkipEmptyParts);
}

// The listing's distinctive words: long enough to say something, first seen first.
QStringList termsOf(const QString& listing)
{
    QStringList terms;
    QSet<QString> seen;
    for (const QString& word : wordsOf(listing)) {
        if (word.size() < 6 || seen.contains(word))
            continue;
        seen.insert(word);
        terms.append(word);
        if (terms.size() == 12)
            break;
    }
    return terms;
}

QString bandOf(int score)
{
    if (score >= 70)
        return QStringLiteral("strong");
    if (score >= 50)
        return QStringLiteral("good");
    if (score >= 30)
        return QStringLiteral("possible");
    return QStringLiteral("stretch");
}

Trilingual t(const char* ka, const char* en, const char* ru)
{
    return {QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)};
}

Trilingual bandLabel(const QString& band)
{
    if (band == QLatin1String("strong"))
        return t("ძლიერი შესაბამისობა", "Strong match", "Сильное соответствие");
    if (band == QLatin1String("good"))
        return t("კარგი შესაბამისობა", "Good match", "Хорошее соответствие");
    if (band == QLatin1String("possible"))
        return t("შესაძლო შესაბამისობა", "Possible match", "Возможное соответствие");
    return t("შორეული შესაბამისობა", "A stretch", "Слабое соответствие");
}

QJsonObject finding(const char* rule, const char* severity, const Trilingual& text,
                    const QString& lang, const QStringList& terms = {})
{
    return {{QStringLiteral("rule"), QString::fromLatin1(rule)},
            {QStringLiteral("severity"), QString::fromLatin1(severity)},
            {QStringLiteral("text"), text.in(lang)},
            {QStringLiteral("terms"), QJsonArray::fromStringList(terms)}};
}

QJsonArray findings(const QString& cv, int words, const QStringList& missing, const QString& lang)
{
    QJsonArray out;
    if (words < 150)
        out.append(finding("length", "improve",
                           t("CV მოკლეა: დაამატეთ მეტი დეტალი გამოცდილებაზე.",
                             "Your CV is short: add more detail about your experience.",
                             "Резюме короткое: добавьте подробностей об опыте."),
                           lang));
    else
        out.append(finding(
            "length", "good",
            t("CV-ის სიგრძე კარგია.", "Your CV has a good length.", "Длина резюме хорошая."),
            lang));
    static const QRegularExpression contact(
        QStringLiteral("[\\w.+-]+@[\\w-]+\\.[\\w.]+|\\+?\\d[\\d \\-]{7,}\\d"));
    if (contact.match(cv).hasMatch())
        out.append(finding("contacts", "good",
                           t("საკონტაქტო მონაცემები მითითებულია.",
                             "Your contact details are there.", "Контактные данные указаны."),
                           lang));
    else
        out.append(
            finding("contacts", "fix",
                    t("დაამატეთ ელფოსტა ან ტელეფონი.", "Add an email address or a phone number.",
                      "Добавьте почту или телефон."),
                    lang));
    static const QRegularExpression year(QStringLiteral("\\b(19|20)\\d\\d\\b"));
    if (!year.match(cv).hasMatch())
        out.append(finding("dates", "improve",
                           t("მიუთითეთ სამუშაოს თარიღები.", "Give the dates of each job.",
                             "Укажите даты каждой работы."),
                           lang));
    if (!missing.isEmpty())
        out.append(finding("missing", "improve",
                           t("განცხადების ეს სიტყვები CV-ში არ ჩანს.",
                             "These words of the listing do not appear in your CV.",
                             "Этих слов из объявления нет в резюме."),
                           lang, missing));
    return out;
}

QJsonObject copy(const QString& lang)
{
    const auto in = [&](const char* ka, const char* en, const char* ru) {
        return t(ka, en, ru).in(lang);
    };
    return {
        {QStringLiteral("title"), in("CV-ის შემოწმება", "CV check", "Проверка резюме")},
        {QStringLiteral("sub"), in("ამ განცხადებასთან შედარებით", "Against this listing",
                                   "В сравнении с этим объявлением")},
        {QStringLiteral("outOf"), in("100-დან", "out of 100", "из 100")},
        {QStringLiteral("fix"), in("გასასწორებელი", "To fix", "Исправить")},
        {QStringLiteral("improve"), in("გასაუმჯობესებელი", "To improve", "Улучшить")},
        {QStringLiteral("good"), in("კარგია", "Good", "Хорошо")},
        {QStringLiteral("failed"), in("ფაილის წაკითხვა ვერ მოხერხდა", "The file could not be read",
                                      "Не удалось прочитать файл")}};
}

} // namespace

std::optional<QString> text(const QByteArray& data, const QString& mime)
{
    QString out;
    if (mime == QLatin1String("application/pdf")) {
        const auto read =
            runTool(QStringLiteral("pdftotext"),
                    {QStringLiteral("-q"), QStringLiteral("-"), QStringLiteral("-")}, data, false);
        out = read ? QString::fromUtf8(*read) : QString();
    } else if (mime.contains(QLatin1String("openxmlformats"))) {
        out = docxText(data);
    }
    if (out.trimmed().isEmpty())
        return std::nullopt;
    return out;
}

bool hasMacros(const QByteArray& data)
{
    // Zip archives keep their member names in the clear.
    return data.startsWith("PK") && data.contains("vbaProject.bin");
}

QJsonObject check(const std::optional<QString>& cvText, const QString& listingText,
                  const QString& jobRef, const QString& jobTitle, const QString& lang)
{
    const QString cv = cvText.value_or(QString());
    const QStringList words = wordsOf(cv);
    const QSet<QString> present(words.begin(), words.end());
    const QStringList terms = termsOf(listingText);
    QStringList matched;
    QStringList missing;
    for (const QString& term : terms)
        (present.contains(term) ? matched : missing).append(term);
    const int score = !cvText || terms.isEmpty() ? 0 : int(100 * matched.size() / terms.size());
    const QString band = bandOf(score);
    return {{QStringLiteral("score"), score},
            {QStringLiteral("band"), band},
            {QStringLiteral("bandLabel"), bandLabel(band).in(lang)},
            {QStringLiteral("readable"), cvText.has_value()},
            {QStringLiteral("words"), int(words.size())},
            {QStringLiteral("version"), QStringLiteral("sandbox-1")},
            {QStringLiteral("findings"),
             cvText ? findings(cv, int(words.size()), missing, lang) : QJsonArray()},
            {QStringLiteral("matched"), QJsonArray::fromStringList(matched)},
            {QStringLiteral("missing"), QJsonArray::fromStringList(missing)},
            {QStringLiteral("jobRef"), jobRef},
            {QStringLiteral("jobTitle"), jobTitle},
            {QStringLiteral("copy"), copy(lang)}};
}

} // namespace vl::CvReader
