#include "app/hiring/QuotaStore.h"

namespace vl {

void QuotaStore::reset()
{
    m_lastFetched.reset();
    m_probing = false;
    Q_EMIT changed();
}

} // namespace vl
