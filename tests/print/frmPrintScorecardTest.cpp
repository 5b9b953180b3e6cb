#include "print/frmPrintScorecard.h"

#include "Fixtures.h"
#include "PrintedPages.h"
#include "ScorecardFixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "Widgets.h"
#include "print/ReportPainter.h"
#include "ui/FormInstance.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kCourse = QStringLiteral("Pebble Creek");
const QString kTitle = QStringLiteral("Print Scorecard");
const QString kNoCourses =
    QStringLiteral("There are no course statistics in the database.  Please select New Course "
                   "from the File menu to enter course statistics.");
const QVector<int> kPars = CourseSpec().pars; // par 3 on holes 3, 7, 12 and 16

// One word of a printed page and its box, in points from the top left of the page.
struct PrintedWord {
    QString text;
    QRectF box;
};

// The words of the first page of a PDF with their places, as `pdftotext -bbox` finds them.
QVector<PrintedWord> PrintedWords(const QString &pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"),
            {QStringLiteral("-bbox"), QStringLiteral("-l"), QStringLiteral("1"), pdf, QStringLiteral("-")});
    if (!p.waitForFinished(30000) || p.exitCode() != 0) {
        ADD_FAILURE() << "pdftotext could not read " << pdf.toStdString();
        return {};
    }
    static const QRegularExpression word(QStringLiteral(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    QVector<PrintedWord> words;
    for (const QRegularExpressionMatch &m : word.globalMatch(QString::fromUtf8(p.readAllStandardOutput()))) {
        QString text = m.captured(5);
        text.replace(QStringLiteral("&apos;"), QStringLiteral("'"))
            .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
        words.push_back({text, QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                                      QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()))});
    }
    return words;
}

// The first word with this text.
const PrintedWord *wordOf(const QVector<PrintedWord> &words, const QString &text)
{
    for (const PrintedWord &w : words)
        if (w.text == text)
            return &w;
    ADD_FAILURE() << "no printed word \"" << text.toStdString() << "\"";
    return nullptr;
}

// The words on the printed line of `first`, to its right, left to right.
QVector<PrintedWord> lineAfter(const QVector<PrintedWord> &words, const PrintedWord &first)
{
    QVector<PrintedWord> line;
    for (const PrintedWord &w : words)
        if (std::abs(w.box.center().y() - first.box.center().y()) < 2 && w.box.left() > first.box.right())
            line << w;
    std::sort(line.begin(), line.end(),
              [](const PrintedWord &a, const PrintedWord &b) { return a.box.left() < b.box.left(); });
    return line;
}

class PrintScorecardDialog : public ::testing::Test {
protected:
    void TearDown() override { FormInstance<frmPrintScorecard>::destroy(); }

    frmPrintScorecard &dialog() { return frmPrintScorecard::instance(); }
    template <typename T>
    T *control(const QString &name)
    {
        return findControl<T>(&dialog(), name);
    }
    QComboBox *courses() { return control<QComboBox>(QStringLiteral("dbcboCourses")); }
    QComboBox *tees() { return control<QComboBox>(QStringLiteral("cboTees")); }
    QPushButton *printButton() { return control<QPushButton>(QStringLiteral("cmdPrint")); }
    QRadioButton *selectedOption() { return control<QRadioButton>(QStringLiteral("optSelectedCourse")); }
    QRadioButton *genericOption() { return control<QRadioButton>(QStringLiteral("optGenericCourse")); }
    // The four controls of the course choice.
    QVector<QWidget *> choice()
    {
        return {control<QWidget>(QStringLiteral("lblCourse")), courses(),
                control<QWidget>(QStringLiteral("lblTees")), tees()};
    }

    // Click Print and read back the one page printed.
    QString printPage()
    {
        const int before = int(app.platform().printedFiles().size());
        printButton()->click();
        const QStringList &files = app.platform().printedFiles();
        EXPECT_EQ(files.size(), before + 1) << "nothing was printed";
        if (files.size() != before + 1)
            return QString();
        const QStringList pages = PrintedPages(files.last());
        EXPECT_EQ(pages.size(), 1);
        return pages.value(0);
    }
    // The printed line of a row of the card, from its caption on.
    static QString row(const QString &page, const QString &caption)
    {
        for (const QString &line : TextLines(page))
            if (line.trimmed() == caption || line.trimmed().startsWith(caption + QLatin1Char(' ')))
                return line;
        ADD_FAILURE() << "no printed row \"" << caption.toStdString() << "\" in\n" << page.toStdString();
        return QString();
    }
    // What stands in a printed row after its caption, word by word.
    static QStringList values(const QString &page, const QString &caption)
    {
        const QString line = row(page, caption);
        return line.mid(line.indexOf(caption) + caption.size())
            .simplified()
            .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    // The values of a printed row of the last card by the column caption ("1" ... "18", "Out",
    // "In", "Tot") each stands under.  The row caption is one word.
    QMap<QString, QString> underColumns(const QString &caption)
    {
        const QVector<PrintedWord> words =
            PrintedWords(app.platform().printedFiles().value(app.platform().printedFiles().size() - 1));
        const PrintedWord *hole = wordOf(words, QStringLiteral("Hole"));
        const PrintedWord *rowCaption = wordOf(words, caption);
        QMap<QString, QString> out;
        if (!hole || !rowCaption)
            return out;
        const QVector<PrintedWord> columns = lineAfter(words, *hole);
        for (const PrintedWord &cell : lineAfter(words, *rowCaption)) {
            const PrintedWord *nearest = nullptr;
            for (const PrintedWord &c : columns)
                if (!nearest || std::abs(c.box.center().x() - cell.box.center().x()) <
                                    std::abs(nearest->box.center().x() - cell.box.center().x()))
                    nearest = &c;
            if (nearest)
                out.insert(nearest->text, cell.text);
        }
        return out;
    }
    void expectChoiceEnabled(bool enabled)
    {
        for (QWidget *w : choice())
            EXPECT_EQ(w->isEnabled(), enabled) << w->objectName().toStdString();
    }
    TestApp app;
};

} // namespace

TEST_F(PrintScorecardDialog, TheDialogHasItsControlsCaptionsAndInstructions)
{
    addCourse(app.db());
    dialog().PrintScorecard(QString(), QString());
    EXPECT_EQ(dialog().objectName(), QStringLiteral("frmPrintScorecard"));
    EXPECT_EQ(dialog().windowTitle(), kTitle);
    EXPECT_EQ(control<QGroupBox>(QStringLiteral("fraPrintType"))->title(), QStringLiteral("Print Type"));
    EXPECT_EQ(selectedOption()->text(), QStringLiteral("&Selected Course"));
    EXPECT_EQ(genericOption()->text(), QStringLiteral("&Generic Course"));
    EXPECT_TRUE(selectedOption()->isChecked());
    EXPECT_FALSE(genericOption()->isChecked());
    EXPECT_EQ(control<QLabel>(QStringLiteral("lblCourse"))->text(), QStringLiteral("Course:"));
    EXPECT_EQ(control<QLabel>(QStringLiteral("lblTees"))->text(), QStringLiteral("Tees:"));
    EXPECT_EQ(
        control<QLabel>(QStringLiteral("lblInstructions"))->text(),
        QStringLiteral("To print a scorecard for a specific course, choose the Selected Course option and "
                       "specify the course name and tees. Choose the Generic Course option to print a blank "
                       "scorecard."));
    EXPECT_EQ(printButton()->text(), QStringLiteral("&Print"));
    EXPECT_EQ(control<QPushButton>(QStringLiteral("cmdCancel"))->text(), QStringLiteral("&Cancel"));
    EXPECT_NE(dialog().findChild<QObject *>(QStringLiteral("rdcCourses")), nullptr);
}

TEST_F(PrintScorecardDialog, ItShowsWithoutBlockingAndOffersOnlyCoursesWithHoleRows)
{
    addCourse(app.db());
    addTees(app.db(), QStringLiteral("Briar Ridge"), QStringLiteral("White"));
    addTeesWithoutHoles(app.db(), QStringLiteral("Apple Hill"), QStringLiteral("White"));
    dialog().PrintScorecard(QString(), QString());
    // The call has returned with the dialog up: it did not wait for the user.
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_FALSE(dialog().isModal());
    EXPECT_EQ(ListItems(courses()), (QStringList{"Briar Ridge", "Pebble Creek"}));
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(PrintScorecardDialog, WithoutACourseAndTeesNothingIsChosenAndPrintWaits)
{
    addCourse(app.db());
    dialog().PrintScorecard(QString(), QString());
    EXPECT_EQ(courses()->currentText(), QString());
    EXPECT_EQ(tees()->currentText(), QString());
    EXPECT_FALSE(printButton()->isEnabled());
    expectChoiceEnabled(true);
    // Only one of the two given is no choice either.
    dialog().PrintScorecard(kCourse, QString());
    EXPECT_EQ(courses()->currentText(), QString());
    EXPECT_FALSE(printButton()->isEnabled());
}

TEST_F(PrintScorecardDialog, TheCourseAndTeesOfTheViewInFrontAreChosen)
{
    addCourse(app.db());
    addTees(app.db(), kCourse, QStringLiteral("Red"));
    addTees(app.db(), QStringLiteral("Briar Ridge"), QStringLiteral("White"));
    dialog().PrintScorecard(kCourse, QStringLiteral("Red"));
    EXPECT_EQ(courses()->currentText(), kCourse);
    EXPECT_EQ(ListItems(tees()), (QStringList{"White", "Red"}));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Red"));
    EXPECT_TRUE(selectedOption()->isChecked());
    EXPECT_TRUE(printButton()->isEnabled());
    expectChoiceEnabled(true);
}

TEST_F(PrintScorecardDialog, PrintScorecardForTeesWithoutHoleRowsSetsTheGenericOption)
{
    addCourse(app.db());
    addTeesWithoutHoles(app.db(), kCourse, QStringLiteral("Blue"));
    dialog().PrintScorecard(kCourse, QStringLiteral("Blue"));
    EXPECT_TRUE(genericOption()->isChecked());
    EXPECT_FALSE(selectedOption()->isChecked());
    expectChoiceEnabled(false);
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_EQ(courses()->currentText(), QString());
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(PrintScorecardDialog, WithoutAnyCourseWithHoleRowsPrintSaysSoAndCloses)
{
    addTeesWithoutHoles(app.db(), kCourse, QStringLiteral("White"));
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    // Only the generic card can be chosen; the selected option stays set all the same.
    EXPECT_FALSE(selectedOption()->isEnabled());
    EXPECT_TRUE(selectedOption()->isChecked());
    EXPECT_TRUE(genericOption()->isEnabled());
    expectChoiceEnabled(false);
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_EQ(courses()->count(), 0);

    printButton()->click();
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown.at(0), kNoCourses, MsgIcon::Critical, kTitle);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    EXPECT_TRUE(app.platform().previewed.isEmpty());
}

TEST_F(PrintScorecardDialog, WithoutAnyCourseTheGenericCardStillPrints)
{
    dialog().PrintScorecard(QString(), QString());
    genericOption()->click();
    const QString page = printPage();
    EXPECT_TRUE(page.contains(QStringLiteral("Distance")));
    EXPECT_TRUE(app.platform().messages().isEmpty());
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(PrintScorecardDialog, ChoosingACourseFillsItsTeesAndChoosesTheFirst)
{
    addCourse(app.db());
    addTees(app.db(), kCourse, QStringLiteral("Red"));
    addTees(app.db(), QStringLiteral("Briar Ridge"), QStringLiteral("Gold"));
    dialog().PrintScorecard(QString(), QString());
    PickByKeyboard(courses(), kCourse);
    EXPECT_EQ(ListItems(tees()), (QStringList{"White", "Red"}));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_TRUE(printButton()->isEnabled());
    PickByKeyboard(courses(), QStringLiteral("Briar Ridge"));
    EXPECT_EQ(ListItems(tees()), QStringList{"Gold"});
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Gold"));
    PickByKeyboard(courses(), kCourse);
    PickByKeyboard(tees(), QStringLiteral("Red"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Red"));
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(PrintScorecardDialog, ACourseWithoutTeesSaysCourseDataIsNotAvailable)
{
    addCourse(app.db());
    // Hole rows whose set of tees is missing from CourseLog.
    Exec(app.db(),
         QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) VALUES "
                        "('Sandy Dunes', 'White', 1, 4, 1, 350)"));
    dialog().PrintScorecard(QString(), QString());
    PickByKeyboard(courses(), kCourse);
    EXPECT_TRUE(printButton()->isEnabled());
    PickByKeyboard(courses(), QStringLiteral("Sandy Dunes"));
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown.at(0), QStringLiteral("Course data is not available."), MsgIcon::Critical, kTitle);
    EXPECT_EQ(tees()->count(), 0);
    EXPECT_FALSE(printButton()->isEnabled());
}

TEST_F(PrintScorecardDialog, TheOptionsSwitchTheCourseChoiceAndPrint)
{
    addCourse(app.db());
    dialog().PrintScorecard(QString(), QString());
    EXPECT_FALSE(printButton()->isEnabled());
    genericOption()->click();
    expectChoiceEnabled(false);
    EXPECT_TRUE(printButton()->isEnabled());
    selectedOption()->click();
    expectChoiceEnabled(true);
    EXPECT_FALSE(printButton()->isEnabled()); // no course chosen yet
    PickByKeyboard(courses(), kCourse);
    EXPECT_TRUE(printButton()->isEnabled());
    genericOption()->click();
    selectedOption()->click();
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_EQ(courses()->currentText(), kCourse);
}

TEST_F(PrintScorecardDialog, AGenericCardPrintsNoCourseDataEvenAfterACourseWasChosen)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    ASSERT_EQ(courses()->currentText(), kCourse);
    genericOption()->click();
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    EXPECT_EQ(app.platform().previewed, QStringList{"Scorecard"});
    for (const char *absent : {"Pebble Creek", "White", "71.5", "125", "350", "N/A"})
        EXPECT_FALSE(page.contains(QLatin1String(absent))) << absent;
    // The fixed captions only: nothing after the row captions but the column captions.
    for (const char *caption : {"Distance", "Par", "Handicap", "Fairway"})
        EXPECT_EQ(values(page, QLatin1String(caption)), QStringList()) << caption;
    EXPECT_EQ(values(page, QStringLiteral("Tees:")), QStringList());
    EXPECT_TRUE(page.simplified().contains(
        QStringLiteral("Front Rating/Slope: Back Rating/Slope: Overall Rating/Slope:")));
    EXPECT_TRUE(app.platform().messages().isEmpty());
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(PrintScorecardDialog, ThePrintedCardHoldsTheCourseData)
{
    addCourse(app.db());
    for (int hole = 1; hole <= 18; ++hole)
        Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET Yards = ?, Handicap = ? WHERE Hole = ?"),
             {300 + 10 * hole, (hole * 7) % 18 + 1, hole});
    // The par sums are CourseLog's, not the holes'.
    Exec(app.db(), QStringLiteral("UPDATE CourseLog SET ParOut = 35, ParIn = 36, TotalPar = 71"));
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(app.platform().previewed, QStringList{"Scorecard"});

    EXPECT_EQ(values(page, QStringLiteral("Course:")), (QStringList{"Pebble", "Creek", "Golfer:"}));
    EXPECT_EQ(values(page, QStringLiteral("Tees:")), QStringList{"White"});
    EXPECT_TRUE(page.simplified().contains(QStringLiteral(
        "Front Rating/Slope: 35.7 / 124 Back Rating/Slope: 35.8 / 126 Overall Rating/Slope: 71.5 / 125")));

    EXPECT_EQ(values(page, QStringLiteral("Hole")),
              (QStringList{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",   "Out", "10", "11",
                           "12", "13", "14", "15", "16", "17", "18", "In", "Tot", "Hcp", "Net"}));
    QStringList distances, pars, handicaps;
    for (int hole = 1; hole <= 18; ++hole) {
        distances << QString::number(300 + 10 * hole);
        pars << QString::number(kPars.at(hole - 1));
        handicaps << QString::number((hole * 7) % 18 + 1);
        if (hole == 9) {
            distances << QStringLiteral("3150");
            pars << QStringLiteral("35");
        }
    }
    distances << QStringLiteral("3960") << QStringLiteral("7110");
    pars << QStringLiteral("36") << QStringLiteral("71");
    EXPECT_EQ(values(page, QStringLiteral("Distance")), distances);
    EXPECT_EQ(values(page, QStringLiteral("Par")), pars);
    EXPECT_EQ(values(page, QStringLiteral("Handicap")), handicaps);

    // Each sum under its own column.
    const QMap<QString, QString> distance = underColumns(QStringLiteral("Distance"));
    EXPECT_EQ(distance.value(QStringLiteral("1")), QStringLiteral("310"));
    EXPECT_EQ(distance.value(QStringLiteral("9")), QStringLiteral("390"));
    EXPECT_EQ(distance.value(QStringLiteral("Out")), QStringLiteral("3150"));
    EXPECT_EQ(distance.value(QStringLiteral("10")), QStringLiteral("400"));
    EXPECT_EQ(distance.value(QStringLiteral("In")), QStringLiteral("3960"));
    EXPECT_EQ(distance.value(QStringLiteral("Tot")), QStringLiteral("7110"));
    const QMap<QString, QString> par = underColumns(QStringLiteral("Par"));
    EXPECT_EQ(par.value(QStringLiteral("Out")), QStringLiteral("35"));
    EXPECT_EQ(par.value(QStringLiteral("In")), QStringLiteral("36"));
    EXPECT_EQ(par.value(QStringLiteral("Tot")), QStringLiteral("71"));

    // The rows for the pen, in order, and the blanks below the grid.
    const QStringList lines = TextLines(page);
    int at = -1;
    for (const char *caption : {"Hole", "Distance", "Par", "Handicap", "Score", "Putts", "Fairway", "Penalty",
                                "Lost Balls", "Bunkers", "Sand Saves", "Att. Saves"}) {
        const int found = lines.indexOf(row(page, QLatin1String(caption)));
        EXPECT_GT(found, at) << caption;
        at = found;
    }
    for (const char *blank :
         {"Score", "Putts", "Penalty", "Lost Balls", "Bunkers", "Sand Saves", "Att. Saves"})
        EXPECT_EQ(values(page, QLatin1String(blank)), QStringList()) << blank;
    const QString signatures = row(page, QStringLiteral("Date:"));
    EXPECT_EQ(signatures.simplified(), QStringLiteral("Date: Scorer: Attest:"));
    EXPECT_GT(lines.indexOf(signatures), at);
    EXPECT_TRUE(lines.last().simplified().contains(FooterNotice().simplified()))
        << lines.last().toStdString();
    EXPECT_TRUE(lines.last().contains(QStringLiteral("2026")));
}

TEST_F(PrintScorecardDialog, TheCardIsPrintedAtItsOwnSize)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    printPage();
    // A twip is a twentieth of a point: the places of the card's design stand on the page.
    const QVector<PrintedWord> words = PrintedWords(app.platform().printedFiles().value(0));
    const PrintedWord *hole = wordOf(words, QStringLiteral("Hole"));
    const PrintedWord *attSaves = wordOf(words, QStringLiteral("Att."));
    const PrintedWord *course = wordOf(words, QStringLiteral("Course:"));
    ASSERT_TRUE(hole && attSaves && course);
    EXPECT_NEAR(attSaves->box.top() - hole->box.top(), (5640 - 1680) / 20.0, 0.5);
    EXPECT_NEAR(hole->box.top() - course->box.top(), (1680 - 240) / 20.0, 0.5);
    EXPECT_NEAR(hole->box.left(), course->box.left(), 0.5); // both at 690
    const QVector<PrintedWord> columns = lineAfter(words, *hole);
    ASSERT_EQ(columns.size(), 23);
    const auto centre = [&](int i) { return columns.at(i).box.center().x(); };
    EXPECT_NEAR(centre(10) - centre(0), (5820 - 1635) / 20.0, 0.5); // hole 10 from hole 1
    EXPECT_NEAR(centre(1) - centre(0), 405 / 20.0, 0.5);
    EXPECT_NEAR(centre(22) - centre(21), (10965 + 435 / 2.0 - 10545 - 420 / 2.0) / 20.0, 0.5); // Net from Hcp
}

TEST_F(PrintScorecardDialog, OnAPrintedCardParThreesHaveNAInTheFairwayRow)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    EXPECT_EQ(values(page, QStringLiteral("Fairway")), (QStringList{"N/A", "N/A", "N/A", "N/A"}));
    const QMap<QString, QString> fairway = underColumns(QStringLiteral("Fairway"));
    EXPECT_EQ(fairway.keys(), (QStringList{"12", "16", "3", "7"}));
}

TEST_F(PrintScorecardDialog, ANineHoleCourseLeavesTheInColumnAndTheBackHolesBlankAndTotalsTheOutSum)
{
    CourseSpec nine;
    nine.pars = {4, 4, 3, 5, 4, 4, 3, 4, 5};
    addCourse(app.db(), nine);
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    const QMap<QString, QString> distance = underColumns(QStringLiteral("Distance"));
    QStringList front;
    for (int hole = 1; hole <= 9; ++hole)
        front << QString::number(hole);
    EXPECT_EQ(distance.size(), 11);
    for (const QString &hole : front)
        EXPECT_EQ(distance.value(hole), QStringLiteral("350")) << hole.toStdString();
    EXPECT_EQ(distance.value(QStringLiteral("Out")), QStringLiteral("3150"));
    EXPECT_EQ(distance.value(QStringLiteral("Tot")), QStringLiteral("3150"));
    EXPECT_FALSE(distance.contains(QStringLiteral("In")));
    for (const char *caption : {"Par", "Handicap", "Fairway"})
        for (const QString &column : underColumns(QLatin1String(caption)).keys())
            EXPECT_TRUE(front.contains(column) || column == QLatin1String("Out") ||
                        column == QLatin1String("Tot"))
                << caption << " " << column.toStdString();
}

TEST_F(PrintScorecardDialog, TeesWithoutHoleRowsAreWarnedAboutAndTheCardStillPrints)
{
    addCourse(app.db());
    addTeesWithoutHoles(app.db(), kCourse, QStringLiteral("Blue"));
    dialog().PrintScorecard(QString(), QString());
    PickByKeyboard(courses(), kCourse);
    PickByKeyboard(tees(), QStringLiteral("Blue"));
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(
        shown.at(0),
        QStringLiteral("Course details for the Blue tees at Pebble Creek are incomplete.  Unable to print a "
                       "scorecard for this course.  Please select Edit Course off the menu to enter course "
                       "details."),
        MsgIcon::Information, kTitle);
    // Ratings and par sums, and no names and no holes.
    EXPECT_TRUE(page.simplified().contains(QStringLiteral("Overall Rating/Slope: 73.1 / 131")));
    EXPECT_EQ(values(page, QStringLiteral("Par")), (QStringList{"36", "36", "72"}));
    EXPECT_FALSE(page.contains(kCourse));
    EXPECT_FALSE(page.contains(QStringLiteral("Blue")));
    EXPECT_EQ(values(page, QStringLiteral("Distance")), QStringList());
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(PrintScorecardDialog, AnOverflowingDistanceSumIsReportedAndNothingPrints)
{
    addCourse(app.db());
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET Yards = 4000 WHERE Hole <= 9"));
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    printButton()->click();
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown.at(0), QStringLiteral("Error 6: Overflow"), MsgIcon::Critical,
                  QStringLiteral("Quillon for Golf"));
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    EXPECT_TRUE(dialog().isVisible());
    // A card without the fault prints after it, and starts blank.
    genericOption()->click();
    const QString page = printPage();
    EXPECT_FALSE(page.contains(QStringLiteral("4000")));
    EXPECT_FALSE(page.contains(QStringLiteral("71.5")));
}

TEST_F(PrintScorecardDialog, AClosedPreviewPrintsNothingAndLeavesTheChoiceOpen)
{
    addCourse(app.db());
    app.platform().previewAnswer = false;
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    printButton()->click();
    EXPECT_EQ(app.platform().previewed, QStringList{"Scorecard"});
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(courses()->currentText(), kCourse);
}

TEST_F(PrintScorecardDialog, CancelClosesWithoutPrinting)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    control<QPushButton>(QStringLiteral("cmdCancel"))->click();
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(app.platform().previewed.isEmpty());
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
}

TEST_F(PrintScorecardDialog, TheNextPrintStartsFromABlankCardAndTheFirstChoice)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    const QString first = printPage();
    EXPECT_TRUE(first.contains(kCourse));
    dialog().PrintScorecard(QString(), QString());
    EXPECT_TRUE(selectedOption()->isChecked());
    EXPECT_EQ(courses()->currentText(), QString());
    EXPECT_FALSE(printButton()->isEnabled());
    genericOption()->click();
    const QString second = printPage();
    SCOPED_TRACE(second.toStdString());
    EXPECT_FALSE(second.contains(kCourse));
    EXPECT_FALSE(second.contains(QStringLiteral("350")));
    EXPECT_EQ(app.platform().previewed, (QStringList{"Scorecard", "Scorecard"}));
}

TEST_F(PrintScorecardDialog, ACourseNamedWithAnApostropheIsChosenAndPrinted)
{
    const QString course = QStringLiteral("O'Brien's Links");
    const QString menTees = QStringLiteral("Men's");
    addTees(app.db(), course, menTees);
    dialog().PrintScorecard(course, menTees);
    EXPECT_TRUE(selectedOption()->isChecked());
    EXPECT_EQ(courses()->currentText(), course);
    EXPECT_EQ(tees()->currentText(), menTees);
    const QString page = printPage();
    SCOPED_TRACE(page.toStdString());
    EXPECT_EQ(values(page, QStringLiteral("Course:")), (QStringList{"O'Brien's", "Links", "Golfer:"}));
    EXPECT_EQ(values(page, QStringLiteral("Tees:")), QStringList{"Men's"});
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(PrintScorecardDialog, TheTabKeyFollowsTheReadingOrder)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    EXPECT_EQ(TabWalk(selectedOption(), 6), (QStringList{"optSelectedCourse", "dbcboCourses", "cboTees",
                                                         "cmdPrint", "cmdCancel", "optSelectedCourse"}));
}

TEST_F(PrintScorecardDialog, TheKeyboardChoosesTheGenericCardAndPrintsIt)
{
    addCourse(app.db());
    dialog().PrintScorecard(kCourse, QStringLiteral("White"));
    QApplication::setActiveWindow(&dialog());
    selectedOption()->setFocus();
    QTest::keyClick(selectedOption(), Qt::Key_Right);
    EXPECT_TRUE(genericOption()->isChecked());
    expectChoiceEnabled(false);
    EXPECT_TRUE(printButton()->isDefault());
    QTest::keyClick(genericOption(), Qt::Key_Return);
    ASSERT_EQ(app.platform().printedFiles().size(), 1);
    const QStringList pages = PrintedPages(app.platform().printedFiles().last());
    ASSERT_EQ(pages.size(), 1);
    EXPECT_FALSE(pages.at(0).contains(kCourse));
    EXPECT_FALSE(dialog().isVisible());
}
