#include "app/profile/ProfileAPI.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

CandidateEntry application(const QString& ref)
{
    return {ref,
            QStringLiteral("k-") + ref,
            QStringLiteral("Barista"),
            QStringLiteral("Kodari"),
            QStringLiteral("application"),
            QDateTime::fromString(QStringLiteral("2026-05-01T10:00:00Z"), Qt::ISODate)};
}

} // namespace

TEST(CandidateStore, KeepsTheNewestFirstAcrossRestartsAndSignOuts)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    wait(context->candidateStore.open());
    EXPECT_TRUE(context->candidateStore.entries().empty());
    wait(context->candidateStore.add(application(QStringLiteral("A1"))));
    wait(context->candidateStore.add(application(QStringLiteral("A2"))));
    context->candidate.completeSignIn(QStringLiteral("a@b.ge"));
    wait(context->candidate.signOut());

    auto restarted = makeContext({QStringLiteral("http://127.0.0.1:9")});
    secretsOf(*restarted).items = secretsOf(*context).items;
    wait(restarted->candidateStore.open());
    const auto& entries = restarted->candidateStore.entries();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].ref, QStringLiteral("A2"));
    EXPECT_EQ(restarted->candidateStore.entry(QStringLiteral("A1"))->key, QStringLiteral("k-A1"));
    EXPECT_FALSE(restarted->candidateStore.entry(QStringLiteral("none")));
}

TEST(StoredIdentities, AnAddBeforeAnyOpenKeepsWhatTheStoreAlreadyHeld)
{
    auto first = makeContext({QStringLiteral("http://127.0.0.1:9")});
    wait(first->candidateStore.add(application(QStringLiteral("A1"))));
    wait(first->seekerStore.add(
        {QStringLiteral("S1"), QStringLiteral("key-1"), QStringLiteral("Cook"),
         QDateTime::fromString(QStringLiteral("2026-05-01"), Qt::ISODate)}));

    // A new run adds at once, before anybody opened the lists.
    auto second = makeContext({QStringLiteral("http://127.0.0.1:9")});
    secretsOf(*second).items = secretsOf(*first).items;
    wait(second->candidateStore.add(application(QStringLiteral("A2"))));
    wait(second->seekerStore.add(
        {QStringLiteral("S2"), QStringLiteral("key-2"), QStringLiteral("Driver"),
         QDateTime::fromString(QStringLiteral("2026-05-02"), Qt::ISODate)}));
    wait(second->candidateStore.open());
    ASSERT_EQ(second->candidateStore.entries().size(), 2u);
    EXPECT_EQ(second->candidateStore.entries()[0].ref, QStringLiteral("A2"));
    EXPECT_EQ(second->seekerStore.entries().size(), 2u);

    auto third = makeContext({QStringLiteral("http://127.0.0.1:9")});
    secretsOf(*third).items = secretsOf(*second).items;
    wait(third->candidateStore.open());
    wait(third->seekerStore.open());
    ASSERT_EQ(third->candidateStore.entries().size(), 2u);
    EXPECT_EQ(third->candidateStore.entry(QStringLiteral("A1"))->key, QStringLiteral("k-A1"));
    ASSERT_EQ(third->seekerStore.entries().size(), 2u);
    EXPECT_EQ(third->seekerStore.entries()[1].key, QStringLiteral("key-1"));
}

TEST(StoredIdentities, ACorruptItemReadsAsEmptyAndTheNextSaveReplacesIt)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    auto& items = secretsOf(*context).items;
    items.insert(QStringLiteral("candidate-apps"), QStringLiteral("[{\"ref\":1}"));
    items.insert(QStringLiteral("seeker-profiles"), QStringLiteral("{\"not\":\"a list\"}"));
    wait(context->candidateStore.open());
    wait(context->seekerStore.open());
    EXPECT_TRUE(context->candidateStore.entries().empty());
    EXPECT_TRUE(context->seekerStore.entries().empty());

    wait(context->seekerStore.add(
        {QStringLiteral("S1"), QStringLiteral("key"), QStringLiteral("Cook"),
         QDateTime::fromString(QStringLiteral("2026-05-01"), Qt::ISODate)}));
    const QJsonArray saved =
        QJsonDocument::fromJson(items.value(QStringLiteral("seeker-profiles")).toUtf8()).array();
    ASSERT_EQ(saved.size(), 1);
    EXPECT_EQ(saved[0][QStringLiteral("title")], QStringLiteral("Cook"));

    // A store that refuses writes leaves the list in memory as the truth.
    secretsOf(*context).mode = MemorySecretStore::Mode::refusesWrites;
    wait(context->candidateStore.add(application(QStringLiteral("B1"))));
    EXPECT_EQ(context->candidateStore.entries().size(), 1u);
}

TEST(ProfileAPI, SendsThePhotoAsAJpegPartAfterTheKey)
{
    SandboxProcess sandbox;
    ASSERT_TRUE(sandbox.started());
    auto context = makeContext({sandbox.site()});
    ProfileAPI profile(context->api());
    wait(
        profile.uploadPhoto(QByteArray("\xff\xd8jpeg"), QStringLiteral("K1"), &context->candidate));
    const QJsonObject sent =
        sandbox.devGet(QStringLiteral("/dev/requests")).toArray()[0].toObject();
    EXPECT_EQ(sent[QStringLiteral("path")], QStringLiteral("/api/profile-photo"));
    const QByteArray body =
        QByteArray::fromBase64(sent[QStringLiteral("body")].toString().toLatin1());
    const auto key = body.indexOf("name=\"key\"");
    const auto photo = body.indexOf("name=\"photo\"; filename=\"photo.jpg\"");
    EXPECT_GE(key, 0);
    EXPECT_GT(photo, key);
    EXPECT_TRUE(body.contains("Content-Type: image/jpeg"));
}
