#pragma once

#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

// The application form an employer asked for.
struct FormSpecDTO {
    enum class Slot { required, optional, off };

    struct Field {
        QString type;
        QString id;
        QString label;
        QString help;
        bool required = false;
        std::optional<std::vector<QString>> options;

        VL_JSON_FIELDS(Field, type, id, label, help, required, options)
        bool operator==(const Field&) const = default;
    };

    int v = 0;
    QString cv;
    QString message;
    QString phone;
    std::vector<Field> fields;

    VL_JSON_FIELDS(FormSpecDTO, v, cv, message, phone, fields)
    bool operator==(const FormSpecDTO&) const = default;

    // The slots stay strings on the wire; a value that names no slot counts as optional.
    static Slot slotOf(const QString& raw);
    Slot cvSlot() const { return slotOf(cv); }
    Slot messageSlot() const { return slotOf(message); }
    Slot phoneSlot() const { return slotOf(phone); }
};

} // namespace vl
