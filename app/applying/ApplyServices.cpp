#include "app/applying/ApplyServices.h"

#include "app/shell/AppContext.h"

namespace vl {

ApplyServices ApplyServices::from(AppContext& context)
{
    return {ApplyingAPI(context.api()),
            context.candidate,
            context.candidateStore,
            context.seekerStore,
            context.auth,
            context.preferences(),
            context.review,
            context.appState};
}

} // namespace vl
