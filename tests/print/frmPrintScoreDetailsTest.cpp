#include "print/frmPrintScoreDetails.h"

#include "FrameFixture.h"
#include "PrintedPages.h"
#include "TestPrinting.h"
#include "core/DateText.h"
#include "ui/FormInstance.h"
#include "views/frmScoreLog.h"
#include "views/frmViewScoreDetails.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTableView>

using namespace quillon;
using namespace quillon::test;

namespace {

// The derived numbers of a round, by label, with the caption they stand beside.
const struct {
    const char *label;
    const char *caption;
} kDerived[] = {
    {"lblOnePutts", "1 Putts"},
    {"lblTwoPutts", "2 Putts"},
    {"lblThreePlusPutts", "3+ Putts"},
    {"lblChipIns", "Chip-ins"},
    {"lblGreens", "Greens in Reg."},
    {"lblFairways", "Fairways in Reg."},
    {"lblAvgPar3", "Avg. Par 3's"},
    {"lblAvgPar4", "Avg. Par 4's"},
    {"lblAvgPar5", "Avg. Par 5's"},
    {"lblEagles", "Eagles"},
    {"lblBirdies", "Birdies"},
    {"lblPars", "Pars"},
    {"lblBogeys", "Bogeys"},
    {"lblDoubleBogeys", "Double Bogeys"},
    {"lblTripleBogeys", "Triple Bogeys"},
    {"lblOthers", "Others"},
};

class DetailsPrint : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
    }
    static RoundSpec round(int score)
    {
        RoundSpec r;
        r.date = QDate(2026, 10, 1);
        r.score = r.adjusted = score;
        r.details = true;
        return r;
    }
    // A round with hole rows from hole 1 on; putts and fairways are set afterwards.
    qint64 roundWithHoles(const RoundSpec &r, const QVector<int> &scores)
    {
        const qint64 index = addRound(app.db(), r);
        addHoleScores(app.db(), r, index, 1, scores, CourseSpec{}.pars.mid(0, scores.size()));
        return index;
    }
    // Print the round through the page form and read the one page back.
    QString print(qint64 index, const QString &date = QStringLiteral("10/1/2026"))
    {
        frmPrintScoreDetails::instance().PrintDetails(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
                                                      date, qint32(index));
        EXPECT_EQ(app.platform().printedFiles().size(), 1);
        if (app.platform().printedFiles().isEmpty())
            return QString();
        const QStringList pages = PrintedPages(app.platform().printedFiles().last());
        EXPECT_EQ(pages.size(), 1);
        return pages.value(0);
    }
    // The text printed right after a caption on its line: the label's value, or the next caption
    // when the label is blank; empty when nothing follows.  Captions stand apart from what went
    // before by two blanks at least (so "Bogeys" is not found inside "Double Bogeys").
    static QString after(const QString &page, const QString &caption)
    {
        const QRegularExpression re(
            QStringLiteral("(?:^|\\s{2})%1(?:[ ]+(\\S+))?").arg(QRegularExpression::escape(caption)),
            QRegularExpression::MultilineOption);
        const QRegularExpressionMatch m = re.match(page);
        EXPECT_TRUE(m.hasMatch()) << "caption not printed: " << caption.toStdString();
        return m.captured(1);
    }
    // What stands on the rows of the two nines with this caption ("Score", "Putts"), in order.
    static QStringList cardRows(const QString &page, const QString &caption)
    {
        QStringList rows;
        for (const QString &line : TextLines(page)) {
            const QString t = line.trimmed();
            if (t == caption || t.startsWith(caption + QLatin1Char(' ')))
                if (!t.startsWith(QStringLiteral("Score Details")))
                    rows << t.mid(caption.size()).simplified();
        }
        return rows;
    }
    frmScoreLog *log() const
    {
        return qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    }
    frmViewScoreDetails *view() const
    {
        return qobject_cast<frmViewScoreDetails *>(
            frame->views().loaded(QStringLiteral("frmViewScoreDetails")));
    }
    // The details view of the log's first row, opened as a double-click opens it.
    void openView()
    {
        log()->selectRow(0);
        auto *grid = findControl<QTableView>(log(), QStringLiteral("DBGrid1"));
        emit grid->doubleClicked(grid->model()->index(0, 2));
        ASSERT_NE(view(), nullptr);
    }
    QString viewText(const char *name) const
    {
        return findControl<QLabel>(view(), QLatin1String(name))->text();
    }
    static bool formGone() { return FormInstance<frmPrintScoreDetails>::existing() == nullptr; }
};

const QVector<int> kRound76 = {4, 3, 3, 5, 5, 4, 2, 4, 6, 5, 4, 3, 5, 4, 4, 3, 5, 7};

} // namespace

TEST_F(DetailsPrint, ARoundWithoutHoleDetailsPrintsItsHeaderWithAnEmptyCardAndBlankTotals)
{
    RoundSpec r = round(91);
    r.details = false;
    r.type = QStringLiteral("T");
    const qint64 index = addRound(app.db(), r);
    Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET Penalties = 2, LostBalls = 0, Bunkers = -1"));
    startWithPalmer();
    const QString page = print(index);
    SCOPED_TRACE(page.toStdString());
    EXPECT_EQ(after(page, QStringLiteral("Course:")), QStringLiteral("Pebble"));
    EXPECT_EQ(after(page, QStringLiteral("Tees:")), QStringLiteral("White"));
    EXPECT_EQ(after(page, QStringLiteral("Date:")), QStringLiteral("10/1/2026"));
    EXPECT_EQ(after(page, QStringLiteral("Type:")), QStringLiteral("Tournament"));
    EXPECT_EQ(after(page, QStringLiteral("Score:")), QStringLiteral("91"));
    EXPECT_EQ(after(page, QStringLiteral("Adjusted Score:")), QStringLiteral("91"));
    EXPECT_EQ(after(page, QStringLiteral("Penalties")), QStringLiteral("2"));
    EXPECT_EQ(after(page, QStringLiteral("Lost Balls")), QStringLiteral("0")) << "a stored 0 prints";
    EXPECT_EQ(after(page, QStringLiteral("Total Bunkers")), QStringLiteral("Sand")) << "-1 prints nothing";
    // The card: hole numbers and nothing else; the nine sums, putts and total putts blank.
    EXPECT_EQ(cardRows(page, QStringLiteral("Score")), (QStringList{"", ""}));
    EXPECT_EQ(cardRows(page, QStringLiteral("Putts")), (QStringList{"", ""}));
    EXPECT_EQ(cardRows(page, QStringLiteral("Hole")),
              (QStringList{"1 2 3 4 5 6 7 8 9 Out", "10 11 12 13 14 15 16 17 18 In Total"}));
    // No derived number is printed: each caption is followed by no figure.
    for (const auto &d : kDerived) {
        const QString next = after(page, QLatin1String(d.caption));
        EXPECT_FALSE(next.contains(QRegularExpression(QStringLiteral("^[0-9.]+%?$|^N/A$"))))
            << d.caption << ": " << next.toStdString();
    }
    EXPECT_TRUE(formGone());
    EXPECT_EQ(app.platform().previewed, QStringList{"Score Details"});
}

TEST_F(DetailsPrint, ThePageShowsTheSameDerivedNumbersAsTheViewOfTheSameRound)
{
    const qint64 index = roundWithHoles(round(76), kRound76);
    // A chip-in on 7, one-putts on 2 and 15, a three-putt on 9; fairways on 1, 2, 5, 10 and 14.
    Exec(app.db(),
         QStringLiteral("UPDATE ScoreDetails SET Putts = CASE Hole WHEN 7 THEN 0 WHEN 2 THEN 1 WHEN 15 "
                        "THEN 1 WHEN 9 THEN 3 ELSE 2 END, Fairway = CASE WHEN Hole IN (1, 2, 5, 10, 14) "
                        "THEN 1 ELSE 0 END"));
    startWithPalmer();
    openView();
    const QString page = print(index);
    SCOPED_TRACE(page.toStdString());
    for (const auto &d : kDerived) {
        const QString shown = viewText(d.label);
        EXPECT_FALSE(shown.isEmpty()) << d.label;
        EXPECT_EQ(after(page, QLatin1String(d.caption)), shown) << d.label;
    }
    // The figures themselves, as the rules give them for this round.
    EXPECT_EQ(after(page, QStringLiteral("Birdies")), QStringLiteral("2"));
    EXPECT_EQ(after(page, QStringLiteral("Pars")), QStringLiteral("11"));
    EXPECT_EQ(after(page, QStringLiteral("Fairways in Reg.")), QStringLiteral("35.7%"));
    EXPECT_EQ(after(page, QStringLiteral("Chip-ins")), QStringLiteral("1"));
    // The card and its sums as the view has them.
    EXPECT_EQ(cardRows(page, QStringLiteral("Score")),
              (QStringList{"4 3 3 5 5 4 2 4 6 36", "5 4 3 5 4 4 3 5 7 40"}));
    EXPECT_EQ(cardRows(page, QStringLiteral("Putts")),
              (QStringList{"2 1 2 2 2 2 0 2 3 16", "2 2 2 2 2 1 2 2 2 17 33"}));
    EXPECT_EQ(viewText("lblOut"), QStringLiteral("36"));
    EXPECT_EQ(viewText("lblTotalPutts"), QStringLiteral("33"));
    EXPECT_EQ(after(page, QStringLiteral("Score:")), viewText("lblTotal"));
    EXPECT_EQ(after(page, QStringLiteral("Adjusted Score:")), viewText("lblAdjustedScore"));
    EXPECT_TRUE(formGone());
}

TEST_F(DetailsPrint, WithNoPrinterTheErrorIsShownAndTheFormGoesAway)
{
    const qint64 index = roundWithHoles(round(76), kRound76);
    startWithPalmer();
    app.platform().printerName.clear();
    frmPrintScoreDetails::instance().PrintDetails(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
                                                  QStringLiteral("10/1/2026"), qint32(index));
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Error 482: Printer error"), MsgIcon::Critical,
                  QStringLiteral("Quillon for Golf"));
    EXPECT_TRUE(formGone());
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    // Nothing in the database changed.
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails")).toInt(), 18);
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Score FROM ScoreLog")).toInt(), 76);
}

TEST_F(DetailsPrint, ThePageHoldsTheViewsLabelsUnderItsTitleAndTheGolferAboveTheFooter)
{
    RoundSpec r = round(76);
    r.adjusted = 74;
    r.used = QStringLiteral("E");
    const qint64 index = roundWithHoles(r, kRound76);
    startWithPalmer();
    const QString page = print(index);
    SCOPED_TRACE(page.toStdString());
    const QStringList lines = TextLines(page);
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines.first().trimmed(), QStringLiteral("Score Details"));
    EXPECT_EQ(lines.at(1).simplified(), QStringLiteral("Golfer: Arnold Palmer"));
    EXPECT_TRUE(lines.last().simplified().startsWith(
        QStringLiteral("Printed with Quillon for Golf. Copyright \u00a9 2026")));
    // The adjusted score comes from the round's row; the total is the sum of the holes.
    EXPECT_EQ(after(page, QStringLiteral("Adjusted Score:")), QStringLiteral("74"));
    EXPECT_EQ(after(page, QStringLiteral("Score:")), QStringLiteral("76"));
    EXPECT_EQ(after(page, QStringLiteral("Type:")), QStringLiteral("Away"));
    for (const char *caption : {"Misc. Stats", "Front Nine", "Back Nine", "Fairways", "Eagles", "Others"})
        EXPECT_TRUE(page.contains(QLatin1String(caption))) << caption;
    // What only the screen has is not on the page.
    for (const char *screenOnly : {"Excluded", "Holes:", "Yes", "18-holes", "OK"})
        EXPECT_FALSE(page.contains(QLatin1String(screenOnly))) << screenOnly;
}

TEST_F(DetailsPrint, ThePageIsPrintedInBlackAndWhite)
{
    // Pars, birdies and an eagle: the view colours them yellow, green and cyan.
    const qint64 index = roundWithHoles(round(60), {4, 3, 2, 3, 4, 3, 2, 4, 5});
    startWithPalmer();
    print(index);
    ASSERT_EQ(app.platform().printedFiles().size(), 1);
    const QString png = app.file(QStringLiteral("page"));
    QProcess p;
    p.start(QStringLiteral("pdftoppm"),
            {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("50"),
             QStringLiteral("-singlefile"), app.platform().printedFiles().last(), png});
    ASSERT_TRUE(p.waitForFinished(30000));
    const QImage image(png + QStringLiteral(".png"));
    ASSERT_FALSE(image.isNull());
    int coloured = 0, dark = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int spread =
                std::max({c.red(), c.green(), c.blue()}) - std::min({c.red(), c.green(), c.blue()});
            coloured += spread > 24 ? 1 : 0;
            dark += c.lightness() < 128 ? 1 : 0;
        }
    EXPECT_EQ(coloured, 0);
    EXPECT_GT(dark, 1000) << "the page has its text and lines";
}

TEST_F(DetailsPrint, HolesWithoutFiguresLeaveTheSumsBlankWhereTheViewShowsZero)
{
    const qint64 index = roundWithHoles(round(76), kRound76);
    Exec(app.db(), QStringLiteral("UPDATE ScoreDetails SET Score = NULL, Putts = NULL"));
    startWithPalmer();
    openView();
    EXPECT_EQ(viewText("lblTotal"), QStringLiteral("0"));
    EXPECT_EQ(viewText("lblTotalPutts"), QStringLiteral("0"));
    const QString page = print(index);
    SCOPED_TRACE(page.toStdString());
    EXPECT_EQ(after(page, QStringLiteral("Score:")), QStringLiteral("Adjusted"));
    EXPECT_EQ(cardRows(page, QStringLiteral("Score")), (QStringList{"", ""}));
    EXPECT_EQ(cardRows(page, QStringLiteral("Putts")), (QStringList{"", ""}));
}

TEST_F(DetailsPrint, AClosedPreviewPrintsNothingAndTheFormStillGoesAway)
{
    const qint64 index = roundWithHoles(round(76), kRound76);
    startWithPalmer();
    app.platform().previewAnswer = false;
    frmPrintScoreDetails::instance().PrintDetails(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
                                                  QStringLiteral("10/1/2026"), qint32(index));
    EXPECT_EQ(app.platform().previewed, QStringList{"Score Details"});
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    EXPECT_TRUE(formGone());
}

TEST_F(DetailsPrint, ADateThatIsNoDateIsShownAsAnErrorAndTheFormGoesAway)
{
    const qint64 index = roundWithHoles(round(76), kRound76);
    startWithPalmer();
    frmPrintScoreDetails::instance().PrintDetails(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
                                                  QStringLiteral("13/45/2026"), qint32(index));
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Error 13: Type mismatch"), MsgIcon::Critical,
                  QStringLiteral("Quillon for Golf"));
    EXPECT_TRUE(app.platform().previewed.isEmpty());
    EXPECT_TRUE(formGone());
}
