#include "app/hiring/LoginSheet.h"

#include "app/window/MainWindow.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/ui/Screenshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

// A window against a real sandbox, with the sign-in sheet open over it.
class SignIn : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context = makeContext({sandbox.site()});
        window = std::make_unique<MainWindow>(*context);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        button("vl.account.signIn")->click();
        button("vl.door.hiring")->click();
        sheet = window->findChild<LoginSheet*>();
        ASSERT_TRUE(sheet && sheet->isVisible());
    }

    template <class T>
    T* in(QWidget* parent, const char* name)
    {
        return parent->findChild<T*>(QString::fromLatin1(name));
    }
    QPushButton* button(const char* name) { return in<QPushButton>(window.get(), name); }
    QLabel* label(const char* name) { return in<QLabel>(window.get(), name); }
    QLineEdit* field(const char* name) { return in<QLineEdit>(window.get(), name); }

    void type(const char* name, const QString& text)
    {
        QLineEdit* edit = field(name);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    bool settles()
    {
        return QTest::qWaitFor([this] { return !sheet || !sheet->form().working(); }, 10000);
    }

    // The paths the client has asked the sandbox for so far, oldest first.
    QStringList asked()
    {
        QStringList paths;
        for (const QJsonValue& entry : sandbox.devGet(QStringLiteral("/dev/requests")).toArray())
            paths.prepend(entry.toObject().value(QStringLiteral("path")).toString());
        return paths;
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context;
    std::unique_ptr<MainWindow> window;
    QPointer<LoginSheet> sheet;
};

const QString address = QStringLiteral("hr@batumibay.ge");

} // namespace

TEST_F(SignIn, AnAddressWithoutADotIsRefusedHereAndNothingIsSent)
{
    EXPECT_EQ(label("vl.loginSheet.title")->text(), QStringLiteral("Sign in"));
    EXPECT_EQ(label("vl.loginSheet.subtitle")->text(), L10n::text(Key::signInSub, Lang::en));
    EXPECT_FALSE(label("vl.loginSheet.error")->isVisible());
    // There is no passkey on this desktop, so nothing offers one.
    for (QPushButton* each : sheet->findChildren<QPushButton*>())
        EXPECT_NE(each->text(), L10n::text(Key::empPasskeyLogin, Lang::en));

    // Return in the field presses the stage's button.
    type("vl.loginSheet.email", QStringLiteral("nino@example"));
    QTest::keyClick(field("vl.loginSheet.email"), Qt::Key_Return);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(label("vl.loginSheet.error")->isVisible());
    EXPECT_EQ(label("vl.loginSheet.error")->text(),
              QStringLiteral("Please enter a valid email address."));
    EXPECT_EQ(field("vl.loginSheet.email")->text(), QStringLiteral("nino@example"));
    EXPECT_TRUE(button("vl.loginSheet.sendCode")->isVisible());
    EXPECT_FALSE(asked().contains(QStringLiteral("/api/app/v1/auth/request")));
    saveScreenshot(window.get(), QStringLiteral("signin-bad-address-en"));

    // Closing the sheet leaves the window signed out.
    button("vl.loginSheet.close")->click();
    EXPECT_FALSE(sheet && sheet->isVisible());
    EXPECT_FALSE(context->auth.token());
}

TEST_F(SignIn, TheCodeSignsInAfterAWrongOneAndTheSidebarShowsTheEmployer)
{
    // A slow answer shows the work under way and keeps both hands off the buttons.
    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"POST","path":"/api/app/v1/auth/request","mode":"slow",)"
                    R"("delay":0.8})");
    type("vl.loginSheet.email", address);
    button("vl.loginSheet.sendCode")->click();
    EXPECT_TRUE(sheet->form().working());
    EXPECT_TRUE(in<QProgressBar>(sheet, "vl.loginSheet.busy")->isVisible());
    EXPECT_FALSE(button("vl.loginSheet.sendCode")->isEnabled());
    EXPECT_TRUE(field("vl.loginSheet.email")->isReadOnly());
    saveScreenshot(window.get(), QStringLiteral("signin-working-en"));
    ASSERT_TRUE(settles());

    EXPECT_EQ(sheet->form().stage(), EmployerLoginForm::Stage::code);
    EXPECT_EQ(label("vl.loginSheet.title")->text(), QStringLiteral("Check your inbox"));
    EXPECT_EQ(label("vl.loginSheet.sentTo")->text(), address);
    EXPECT_EQ(field("vl.loginSheet.code")->placeholderText(), QStringLiteral("000000"));
    EXPECT_FALSE(button("vl.loginSheet.sendCode")->isVisible());
    EXPECT_TRUE(button("vl.loginSheet.verify")->isEnabled());
    EXPECT_FALSE(in<QProgressBar>(sheet, "vl.loginSheet.busy")->isVisible());
    const QString code = sandbox.lastCode(address);
    ASSERT_EQ(code.size(), 6) << sandbox.lastMailBody(address).toStdString();

    QString wrong = code;
    wrong[0] = QChar(u'0' + (code[0].digitValue() + 1) % 10);
    type("vl.loginSheet.code", wrong);
    button("vl.loginSheet.verify")->click();
    ASSERT_TRUE(settles());
    EXPECT_EQ(label("vl.loginSheet.error")->text(),
              QStringLiteral("That code is wrong or expired. Request a new one."));
    EXPECT_EQ(field("vl.loginSheet.code")->text(), wrong);
    EXPECT_EQ(sheet->form().stage(), EmployerLoginForm::Stage::code);
    EXPECT_FALSE(context->auth.token());
    saveScreenshot(window.get(), QStringLiteral("signin-wrong-code-en"));

    type("vl.loginSheet.code", code);
    button("vl.loginSheet.verify")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sheet || !sheet->isVisible(); }, 10000));
    ASSERT_TRUE(QTest::qWaitFor([this] { return context->auth.me().has_value(); }, 10000));
    const QString name = context->auth.me()->employer.name;
    EXPECT_FALSE(name.isEmpty());
    EXPECT_EQ(label("vl.account.name")->text(), name);
    // The service carries the employer's address over to the job seeker side at sign-in, so
    // the account shows both identities.
    EXPECT_TRUE(context->candidate.adoptedFromEmployer());
    EXPECT_TRUE(label("vl.account.role")->text().startsWith(QStringLiteral("Employer")));
    EXPECT_FALSE(button("vl.account.signIn")->isVisible());
    EXPECT_TRUE(button("vl.account.signOut")->text().startsWith(QStringLiteral("Sign out")));
    saveScreenshot(window.get(), QStringLiteral("signed-in-en"));
    window->findChild<QAction*>(QStringLiteral("vl.action.lang.ka"))->trigger();
    EXPECT_TRUE(
        label("vl.account.role")->text().startsWith(L10n::text(Key::macAsEmployer, Lang::ka)));
    saveScreenshot(window.get(), QStringLiteral("signed-in-ka"));
}

TEST_F(SignIn, GoingBackKeepsTheAddressAndSigningOutAsksFirst)
{
    type("vl.loginSheet.email", address);
    button("vl.loginSheet.sendCode")->click();
    ASSERT_TRUE(settles());
    ASSERT_EQ(sheet->form().stage(), EmployerLoginForm::Stage::code);
    type("vl.loginSheet.code", QStringLiteral("12345"));
    QTest::keyClick(field("vl.loginSheet.code"), Qt::Key_Return);
    EXPECT_EQ(label("vl.loginSheet.error")->text(), L10n::text(Key::errCode, Lang::en));
    button("vl.loginSheet.changeEmail")->click();
    EXPECT_EQ(sheet->form().stage(), EmployerLoginForm::Stage::email);
    EXPECT_EQ(field("vl.loginSheet.email")->text(), address);
    EXPECT_FALSE(label("vl.loginSheet.error")->isVisible());

    button("vl.loginSheet.sendCode")->click();
    ASSERT_TRUE(settles());
    type("vl.loginSheet.code", sandbox.lastCode(address));
    button("vl.loginSheet.verify")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sheet || !sheet->isVisible(); }, 10000));
    ASSERT_TRUE(context->auth.me());

    // Declining keeps the session; confirming tells the service and forgets it here.
    button("vl.account.signOut")->click();
    auto* ask = window->findChild<QMessageBox*>(QStringLiteral("vl.account.signOutConfirm"));
    ASSERT_TRUE(ask && ask->isVisible());
    EXPECT_EQ(ask->text(), QStringLiteral("Sign out of this account?"));
    saveScreenshot(window.get(), QStringLiteral("signout-confirm-en"));
    in<QPushButton>(ask, "vl.account.signOutConfirm.no")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(context->auth.token());
    EXPECT_FALSE(asked().contains(QStringLiteral("/api/app/v1/auth/logout")));

    button("vl.account.signOut")->click();
    ask = window->findChild<QMessageBox*>(QStringLiteral("vl.account.signOutConfirm"));
    ASSERT_TRUE(ask);
    in<QPushButton>(ask, "vl.account.signOutConfirm.yes")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !context->auth.token(); }, 10000));
    EXPECT_TRUE(asked().contains(QStringLiteral("/api/app/v1/auth/logout")));
    EXPECT_EQ(label("vl.account.name")->text(), QStringLiteral("Not signed in"));
    EXPECT_TRUE(button("vl.account.signIn")->isVisible());
    EXPECT_FALSE(button("vl.account.signOut")->isVisible());
}
