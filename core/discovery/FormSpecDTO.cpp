#include "core/discovery/FormSpecDTO.h"

namespace vl {

FormSpecDTO::Slot FormSpecDTO::slotOf(const QString& raw)
{
    if (raw == QLatin1StringView("required"))
        return Slot::required;
    if (raw == QLatin1StringView("off"))
        return Slot::off;
    return Slot::optional;
}

} // namespace vl
