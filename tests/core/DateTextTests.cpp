#include "core/DateText.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(DateText, WritesMonthDayYearWithoutLeadingZeros)
{
    const struct {
        QDate date;
        const char *expected;
    } cases[] = {
        {QDate(2026, 3, 7), "3/7/2026"},   {QDate(2026, 11, 22), "11/22/2026"},
        {QDate(2000, 1, 1), "1/1/2000"},   {QDate(1999, 12, 31), "12/31/1999"},
        {QDate(2024, 2, 29), "2/29/2024"}, {QDate(), ""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.expected);
        EXPECT_EQ(DateText(c.date), QString::fromLatin1(c.expected));
    }
}

TEST(IsoDate, WritesTheStorageForm)
{
    EXPECT_EQ(IsoDate(QDate(2026, 3, 7)), QStringLiteral("2026-03-07"));
    EXPECT_EQ(IsoDate(QDate(2026, 11, 22)), QStringLiteral("2026-11-22"));
    EXPECT_EQ(IsoDate(QDate(1999, 12, 31)), QStringLiteral("1999-12-31"));
    EXPECT_EQ(IsoDate(QDate()), QString());
}

TEST(ParseDateText, ReadsMonthDayYearAndIsoForms)
{
    const struct {
        const char *text;
        QDate expected;
    } cases[] = {
        {"3/7/2026", QDate(2026, 3, 7)},     {"03/07/2026", QDate(2026, 3, 7)},
        {"11/22/2026", QDate(2026, 11, 22)}, {"2/29/2024", QDate(2024, 2, 29)},
        {" 3/7/2026\t", QDate(2026, 3, 7)},  {"2026-03-07", QDate(2026, 3, 7)},
        {"1999-12-31", QDate(1999, 12, 31)},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ParseDateText(QString::fromLatin1(c.text)), c.expected);
    }
}

TEST(ParseDateText, TwoDigitYearsUseTheThirtyYearWindow)
{
    const struct {
        const char *text;
        QDate expected;
    } cases[] = {
        {"3/7/00", QDate(2000, 3, 7)}, {"3/7/26", QDate(2026, 3, 7)}, {"3/7/29", QDate(2029, 3, 7)},
        {"3/7/30", QDate(1930, 3, 7)}, {"3/7/99", QDate(1999, 3, 7)}, {"2/29/00", QDate(2000, 2, 29)},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ParseDateText(QString::fromLatin1(c.text)), c.expected);
    }
}

TEST(ParseDateText, RejectsMalformedTextAndImpossibleDays)
{
    const char *const cases[] = {
        "",           "abc",     "2/29/2025",  "2/30/2026", "13/1/2026", "0/1/2026",   "1/0/2026",
        "4/31/2026",  "3/7/202", "3/7/20261",  "3-7-2026",  "2026-3-7",  "2026/03/07", "3/7/2026x",
        "2026-02-30", "3/7",     "123/7/2026", "3//2026",   "2/29/30",   "+3/7/2026",
    };
    for (const char *text : cases) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(ParseDateText(QString::fromLatin1(text)).isValid());
    }
    // Digits of other scripts are not read as a date.
    EXPECT_FALSE(ParseDateText(QStringLiteral("\u0663/\u0667/\u0662\u0660\u0662\u0666")).isValid());
}

TEST(DateText, RoundTripsThroughBothTextForms)
{
    // Every day of 1999-2001 (leap and century years included) and a sample beyond.
    for (QDate date(1999, 1, 1); date <= QDate(2001, 12, 31); date = date.addDays(1)) {
        ASSERT_EQ(ParseDateText(DateText(date)), date) << DateText(date).toStdString();
        ASSERT_EQ(ParseDateText(IsoDate(date)), date) << IsoDate(date).toStdString();
    }
    for (const QDate &date :
         {QDate(1900, 2, 28), QDate(2100, 12, 31), QDate(2026, 11, 22), QDate(1753, 1, 1)}) {
        EXPECT_EQ(ParseDateText(DateText(date)), date);
        EXPECT_EQ(ParseDateText(IsoDate(date)), date);
    }
}

} // namespace
} // namespace quillon
