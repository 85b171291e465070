#pragma once

// The employer's session records: who is signed in, their plan and their counters.

#include "core/json/Json.h"

#include <optional>

namespace vl {

struct EmployerProfile {
    QString name;
    QString email;
    QString locale;
    QString website;
    QString phone;
    std::optional<QString> logoUrl;

    VL_JSON_FIELDS(EmployerProfile, name, email, locale, website, phone, logoUrl)
    bool operator==(const EmployerProfile&) const = default;
};

// The answer to POST me.
struct ProfilePayload {
    EmployerProfile employer;

    VL_JSON_FIELDS(ProfilePayload, employer)
    bool operator==(const ProfilePayload&) const = default;
};

struct NextStepDTO {
    QString key;
    bool urgent = false;

    VL_JSON_FIELDS(NextStepDTO, key, urgent)
    bool operator==(const NextStepDTO&) const = default;
};

struct ProStateDTO {
    bool on = false;
    bool paid = false;
    std::optional<QString> until;
    std::optional<QString> source;
    bool cancelling = false;
    int bumps = 0;
    QString manageUrl;
    std::optional<QString> priceText;

    VL_JSON_FIELDS(ProStateDTO, on, paid, until, source, cancelling, bumps, manageUrl, priceText)
    bool operator==(const ProStateDTO&) const = default;
};

// The answer to GET me.
struct MePayload {
    EmployerProfile employer;
    int unread = 0;
    int listings = 0;
    int liveListings = 0;
    std::optional<int> pendingListings;
    std::optional<int> applications;
    std::optional<int> newApplications;
    std::optional<bool> hasMfa;
    std::optional<ProStateDTO> pro;
    std::optional<NextStepDTO> next;

    VL_JSON_FIELDS(MePayload, employer, unread, listings, liveListings, pendingListings,
                   applications, newApplications, hasMfa, pro, next)
    bool operator==(const MePayload&) const = default;
};

// The answer to POST auth/verify.
struct AuthVerifyPayload {
    QString token;
    EmployerProfile employer;
    std::optional<bool> seeker; // the same address also has a job seeker account

    VL_JSON_FIELDS(AuthVerifyPayload, token, employer, seeker)
    bool operator==(const AuthVerifyPayload&) const = default;
};

} // namespace vl
