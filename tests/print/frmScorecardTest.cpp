#include "print/frmScorecard.h"

#include "TestApp.h"
#include "TestPrinting.h"
#include "Widgets.h"
#include "print/ReportPainter.h"
#include "print/ScorecardData.h"

#include <QFrame>
#include <QLabel>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

constexpr int kScale = frmScorecard::kTwipsPerPixel;

// A place given in twips, in pixels of the card.
int px(int twips)
{
    return twips / kScale;
}

class ScorecardLayout : public ::testing::Test {
protected:
    QLabel *label(const QString &name) { return findControl<QLabel>(&card, name); }
    // The caption with this text; exactly one must stand on the card.
    QLabel *caption(const QString &text)
    {
        QLabel *found = nullptr;
        int count = 0;
        for (QLabel *l : card.findChildren<QLabel *>())
            if (l->text() == text) {
                found = l;
                ++count;
            }
        EXPECT_EQ(count, 1) << text.toStdString();
        return found;
    }

    TestApp app{false};
    frmScorecard card;
};

const QStringList kRowCaptions = {"Hole",       "Distance", "Par",        "Handicap",
                                  "Score",      "Putts",    "Fairway",    "Penalty",
                                  "Lost Balls", "Bunkers",  "Sand Saves", "Att. Saves"};

} // namespace

TEST_F(ScorecardLayout, ThePageIsTheCardsWhiteAreaAtTheFixedScale)
{
    EXPECT_EQ(card.objectName(), QStringLiteral("frmScorecard"));
    EXPECT_EQ(card.size(), QSize(px(11880), px(7050)));
    EXPECT_DOUBLE_EQ(double(card.width()) / card.height(), 11880.0 / 7050.0);
    EXPECT_TRUE(card.testAttribute(Qt::WA_DontShowOnScreen));
    EXPECT_FALSE(card.isVisible());
}

TEST_F(ScorecardLayout, TheColumnCaptionsRunFromHoleOneToNetAtTheirPlaces)
{
    const QStringList captions = {"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",   "Out", "10", "11",
                                  "12", "13", "14", "15", "16", "17", "18", "In", "Tot", "Hcp", "Net"};
    for (int i = 0; i <= 22; ++i)
        EXPECT_EQ(label(QStringLiteral("lblHoleCaption_%1").arg(i))->text(), captions.at(i)) << i;
    const auto left = [&](int i) { return label(QStringLiteral("lblHoleCaption_%1").arg(i))->x(); };
    EXPECT_EQ(left(0), px(1635));
    EXPECT_EQ(left(10), px(5820));
    EXPECT_EQ(left(9), px(5370));
    EXPECT_EQ(left(19), px(9585));
    EXPECT_EQ(left(20), px(10110));
    EXPECT_EQ(left(21), px(10545));
    EXPECT_EQ(left(22), px(10965));
    for (int i = 1; i <= 8; ++i) {
        EXPECT_EQ(left(i) - left(i - 1), px(405)) << i;
        EXPECT_EQ(left(10 + i) - left(9 + i), px(405)) << i;
    }
    // All along the "Hole" row.
    for (int i = 0; i <= 22; ++i)
        EXPECT_EQ(label(QStringLiteral("lblHoleCaption_%1").arg(i))->y(),
                  caption(QStringLiteral("Hole"))->y());
}

TEST_F(ScorecardLayout, TheRowsStandThreeHundredSixtyTwipsApartFromHoleToAttSaves)
{
    for (int r = 0; r < kRowCaptions.size(); ++r) {
        QLabel *row = caption(kRowCaptions.at(r));
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->y(), px(1680 + 360 * r)) << kRowCaptions.at(r).toStdString();
        EXPECT_EQ(row->x(), px(690)) << kRowCaptions.at(r).toStdString();
    }
    EXPECT_EQ(caption(QStringLiteral("Att. Saves"))->y(), px(5640));
}

TEST_F(ScorecardLayout, EachValueStandsInItsRowUnderItsColumn)
{
    const auto columnX = [&](int i) { return label(QStringLiteral("lblHoleCaption_%1").arg(i))->x(); };
    const struct {
        const char *array;
        const char *row;
    } arrays[] = {{"lblDistance", "Distance"},
                  {"lblPar", "Par"},
                  {"lblHandicap", "Handicap"},
                  {"lblFairway", "Fairway"}};
    for (const auto &a : arrays) {
        const int rowY = caption(QLatin1String(a.row))->y();
        // The arrays count from 1, by the hole number itself.
        EXPECT_EQ(card.findChild<QLabel *>(QStringLiteral("%1_0").arg(QLatin1String(a.array))), nullptr);
        for (int hole = 1; hole <= 18; ++hole) {
            QLabel *cell = label(QStringLiteral("%1_%2").arg(QLatin1String(a.array)).arg(hole));
            ASSERT_NE(cell, nullptr);
            EXPECT_EQ(cell->x(), columnX(hole <= 9 ? hole - 1 : hole)) << a.array << hole;
            EXPECT_EQ(cell->y(), rowY) << a.array << hole;
            EXPECT_EQ(cell->text(), QString());
        }
    }
    const int distanceY = caption(QStringLiteral("Distance"))->y();
    const int parY = caption(QStringLiteral("Par"))->y();
    EXPECT_EQ(label(QStringLiteral("lblOutDistance"))->pos(), QPoint(columnX(9), distanceY));
    EXPECT_EQ(label(QStringLiteral("lblInDistance"))->pos(), QPoint(columnX(19), distanceY));
    EXPECT_EQ(label(QStringLiteral("lblTotalDistance"))->pos(), QPoint(columnX(20), distanceY));
    EXPECT_EQ(label(QStringLiteral("lblOutPar"))->pos(), QPoint(columnX(9), parY));
    EXPECT_EQ(label(QStringLiteral("lblInPar"))->pos(), QPoint(columnX(19), parY));
    EXPECT_EQ(label(QStringLiteral("lblTotalPar"))->pos(), QPoint(columnX(20), parY));
}

TEST_F(ScorecardLayout, AboveTheGridCourseTeesAndTheRatingsWithTheirLines)
{
    QLabel *courseCaption = caption(QStringLiteral("Course:"));
    EXPECT_EQ(courseCaption->y(), px(240));
    EXPECT_EQ(label(QStringLiteral("lblCourse"))->y(), px(240));
    EXPECT_GT(label(QStringLiteral("lblCourse"))->x(), courseCaption->x());
    // "Golfer:" is a blank to its right, for the pen.
    QLabel *golfer = caption(QStringLiteral("Golfer:"));
    EXPECT_EQ(golfer->y(), px(240));
    EXPECT_GE(golfer->x(), label(QStringLiteral("lblCourse"))->geometry().right());
    EXPECT_EQ(caption(QStringLiteral("Tees:"))->y(), px(600));
    EXPECT_EQ(label(QStringLiteral("lblTees"))->y(), px(600));

    const QStringList ratings = {"lblFrontRating", "lblBackRating", "lblOverallRating"};
    const QStringList ratingCaptions = {"Front Rating/Slope:", "Back Rating/Slope:", "Overall Rating/Slope:"};
    int lastRight = 0;
    for (int i = 0; i < 3; ++i) {
        QLabel *c = caption(ratingCaptions.at(i));
        QLabel *v = label(ratings.at(i));
        EXPECT_EQ(c->y(), px(960));
        EXPECT_EQ(v->y(), px(960));
        EXPECT_GE(c->x(), lastRight) << i; // left to right, each value after its caption
        EXPECT_GE(v->x(), c->geometry().right()) << i;
        lastRight = v->geometry().right();
    }
    auto *lnCourse = findControl<QFrame>(&card, QStringLiteral("lnCourse"));
    auto *lnTees = findControl<QFrame>(&card, QStringLiteral("lnTees"));
    auto *lnRating = findControl<QFrame>(&card, QStringLiteral("lnRating"));
    ASSERT_TRUE(lnCourse && lnTees && lnRating);
    // Each line runs under its labels, above the next row.
    EXPECT_EQ(lnCourse->y(), label(QStringLiteral("lblCourse"))->geometry().bottom() + 1);
    EXPECT_LT(lnCourse->y(), px(600));
    EXPECT_EQ(lnTees->y(), label(QStringLiteral("lblTees"))->geometry().bottom() + 1);
    EXPECT_LT(lnTees->y(), px(960));
    EXPECT_GT(lnRating->y(), px(960));
    EXPECT_LT(lnRating->y(), px(1680));
    EXPECT_EQ(lnCourse->frameShape(), QFrame::HLine);
    EXPECT_LE(lnRating->x(), caption(QStringLiteral("Front Rating/Slope:"))->x());
    EXPECT_GE(lnRating->geometry().right(), label(QStringLiteral("lblOverallRating"))->geometry().right());
}

TEST_F(ScorecardLayout, BelowTheGridTheBlanksAndTheFooterNotice)
{
    QLabel *date = caption(QStringLiteral("Date:"));
    QLabel *scorer = caption(QStringLiteral("Scorer:"));
    QLabel *attest = caption(QStringLiteral("Attest:"));
    for (QLabel *l : {date, scorer, attest})
        EXPECT_EQ(l->y(), px(6120));
    EXPECT_LT(date->x(), scorer->x());
    EXPECT_LT(scorer->x(), attest->x());
    QLabel *footer = label(QStringLiteral("lblFooterNotice"));
    EXPECT_EQ(footer->text(), FooterNotice());
    EXPECT_TRUE(footer->text().contains(QStringLiteral("2026"))); // the scripted today's year
    EXPECT_GT(footer->y(), date->geometry().bottom());
    EXPECT_LE(footer->geometry().bottom(), card.height());
}

TEST_F(ScorecardLayout, EveryTextFitsItsLabelWithTheLongestValuesFilledIn)
{
    ScorecardData widest;
    widest.course = QStringLiteral("O'Brien's Links at Pebble Creek");
    widest.tees = QStringLiteral("Championship");
    // A long course of the longest holes in yards, and the steepest slope there is.
    widest.frontRating = widest.backRating = widest.overallRating = QStringLiteral("79.9 / 155");
    widest.outPar = widest.inPar = QStringLiteral("36");
    widest.totalPar = QStringLiteral("72");
    for (int hole = 1; hole <= 18; ++hole) {
        widest.distance[hole] = QStringLiteral("699");
        widest.par[hole] = QStringLiteral("5");
        widest.handicap[hole] = QStringLiteral("18");
        widest.fairway[hole] = QStringLiteral("N/A");
    }
    widest.outDistance = widest.inDistance = QStringLiteral("4999");
    widest.totalDistance = QStringLiteral("9998");
    card.Fill(widest);
    for (QLabel *l : card.findChildren<QLabel *>()) {
        if (l->text().isEmpty())
            continue;
        EXPECT_LE(l->fontMetrics().horizontalAdvance(l->text()), l->width()) << l->text().toStdString();
        EXPECT_LE(l->fontMetrics().height(), l->height()) << l->text().toStdString();
        EXPECT_TRUE(card.rect().contains(l->geometry())) << l->text().toStdString();
    }
}

TEST_F(ScorecardLayout, FillPutsEachValueInItsLabel)
{
    ScorecardData data;
    data.course = QStringLiteral("Pebble Creek");
    data.tees = QStringLiteral("White");
    data.frontRating = QStringLiteral("35.7 / 124");
    data.overallRating = QStringLiteral("71.5 / 125");
    data.outPar = QStringLiteral("36");
    data.totalPar = QStringLiteral("72");
    data.distance[1] = QStringLiteral("410");
    data.distance[18] = QStringLiteral("520");
    data.par[12] = QStringLiteral("3");
    data.fairway[12] = QStringLiteral("N/A");
    data.handicap[10] = QStringLiteral("2");
    data.outDistance = QStringLiteral("3150");
    data.totalDistance = QStringLiteral("6350");
    card.Fill(data);
    EXPECT_EQ(label(QStringLiteral("lblCourse"))->text(), data.course);
    EXPECT_EQ(label(QStringLiteral("lblTees"))->text(), data.tees);
    EXPECT_EQ(label(QStringLiteral("lblFrontRating"))->text(), data.frontRating);
    EXPECT_EQ(label(QStringLiteral("lblBackRating"))->text(), QString());
    EXPECT_EQ(label(QStringLiteral("lblOverallRating"))->text(), data.overallRating);
    EXPECT_EQ(label(QStringLiteral("lblOutPar"))->text(), QStringLiteral("36"));
    EXPECT_EQ(label(QStringLiteral("lblInPar"))->text(), QString());
    EXPECT_EQ(label(QStringLiteral("lblTotalPar"))->text(), QStringLiteral("72"));
    EXPECT_EQ(label(QStringLiteral("lblDistance_1"))->text(), QStringLiteral("410"));
    EXPECT_EQ(label(QStringLiteral("lblDistance_18"))->text(), QStringLiteral("520"));
    EXPECT_EQ(label(QStringLiteral("lblDistance_2"))->text(), QString());
    EXPECT_EQ(label(QStringLiteral("lblPar_12"))->text(), QStringLiteral("3"));
    EXPECT_EQ(label(QStringLiteral("lblFairway_12"))->text(), QStringLiteral("N/A"));
    EXPECT_EQ(label(QStringLiteral("lblHandicap_10"))->text(), QStringLiteral("2"));
    EXPECT_EQ(label(QStringLiteral("lblOutDistance"))->text(), QStringLiteral("3150"));
    EXPECT_EQ(label(QStringLiteral("lblInDistance"))->text(), QString());
    EXPECT_EQ(label(QStringLiteral("lblTotalDistance"))->text(), QStringLiteral("6350"));
}
