#include "app/identity/CandidateGateView.h"

#include "app/window/AccountScreen.h"
#include "app/window/MainWindow.h"
#include "core/identity/TotpKey.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/support/TotpCode.h"
#include "tests/ui/Screenshot.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

class GateView : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context = makeContext({sandbox.site()});
        context->appState.setLang(Lang::en);
        window = std::make_unique<MainWindow>(*context);
        window->resize(1000, 720);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    template <class T = QWidget>
    T* part(const char* name)
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* found = top->findChild<T*>(QString::fromLatin1(name)))
                return found;
        return nullptr;
    }

    bool shown(const char* name)
    {
        QWidget* widget = part(name);
        return widget && widget->isVisible();
    }

    void type(const char* name, const QString& text)
    {
        auto* edit = part<QLineEdit>(name);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    CandidateGateView* openGate()
    {
        part<QPushButton>("vl.account.signIn")->click();
        part<QPushButton>("vl.door.work")->click();
        auto* gate = window->findChild<CandidateGateView*>();
        EXPECT_TRUE(gate && gate->isVisible());
        return gate;
    }

    bool settles(CandidateGateView* gate)
    {
        return QTest::qWaitFor([gate] { return !gate->gate().busy(); }, 10000);
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context;
    std::unique_ptr<MainWindow> window;
};

} // namespace

TEST_F(GateView, ShowsEachStepInTurnAndGivesWayToTheAccountOnceSignedIn)
{
    CandidateGateView* gate = openGate();
    ASSERT_TRUE(gate);
    EXPECT_EQ(part<QLabel>("vl.gate.title")->text(), QStringLiteral("Sign in"));
    EXPECT_TRUE(shown("vl.gate.google"));
    EXPECT_FALSE(shown("vl.gate.passkeyLogin")); // no authenticator on this computer

    type("vl.gate.email", QStringLiteral("nobody"));
    part<QPushButton>("vl.gate.sendCode")->click();
    EXPECT_EQ(part<QLabel>("vl.gate.error")->text(), L10n::text(Key::errEmail, Lang::en));

    const QString email = QStringLiteral("giorgi.kapanadze@gmail.com");
    type("vl.gate.email", email);
    part<QPushButton>("vl.gate.sendCode")->click();
    ASSERT_TRUE(settles(gate));
    EXPECT_TRUE(shown("vl.gate.code"));
    EXPECT_EQ(gate->window()->focusWidget(), part<QLineEdit>("vl.gate.code"));
    EXPECT_TRUE(part<QLabel>("vl.gate.codeSent")->text().endsWith(email));
    EXPECT_FALSE(shown("vl.gate.error"));

    type("vl.gate.code", sandbox.lastCode(email));
    part<QPushButton>("vl.gate.codeContinue")->click();
    ASSERT_TRUE(settles(gate));
    EXPECT_TRUE(shown("vl.gate.authApp"));
    EXPECT_FALSE(shown("vl.gate.passkeyCreate"));
    EXPECT_FALSE(shown("vl.gate.continueMail"));
    EXPECT_EQ(part<QLabel>("vl.gate.enrollHeading")->text(),
              L10n::text(Key::candFactorEnroll, Lang::en));

    part<QPushButton>("vl.gate.authApp")->click();
    ASSERT_TRUE(settles(gate));
    ASSERT_TRUE(shown("vl.gate.secret"));
    const QString secret = gate->gate().totpSecret();
    EXPECT_EQ(part<QLabel>("vl.gate.secret")->text(), groupedSecret(secret));
    EXPECT_EQ(gate->window()->focusWidget(), part<QLineEdit>("vl.gate.totpCode"));
    QTest::qWait(50);
    // The code stands clear of the key below it.
    EXPECT_LE(part<QLabel>("vl.gate.qr")->geometry().bottom(),
              part<QLabel>("vl.gate.secret")->geometry().top());
    saveScreenshot(window.get(), QStringLiteral("gate-totp-en"));

    // The QR code beside the key reads back as the authenticator's link.
    QTemporaryDir folder;
    const QString shot = folder.filePath(QStringLiteral("qr.png"));
    ASSERT_TRUE(part<QLabel>("vl.gate.qr")->pixmap().save(shot));
    QProcess zbar;
    zbar.start(QStringLiteral("zbarimg"), {QStringLiteral("--raw"), QStringLiteral("-q"), shot});
    ASSERT_TRUE(zbar.waitForFinished(10000));
    EXPECT_EQ(QString::fromUtf8(zbar.readAllStandardOutput()).trimmed(), otpauthUri(secret));
    part<QPushButton>("vl.gate.copySecret")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), secret);

    type("vl.gate.totpCode", totpCode(secret));
    part<QPushButton>("vl.gate.totpContinue")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return context->candidate.signedIn(); }, 10000));
    EXPECT_TRUE(shown("vl.accountScreen"));
    EXPECT_TRUE(shown("vl.recoveryNotice"));
    part<QPushButton>("vl.recoveryNotice.copy")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              context->candidate.pendingRecovery()->join(u'\n'));
    saveScreenshot(window.get(), QStringLiteral("gate-recovery-en"));
    EXPECT_EQ(part<QLabel>("vl.accountScreen.name")->text(), email);
    part<QPushButton>("vl.recoveryNotice.done")->click();
    EXPECT_FALSE(shown("vl.recoveryNotice"));
    EXPECT_FALSE(context->candidate.pendingRecovery());
}

TEST_F(GateView, TheFirstStepInEachLanguage)
{
    for (const Lang lang : allLangs) {
        context->appState.setLang(lang);
        CandidateGateView* gate = openGate();
        ASSERT_TRUE(gate);
        EXPECT_EQ(part<QLabel>("vl.gate.body")->text(), L10n::text(Key::candSignBody, lang));
        EXPECT_EQ(part<QPushButton>("vl.gate.google")->text(),
                  L10n::text(Key::continueGoogle, lang));
        QTest::qWait(100); // the sidebar lays out the account area's new lines
        saveScreenshot(window.get(), QStringLiteral("gate-") + rawValue(lang));
        part<QPushButton>("vl.accountSheet.close")->click();
        QTest::qWait(50);
    }
}

TEST_F(GateView, TheAccountOffersEachWayOutWithAConfirmationAndStoresTheSide)
{
    context->candidate.completeSignIn(QStringLiteral("nino@example.ge"));
    part<QToolButton>("vl.account.more")->menu()->aboutToShow();
    auto* menu = part<QMenu>("vl.account.menu");
    QStringList entries;
    for (QAction* action : menu->actions())
        if (!action->text().isEmpty())
            entries << action->text();
    EXPECT_EQ(entries, (QStringList{QStringLiteral("Working as"),
                                    QStringLiteral("Looking for work"), QStringLiteral("Hiring"),
                                    QStringLiteral("Sign out"), QStringLiteral("Account")}));
    menu->findChild<QAction*>(QStringLiteral("vl.account.open"))->trigger();
    ASSERT_TRUE(shown("vl.accountScreen"));
    EXPECT_EQ(part<QLabel>("vl.accountScreen.role")->text(), QStringLiteral("Job seeker"));
    EXPECT_FALSE(shown("vl.accountScreen.delete")); // an employer's account only

    part<QRadioButton>("vl.accountScreen.hiring")->click();
    EXPECT_EQ(preferencesOf(*context).string(QStringLiteral("vl.role")), QStringLiteral("hiring"));

    part<QPushButton>("vl.accountScreen.signOut")->click();
    auto* ask = part<QMessageBox>("vl.accountScreen.signOut.confirm");
    ASSERT_TRUE(ask);
    EXPECT_EQ(ask->text(), QStringLiteral("Sign out of this account?"));
    saveScreenshot(window.get(), QStringLiteral("account-sign-out-en"));
    ask->findChild<QPushButton*>(QStringLiteral("vl.accountScreen.signOut.confirm.no"))->click();
    EXPECT_TRUE(context->candidate.signedIn());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(part<QMessageBox>("vl.accountScreen.signOut.confirm")); // gone once closed
    part<QPushButton>("vl.accountScreen.signOut")->click();
    part<QMessageBox>("vl.accountScreen.signOut.confirm")
        ->findChild<QPushButton*>(QStringLiteral("vl.accountScreen.signOut.confirm.yes"))
        ->click();
    EXPECT_FALSE(context->candidate.signedIn());
    EXPECT_TRUE(context->candidate.declined());
}
