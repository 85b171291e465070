#include "app/applying/SeekerPostSheetModel.h"

#include "app/identity/SeekerStore.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QDateTime>
#include <QPointer>

namespace vl {

namespace {

// The service names the post's fields by their keys on the wire.
QString formField(const QString& wire)
{
    if (wire == QLatin1StringView("title"))
        return QStringLiteral("headline");
    if (wire == QLatin1StringView("description"))
        return QStringLiteral("about");
    return wire;
}

} // namespace

SeekerPostSheetModel::SeekerPostSheetModel(ApplyServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
{
}

QCoro::Task<> SeekerPostSheetModel::send()
{
    if (m_working || sent())
        co_return;
    const Lang lang = m_services.state.lang();
    if (const auto missing = form.missingField()) {
        m_error = L10n::text(L10n::Key::errRequired, lang);
        m_badField = missing;
        Q_EMIT changed();
        co_return;
    }
    m_error.reset();
    m_badField.reset();
    m_working = true;
    Q_EMIT changed();
    QPointer self(this);
    const auto result = co_await m_services.api.postSeeker(form, this);
    if (!self)
        co_return;
    if (result) {
        SeekerStore& store = m_services.seekerStore;
        co_await store.open();
        SeekerProfileEntry entry{result->ref, result->manageKey, form.headline.trimmed(),
                                 QDateTime::currentDateTimeUtc()};
        co_await store.add(std::move(entry));
        if (!self)
            co_return;
        m_ref = result->ref;
    } else {
        const auto failure = SeekerPostForm::failure(result.error(), lang);
        m_error = failure.message;
        if (failure.field)
            m_badField = formField(*failure.field);
    }
    m_working = false;
    Q_EMIT changed();
}

} // namespace vl
