#include "ui/NumericLineEdit.h"
#include "TestApp.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

struct KeyCase {
    int key;
    const char *text;
    bool accepted;
};

} // namespace

TEST(NumericLineEdit, KeysTakenAndDiscardedFromATable)
{
    const KeyCase cases[] = {
        {Qt::Key_0, "0", true},          {Qt::Key_5, "5", true},       {Qt::Key_9, "9", true},
        {Qt::Key_Backspace, "\b", true}, {Qt::Key_Return, "\r", true}, {Qt::Key_Enter, "\r", true},
        {Qt::Key_A, "a", false},         {Qt::Key_Minus, "-", false},  {Qt::Key_Period, ".", false},
        {Qt::Key_Space, " ", false},     {Qt::Key_Comma, ",", false},  {Qt::Key_Apostrophe, "'", false},
        {Qt::Key_Tab, "\t", true},       {Qt::Key_Left, "", true},     {Qt::Key_Delete, "", true},
    };
    for (const KeyCase &c : cases)
        EXPECT_EQ(NumericLineEdit::acceptsKey(c.key, QString::fromLatin1(c.text), Qt::NoModifier), c.accepted)
            << "key " << c.key;
}

TEST(NumericLineEdit, TypingKeepsTheDigitsOnly)
{
    NumericLineEdit box;
    box.show();
    QTest::keyClicks(&box, QStringLiteral("8a-7.2 x"));
    EXPECT_EQ(box.text(), QStringLiteral("872"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), QStringLiteral("87"));
}

TEST(NumericLineEdit, PastedTextKeepsItsDigits)
{
    NumericLineEdit box;
    box.show();
    box.setText(QStringLiteral("1"));
    box.setCursorPosition(1);
    QGuiApplication::clipboard()->setText(QStringLiteral("2a3 4"));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QStringLiteral("1234"));
    EXPECT_EQ(box.cursorPosition(), 4);
}

TEST(NumericLineEdit, DigitsOfAText)
{
    EXPECT_EQ(NumericLineEdit::digitsOf(QStringLiteral("a1b2c3")), QStringLiteral("123"));
    EXPECT_EQ(NumericLineEdit::digitsOf(QStringLiteral("-4.5")), QStringLiteral("45"));
    EXPECT_EQ(NumericLineEdit::digitsOf(QString()), QString());
}

TEST(NumericLineEdit, TakingTheFocusSelectsTheText)
{
    QWidget form;
    auto *other = new QLineEdit(&form);
    auto *box = new NumericLineEdit(&form);
    box->move(0, 40);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    box->setText(QStringLiteral("72"));
    other->setFocus();
    QApplication::processEvents();
    box->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(box->selectedText(), QStringLiteral("72"));
    QTest::keyClicks(box, QStringLiteral("9"));
    EXPECT_EQ(box->text(), QStringLiteral("9")) << "typing replaces the selected text";
}

TEST(SelectAllOnFocus, PlainBoxSelectsItsTextOnFocus)
{
    QWidget form;
    auto *other = new QLineEdit(&form);
    auto *box = new QLineEdit(&form);
    box->move(0, 40);
    SelectAllOnFocus(box);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    box->setText(QStringLiteral("Smith, John"));
    other->setFocus();
    QApplication::processEvents();
    box->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(box->selectedText(), QStringLiteral("Smith, John"));
}
