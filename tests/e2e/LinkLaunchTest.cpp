#include "tests/support/SandboxProcess.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl::test;

namespace {

// `velmora` itself, offscreen, with its own settings and runtime folders.
class LinkLaunchTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString(); }

    void TearDown() override
    {
        for (QProcess* client : clients) {
            client->terminate();
            if (!client->waitForFinished(3000))
                client->kill();
            client->waitForFinished(3000);
            delete client;
        }
    }

    QProcess* launch(const QStringList& args)
    {
        auto* client = new QProcess;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VELMORA_SITE"), sandbox.site());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path() + "/config");
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.path() + "/cache");
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
        client->setProcessEnvironment(environment);
        client->start(QStringLiteral(VELMORA_APP_PATH), args);
        clients << client;
        return client;
    }

    // Whether the sandbox was asked for this listing's detail.
    bool detailAsked(const QString& ref) const
    {
        const QString path = QStringLiteral("/api/app/v1/jobs/") + ref;
        for (const auto& entry : sandbox.devGet(QStringLiteral("/dev/requests")).toArray()) {
            if (entry.toObject().value(QStringLiteral("path")).toString() == path)
                return true;
        }
        return false;
    }

    bool listening() const
    {
        return !QDir(runtime.path())
                    .entryList({QStringLiteral("velmora-*.sock")}, QDir::System)
                    .isEmpty();
    }

    SandboxProcess sandbox;
    QTemporaryDir home;
    QTemporaryDir runtime;
    QList<QProcess*> clients;
};

} // namespace

TEST_F(LinkLaunchTest, AWebLinkGivenAtLaunchOpensItsListing)
{
    launch({QStringLiteral("http://localhost:4321/en/vacancy/vl30011-cook")});
    EXPECT_TRUE(QTest::qWaitFor([&] { return detailAsked(QStringLiteral("VL30011")); }, 15000));
}

TEST_F(LinkLaunchTest, ASecondLaunchHandsItsLinkToTheFirstAndEnds)
{
    QProcess* first = launch({});
    ASSERT_TRUE(QTest::qWaitFor([&] { return listening(); }, 15000));

    QProcess* second = launch({QStringLiteral("http://localhost:4321/ka/vacancy/vl30021-x")});
    ASSERT_TRUE(second->waitForFinished(10000));
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return detailAsked(QStringLiteral("VL30021")); }, 10000));
    EXPECT_EQ(first->state(), QProcess::Running);

    // A gig link from outside opens nothing, and the launch still ends.
    QProcess* third = launch({QStringLiteral("http://localhost:4321/gig/vl30031-x")});
    ASSERT_TRUE(third->waitForFinished(10000));
    QTest::qWait(300);
    EXPECT_FALSE(detailAsked(QStringLiteral("VL30031")));
}
