#include "Widgets.h"

#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest-spi.h>

using namespace quillon::test;

namespace {

QDialog *namedDialog(const char *name)
{
    auto *d = new QDialog;
    d->setAttribute(Qt::WA_DeleteOnClose);
    d->setObjectName(QString::fromLatin1(name));
    return d;
}

} // namespace

TEST(ModalScript, AnswersTheExpectedDialog)
{
    ModalScript script;
    script.expect(QStringLiteral("dlgOne"), [](QWidget *d) { static_cast<QDialog *>(d)->accept(); });
    EXPECT_EQ(namedDialog("dlgOne")->exec(), QDialog::Accepted);
    EXPECT_EQ(script.pending(), 0);
    EXPECT_EQ(script.answered(), QStringList{"dlgOne"});
}

TEST(ModalScript, ExpectedDialogThatNeverComesFailsInsteadOfHanging)
{
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.expect(QStringLiteral("dlgNever"), [](QWidget *) {});
        },
        "never came up");
}

TEST(ModalScript, UnexpectedDialogFailsAndIsClosed)
{
    int result = -1;
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            result = namedDialog("dlgSurprise")->exec();
        },
        "unexpected modal dialog");
    EXPECT_EQ(result, QDialog::Rejected);
}

TEST(ModalScript, DialogLeftUpByItsAnswerFailsAndIsClosed)
{
    int result = -1;
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.expect(QStringLiteral("dlgStuck"), [](QWidget *) {});
            result = namedDialog("dlgStuck")->exec();
        },
        "stayed up");
    EXPECT_EQ(result, QDialog::Rejected);
}

TEST(FindControl, MissingControlFailsLoudly)
{
    QWidget form;
    form.setObjectName(QStringLiteral("frmTest"));
    auto *box = new QLineEdit(&form);
    box->setObjectName(QStringLiteral("txtGolfer"));
    EXPECT_EQ(findControl<QLineEdit>(&form, QStringLiteral("txtGolfer")), box);
    EXPECT_NONFATAL_FAILURE(findControl<QLineEdit>(&form, QStringLiteral("txtNothing")), "no control");
}

TEST(TypeInto, TypesKeyByKey)
{
    QWidget form;
    auto *box = new QLineEdit(&form);
    box->setObjectName(QStringLiteral("txtGolfer"));
    form.show();
    typeInto(&form, QStringLiteral("txtGolfer"), QStringLiteral("O'Brien, Pat"));
    EXPECT_EQ(box->text(), QStringLiteral("O'Brien, Pat"));
}
