#pragma once

// Strict reading and plain writing of wire records.
//
// A record declares its fields once with VL_JSON_FIELDS (JSON key = member name) or, where a key
// differs from the member, with a hand-written jsonFields() built from vl::json::field(). The one
// generic reader below then serves every record: a required field that is missing, null or of
// another type fails the whole value; a std::optional field may be absent or null but not of
// another type; keys the record does not know are ignored; integers must be whole numbers.

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace vl::json {

template <class Owner, class Member>
struct Field {
    const char* key;
    qsizetype keyLength;
    Member Owner::*member;

    constexpr QLatin1StringView name() const { return QLatin1StringView(key, keyLength); }
};

template <class Owner, class Member>
constexpr Field<Owner, Member> field(const char* key, Member Owner::*member)
{
    return {key, qsizetype(std::char_traits<char>::length(key)), member};
}

template <class T>
concept Record = requires
{
    T::jsonFields();
};

template <class T>
struct IsOptional : std::false_type {
};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type {
};

// A member of a parsed object or array, read where it lies instead of being copied into a value
// of its own first, with its type looked up once: the codecs ask for it several times.
class Item {
public:
    explicit Item(QJsonValueConstRef ref)
        : m_ref(ref)
        , m_type(ref.type())
    {
    }

    bool isNull() const { return m_type == QJsonValue::Null; }
    bool isBool() const { return m_type == QJsonValue::Bool; }
    bool isDouble() const { return m_type == QJsonValue::Double; }
    bool isString() const { return m_type == QJsonValue::String; }
    bool isArray() const { return m_type == QJsonValue::Array; }
    bool isObject() const { return m_type == QJsonValue::Object; }
    bool isUndefined() const { return m_type == QJsonValue::Undefined; }
    bool toBool() const { return m_ref.toBool(); }
    double toDouble() const { return m_ref.toDouble(); }
    qint64 toInteger() const { return m_ref.toInteger(); }
    QString toString() const { return m_ref.toString(); }
    QJsonArray toArray() const { return m_ref.toArray(); }
    QJsonObject toObject() const { return m_ref.toObject(); }
    explicit operator QJsonValue() const { return m_ref; }

private:
    QJsonValueConstRef m_ref;
    QJsonValue::Type m_type;
};

// Codec<T>::read(value, out) -> bool and Codec<T>::write(value) -> QJsonValue. Reading takes a
// QJsonValue or an Item.
template <class T>
struct Codec;

template <>
struct Codec<bool> {
    template <class V>
    static bool read(const V& v, bool& out)
    {
        if (!v.isBool())
            return false;
        out = v.toBool();
        return true;
    }
    static QJsonValue write(bool v) { return v; }
};

template <class Int>
requires(std::is_integral_v<Int> && !std::is_same_v<Int, bool>) struct Codec<Int> {
    template <class V>
    static bool read(const V& v, Int& out)
    {
        if (!v.isDouble())
            return false;
        const double d = v.toDouble();
        if (std::floor(d) != d || d < double(std::numeric_limits<Int>::min()) ||
            d > double(std::numeric_limits<Int>::max()))
            return false;
        out = Int(v.toInteger());
        return true;
    }
    static QJsonValue write(Int v) { return qint64(v); }
};

template <>
struct Codec<double> {
    template <class V>
    static bool read(const V& v, double& out)
    {
        if (!v.isDouble())
            return false;
        out = v.toDouble();
        return true;
    }
    static QJsonValue write(double v) { return v; }
};

template <>
struct Codec<QString> {
    template <class V>
    static bool read(const V& v, QString& out)
    {
        if (!v.isString())
            return false;
        out = v.toString();
        return true;
    }
    static QJsonValue write(const QString& v) { return v; }
};

// Any JSON at all, kept as it came: for fields whose shape is the service's free choice.
template <>
struct Codec<QJsonValue> {
    template <class V>
    static bool read(const V& v, QJsonValue& out)
    {
        out = QJsonValue(v);
        return true;
    }
    static QJsonValue write(const QJsonValue& v) { return v; }
};

template <class T>
struct Codec<std::optional<T>> {
    template <class V>
    static bool read(const V& v, std::optional<T>& out)
    {
        if (v.isNull() || v.isUndefined()) {
            out.reset();
            return true;
        }
        // A value that does not read fails the whole record, so what is left in `out` then
        // does not matter.
        return Codec<T>::read(v, out.emplace());
    }
    static QJsonValue write(const std::optional<T>& v)
    {
        return v ? Codec<T>::write(*v) : QJsonValue(QJsonValue::Null);
    }
};

template <class T>
struct Codec<std::vector<T>> {
    template <class V>
    static bool read(const V& v, std::vector<T>& out)
    {
        if (!v.isArray())
            return false;
        const QJsonArray array = v.toArray();
        out.clear();
        out.reserve(std::size_t(array.size()));
        for (auto it = array.constBegin(); it != array.constEnd(); ++it) {
            if (!Codec<T>::read(Item(*it), out.emplace_back()))
                return false;
        }
        return true;
    }
    static QJsonValue write(const std::vector<T>& v)
    {
        QJsonArray array;
        for (const auto& item : v)
            array.append(Codec<T>::write(item));
        return array;
    }
};

template <class T>
struct Codec<std::map<QString, T>> {
    template <class V>
    static bool read(const V& v, std::map<QString, T>& out)
    {
        if (!v.isObject())
            return false;
        const QJsonObject object = v.toObject();
        out.clear();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            T value{};
            if (!Codec<T>::read(Item(*it), value))
                return false;
            out.emplace(it.key(), std::move(value));
        }
        return true;
    }
    static QJsonValue write(const std::map<QString, T>& v)
    {
        QJsonObject object;
        for (const auto& [key, value] : v)
            object.insert(key, Codec<T>::write(value));
        return object;
    }
};

// A record's object is walked once, member by member: each key is matched against the record's
// keys and its value read into the field it names. Fields never met are then checked: a required
// one fails the record, an optional one is empty.
template <Record T>
struct Codec<T> {
    template <class V>
    static bool read(const V& v, T& out)
    {
        if (!v.isObject())
            return false;
        const QJsonObject object = v.toObject();
        std::array<bool, fieldCount> seen{};
        std::size_t next = 0;
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            const std::size_t at = find(it.key(), next);
            if (at == fieldCount)
                continue;
            next = at + 1;
            const std::size_t field = byKey[at].field;
            seen[field] = true;
            if (!readers[field](Item(*it), out))
                return false;
        }
        return unseen(seen, out, std::make_index_sequence<fieldCount>());
    }

    static QJsonValue write(const T& v)
    {
        QJsonObject object;
        std::apply(
            [&](const auto&... fields) {
                (object.insert(fields.name(),
                               Codec<std::remove_cvref_t<decltype(v.*(fields.member))>>::write(
                                   v.*(fields.member))),
                 ...);
            },
            T::jsonFields());
        return object;
    }

private:
    static constexpr std::size_t fieldCount = std::tuple_size_v<decltype(T::jsonFields())>;

    template <std::size_t I>
    using MemberAt =
        std::remove_cvref_t<decltype(std::declval<T&>().*(std::get<I>(T::jsonFields()).member))>;

    struct Key {
        std::string_view name;
        std::size_t field = 0;
    };
    // The record's keys in the order a parsed object keeps its members: sorted.
    static constexpr std::array<Key, fieldCount> byKey = [] {
        std::array<Key, fieldCount> keys{};
        std::size_t i = 0;
        std::apply(
            [&](const auto&... fields) {
                ((keys[i] = {fields.key, i}, ++i), ...);
            },
            T::jsonFields());
        std::sort(keys.begin(), keys.end(),
                  [](const Key& a, const Key& b) { return a.name < b.name; });
        return keys;
    }();

    // Members arrive in key order, so the key is almost always the one after the last match;
    // the search goes on round the table for any other, so the order is only a shortcut.
    static std::size_t find(const QString& key, std::size_t from)
    {
        for (std::size_t n = 0; n < fieldCount; ++n) {
            const std::size_t at = from + n < fieldCount ? from + n : from + n - fieldCount;
            const std::string_view name = byKey[at].name;
            if (key == QLatin1StringView(name.data(), qsizetype(name.size())))
                return at;
        }
        return fieldCount;
    }

    template <std::size_t I>
    static bool readAt(const Item& item, T& out)
    {
        if constexpr (!IsOptional<MemberAt<I>>::value) {
            if (item.isNull())
                return false;
        }
        return Codec<MemberAt<I>>::read(item, out.*(std::get<I>(T::jsonFields()).member));
    }

    using Reader = bool (*)(const Item&, T&);
    template <std::size_t... I>
    static constexpr std::array<Reader, fieldCount> makeReaders(std::index_sequence<I...>)
    {
        return {&readAt<I>...};
    }
    static constexpr std::array<Reader, fieldCount> readers =
        makeReaders(std::make_index_sequence<fieldCount>());

    template <std::size_t... I>
    static bool unseen(const std::array<bool, fieldCount>& seen, T& out, std::index_sequence<I...>)
    {
        [[maybe_unused]] const auto check = [&](auto index) {
            constexpr std::size_t at = decltype(index)::value;
            if (seen[at])
                return true;
            if constexpr (IsOptional<MemberAt<at>>::value) {
                (out.*(std::get<at>(T::jsonFields()).member)).reset();
                return true;
            } else {
                return false;
            }
        };
        return (check(std::integral_constant<std::size_t, I>()) && ...);
    }
};

// Reads a whole value strictly; nothing when any part of it does not fit.
template <class T>
std::optional<T> read(const QJsonValue& value)
{
    T out{};
    if (!Codec<T>::read(value, out))
        return std::nullopt;
    return out;
}

// Parses bytes and reads them as T. Only a JSON object or array can stand at the top.
template <class T>
std::optional<T> decode(const QByteArray& bytes)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return std::nullopt;
    if (document.isObject())
        return read<T>(document.object());
    if (document.isArray())
        return read<T>(document.array());
    return std::nullopt;
}

template <class T>
QJsonValue write(const T& value)
{
    return Codec<T>::write(value);
}

// The compact JSON text of a value, for bodies and for printing.
template <class T>
QByteArray encode(const T& value)
{
    const QJsonValue json = write(value);
    if (json.isArray())
        return QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact);
    return QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact);
}

// Hashing over every field, for records that a list diffs by value.
template <class T>
std::size_t hashValue(const T& value, std::size_t seed = 0)
{
    if constexpr (Record<T>) {
        std::apply(
            [&](const auto&... fields) { ((seed = hashValue(value.*(fields.member), seed)), ...); },
            T::jsonFields());
        return seed;
    } else if constexpr (IsOptional<T>::value) {
        return value ? hashValue(*value, qHash(1, seed)) : qHash(0, seed);
    } else if constexpr (requires {
                             value.begin();
                             value.end();
                         } &&
                         !std::is_same_v<T, QString>) {
        for (const auto& item : value)
            seed = hashValue(item, seed);
        return seed;
    } else if constexpr (std::is_same_v<T, QJsonValue>) {
        return qHash(QJsonDocument(value.toObject()).toJson(), seed);
    } else {
        return qHash(value, seed);
    }
}

} // namespace vl::json

// VL_JSON_FIELDS(Type, a, b, c) declares the fields a, b, c of Type under the JSON keys "a", "b",
// "c", in that order.
#define VL_JSON_PARENS ()
#define VL_JSON_EXPAND(...) VL_JSON_EXPAND3(VL_JSON_EXPAND3(VL_JSON_EXPAND3(__VA_ARGS__)))
#define VL_JSON_EXPAND3(...) VL_JSON_EXPAND2(VL_JSON_EXPAND2(VL_JSON_EXPAND2(__VA_ARGS__)))
#define VL_JSON_EXPAND2(...) VL_JSON_EXPAND1(VL_JSON_EXPAND1(VL_JSON_EXPAND1(__VA_ARGS__)))
#define VL_JSON_EXPAND1(...) __VA_ARGS__
#define VL_JSON_FOR_EACH(macro, ...)                                                               \
    __VA_OPT__(VL_JSON_EXPAND(VL_JSON_FOR_EACH_HELPER(macro, __VA_ARGS__)))
#define VL_JSON_FOR_EACH_HELPER(macro, a1, ...)                                                    \
    macro(a1) __VA_OPT__(, VL_JSON_FOR_EACH_AGAIN VL_JSON_PARENS(macro, __VA_ARGS__))
#define VL_JSON_FOR_EACH_AGAIN() VL_JSON_FOR_EACH_HELPER
#define VL_JSON_FIELD(name) ::vl::json::field(#name, &Self::name)
#define VL_JSON_FIELDS(Type, ...)                                                                  \
    static constexpr auto jsonFields()                                                             \
    {                                                                                              \
        using Self = Type;                                                                         \
        return std::make_tuple(VL_JSON_FOR_EACH(VL_JSON_FIELD, __VA_ARGS__));                      \
    }
#define VL_JSON_NO_FIELDS                                                                          \
    static constexpr auto jsonFields()                                                             \
    {                                                                                              \
        return std::tuple<>{};                                                                     \
    }
