#include "core/format/Translit.h"

#include <QList>
#include <QTextBoundaryFinder>
#include <array>
#include <string_view>

namespace vl::Translit {

namespace {

struct Letter {
    char16_t from;
    std::u16string_view to;
};

constexpr std::array<Letter, 33> georgian{{
    {u'ა', u"a"},  {u'ბ', u"b"},  {u'გ', u"g"},  {u'დ', u"d"},  {u'ე', u"e"},  {u'ვ', u"v"},
    {u'ზ', u"z"},  {u'თ', u"t"},  {u'ი', u"i"},  {u'კ', u"k"},  {u'ლ', u"l"},  {u'მ', u"m"},
    {u'ნ', u"n"},  {u'ო', u"o"},  {u'პ', u"p"},  {u'ჟ', u"zh"}, {u'რ', u"r"},  {u'ს', u"s"},
    {u'ტ', u"t"},  {u'უ', u"u"},  {u'ფ', u"p"},  {u'ქ', u"k"},  {u'ღ', u"gh"}, {u'ყ', u"q"},
    {u'შ', u"sh"}, {u'ჩ', u"ch"}, {u'ც', u"ts"}, {u'ძ', u"dz"}, {u'წ', u"ts"}, {u'ჭ', u"ch"},
    {u'ხ', u"kh"}, {u'ჯ', u"j"},  {u'ჰ', u"h"},
}};

constexpr std::array<Letter, 33> russian{{
    {u'а', u"a"},  {u'б', u"b"},  {u'в', u"v"},    {u'г', u"g"}, {u'д', u"d"},  {u'е', u"e"},
    {u'ё', u"yo"}, {u'ж', u"zh"}, {u'з', u"z"},    {u'и', u"i"}, {u'й', u"y"},  {u'к', u"k"},
    {u'л', u"l"},  {u'м', u"m"},  {u'н', u"n"},    {u'о', u"o"}, {u'п', u"p"},  {u'р', u"r"},
    {u'с', u"s"},  {u'т', u"t"},  {u'у', u"u"},    {u'ф', u"f"}, {u'х', u"kh"}, {u'ц', u"ts"},
    {u'ч', u"ch"}, {u'ш', u"sh"}, {u'щ', u"shch"}, {u'ъ', u""},  {u'ы', u"y"},  {u'ь', u""},
    {u'э', u"e"},  {u'ю', u"yu"}, {u'я', u"ya"},
}};

std::optional<std::u16string_view> lookup(char16_t c)
{
    for (const auto* table : {&georgian, &russian}) {
        for (const Letter& letter : *table) {
            if (letter.from == c)
                return letter.to;
        }
    }
    return std::nullopt;
}

bool anyIn(QStringView text, char16_t first, char16_t last)
{
    for (const QChar c : text) {
        if (c.unicode() >= first && c.unicode() <= last)
            return true;
    }
    return false;
}

} // namespace

bool hasGeorgian(QStringView text)
{
    return anyIn(text, u'\u10A0', u'\u10FF');
}

bool hasCyrillic(QStringView text)
{
    return anyIn(text, u'\u0400', u'\u04FF');
}

QString latin(QStringView text)
{
    // Letters typed as a base and a combining mark (и and a breve) become one character first,
    // and the walk goes by what a reader sees as one character, so a mark or a surrogate pair
    // never counts as the end of a word.
    const QString composed = text.toString().normalized(QString::NormalizationForm_C);
    QString result;
    result.reserve(composed.size() * 2);
    bool wordStart = true;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, composed);
    qsizetype from = 0;
    while (characters.toNextBoundary() != -1) {
        const QStringView character = QStringView(composed).mid(from, characters.position() - from);
        from = characters.position();
        const QString lower = character.toString().toLower();
        const auto replacement = lower.size() == 1 ? lookup(lower.front().unicode()) : std::nullopt;
        if (!replacement) {
            result.append(character);
            wordStart = !QChar::isLetter(character.toUcs4().value(0));
            continue;
        }
        if (wordStart && !replacement->empty()) {
            result.append(QChar(replacement->front()).toUpper());
            result.append(QStringView(replacement->substr(1)));
        } else {
            result.append(QStringView(*replacement));
        }
        wordStart = false;
    }
    return result;
}

std::optional<QString> subtitle(const QString& name, Lang lang)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const bool georgianName = hasGeorgian(trimmed);
    const bool cyrillicName = hasCyrillic(trimmed);
    if (!georgianName && !cyrillicName)
        return std::nullopt;
    if ((lang == Lang::ka && georgianName) || (lang == Lang::ru && cyrillicName))
        return std::nullopt;
    QString transliterated = latin(trimmed);
    if (transliterated.compare(trimmed, Qt::CaseInsensitive) == 0)
        return std::nullopt;
    return transliterated;
}

} // namespace vl::Translit
