#pragma once

#include <QCoroTask>
#include <QStringList>

namespace vl {
class AppContext;
}

namespace vl::cli {

// `seeker post JSON | contact REF MESSAGE`: posting a seeker profile, and an employer writing
// to one, as their sheets do.
QCoro::Task<int> runSeeker(AppContext& context, QStringList args);

} // namespace vl::cli
