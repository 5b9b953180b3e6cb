#include "course/CourseTotals.h"

#include "core/QuillonError.h"

#include <functional>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

int failureOf(const std::function<void()> &run)
{
    try {
        run();
    } catch (const QuillonError &e) {
        return e.number();
    }
    return 0;
}

QStringList row(const QString &front, const QString &back)
{
    QStringList boxes;
    for (int i = 0; i < 9; ++i)
        boxes << front;
    for (int i = 0; i < 9; ++i)
        boxes << back;
    return boxes;
}

} // namespace

TEST(SumRow, BlankBoxesCountZeroAndSumsBelowOneShowBlank)
{
    RowTotals t = SumRow(row("", ""));
    EXPECT_EQ(t.out, QString());
    EXPECT_EQ(t.in, QString());
    EXPECT_EQ(t.total, QString());

    t = SumRow(row("4", ""));
    EXPECT_EQ(t.out, QStringLiteral("36"));
    EXPECT_EQ(t.in, QString());
    EXPECT_EQ(t.total, QStringLiteral("36"));

    t = SumRow(row("", "5"));
    EXPECT_EQ(t.out, QString());
    EXPECT_EQ(t.in, QStringLiteral("45"));
    EXPECT_EQ(t.total, QStringLiteral("45"));

    QStringList partial = row("", "");
    partial[0] = "3";
    partial[17] = "5";
    t = SumRow(partial);
    EXPECT_EQ(t.out, QStringLiteral("3"));
    EXPECT_EQ(t.in, QStringLiteral("5"));
    EXPECT_EQ(t.total, QStringLiteral("8"));

    t = SumRow(row("999", "999"));
    EXPECT_EQ(t.out, QStringLiteral("8991"));
    EXPECT_EQ(t.total, QStringLiteral("17982"));
}

TEST(SumRow, PastedTextThatIsNotANumberIsATypeMismatchAndAHugeSumAnOverflow)
{
    QStringList boxes = row("4", "4");
    boxes[3] = "a";
    EXPECT_EQ(failureOf([&] { SumRow(boxes); }), QuillonError::TypeMismatch);
    boxes = row("", "");
    boxes[0] = "30000";
    boxes[1] = "30000";
    EXPECT_EQ(failureOf([&] { SumRow(boxes); }), QuillonError::Overflow);
}

TEST(RatingSpinners, IncreaseOnABlankBoxGivesOneTenthAndDecreaseFails)
{
    EXPECT_EQ(RatingIncrease(QString()), QStringLiteral("0.1"));
    EXPECT_EQ(failureOf([] { RatingDecrease(QString()); }), QuillonError::TypeMismatch);
}

TEST(RatingSpinners, StepATenthInTheFormatWithOneDecimal)
{
    EXPECT_EQ(RatingIncrease(QStringLiteral("71.5")), QStringLiteral("71.6"));
    EXPECT_EQ(RatingIncrease(QStringLiteral("71")), QStringLiteral("71.1"));
    EXPECT_EQ(RatingDecrease(QStringLiteral("71.5")), QStringLiteral("71.4"));
    EXPECT_EQ(RatingIncrease(QStringLiteral("0.1")), QStringLiteral(".2"));
    EXPECT_EQ(RatingDecrease(QStringLiteral("0.1")), QStringLiteral(".0"));
    EXPECT_EQ(RatingIncrease(QStringLiteral("999.9")), QStringLiteral("1000.0")) << "ratings have no limit";
    EXPECT_EQ(failureOf([] { RatingIncrease(QStringLiteral("7.2.3")); }), QuillonError::TypeMismatch);
}

TEST(SlopeSpinners, StopAt155And55ExactlyButATyped40StepsUp)
{
    EXPECT_EQ(SlopeIncrease(QStringLiteral("154")), QStringLiteral("155"));
    EXPECT_EQ(SlopeIncrease(QStringLiteral("155")), QStringLiteral("155"));
    EXPECT_EQ(SlopeIncrease(QStringLiteral("200")), QStringLiteral("200"));
    EXPECT_EQ(SlopeDecrease(QStringLiteral("56")), QStringLiteral("55"));
    EXPECT_EQ(SlopeDecrease(QStringLiteral("55")), QStringLiteral("55"));
    EXPECT_EQ(SlopeDecrease(QStringLiteral("40")), QStringLiteral("40"));
    EXPECT_EQ(SlopeIncrease(QStringLiteral("40")), QStringLiteral("41"));
    EXPECT_EQ(SlopeIncrease(QStringLiteral("41")), QStringLiteral("42"));
    EXPECT_EQ(SlopeDecrease(QStringLiteral("200")), QStringLiteral("199"));
}

TEST(SlopeSpinners, OnABlankBoxIncreaseFailsAndDecreaseDoesNothing)
{
    EXPECT_EQ(failureOf([] { SlopeIncrease(QString()); }), QuillonError::TypeMismatch);
    EXPECT_EQ(SlopeDecrease(QString()), QString());
}

TEST(RatingText, OneDecimalAndNoLeadingZero)
{
    EXPECT_EQ(RatingText(71), QStringLiteral("71.0"));
    EXPECT_EQ(RatingText(35.5), QStringLiteral("35.5"));
    EXPECT_EQ(RatingText(0.5), QStringLiteral(".5"));
    EXPECT_EQ(RatingText(72.25), QStringLiteral("72.3"));
}
