#pragma once

#include "app/applying/ApplyingAPI.h"
#include "app/applying/LastCv.h"

namespace vl {

class AppContext;
class AppState;
class CandidateAuth;
class CandidateStore;
class Preferences;
class ReviewAsk;
class SeekerStore;
class AuthManager;

// What the applying models share from the composition root.
struct ApplyServices {
    ApplyingAPI api;
    CandidateAuth& auth;
    CandidateStore& store;
    SeekerStore& seekerStore;
    AuthManager& employer;
    Preferences& preferences;
    ReviewAsk& review;
    AppState& state;
    QString lastCvFolder = LastCv::defaultFolder();

    static ApplyServices from(AppContext& context);
};

} // namespace vl
