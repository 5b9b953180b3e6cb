#include "frmUltimateScore.h"

#include "ScoreColours.h"
#include "core/DateText.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/CourseTeesRow.h"
#include "ui/Guarded.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QVBoxLayout>

namespace quillon {

namespace {

const LogGlobals &golfer()
{
    return basLogGlobals();
}

// The courses of the golfer's rounds entered hole by hole, each once: a course played from two
// sets of tees would only repeat its name, the tees being chosen in their own list.
QStringList CoursesPlayed()
{
    return FirstColumn(db(),
                       QStringLiteral("SELECT DISTINCT CourseName FROM ScoreDetails WHERE LastName = ? AND "
                                      "FirstName = ? ORDER BY CourseName ASC"),
                       {golfer().gLastName, golfer().gFirstName});
}

QStringList TeesPlayed(const QString &course)
{
    return FirstColumn(db(),
                       QStringLiteral("SELECT DISTINCT Tees FROM ScoreDetails WHERE LastName = ? AND FirstName = ? "
                                      "AND CourseName = ? ORDER BY Tees ASC"),
                       {golfer().gLastName, golfer().gFirstName, course});
}

bool HasDetails(const QString &course, const QString &tees)
{
    return Scalar(db(),
                  QStringLiteral(
                      "SELECT EXISTS (SELECT 1 FROM ScoreDetails WHERE LastName = ? AND FirstName = ? "
                      "AND CourseName = ? AND Tees = ?)"),
                  {golfer().gLastName, golfer().gFirstName, course, tees})
               .toInt() != 0;
}

QVariantList ReadParTotals(const QString &course, const QString &tees)
{
    Statement s = db().run(
        QStringLiteral("SELECT ParOut, ParIn, TotalPar FROM CourseLog WHERE CourseName = ? AND Tees = ?"),
        {course, tees});
    if (!s.next())
        return {};
    return {s.value(0), s.value(1), s.value(2)};
}

QVector<QVariantList> ReadHoles(const QString &course, const QString &tees)
{
    QVector<QVariantList> out;
    Statement s =
        db().run(QStringLiteral("SELECT Hole, PAR, Handicap, Yards FROM CourseDetails WHERE CourseName = ? "
                                "AND Tees = ? ORDER BY Hole"),
                 {course, tees});
    while (s.next())
        out.push_back({s.value(0), s.value(1), s.value(2), s.value(3)});
    return out;
}

QString YearStart()
{
    return IsoDate(QDate(platform().today().year(), 1, 1));
}

bool PlayedThisYear(const QString &course, const QString &tees)
{
    return Scalar(db(),
                  QStringLiteral(
                      "SELECT EXISTS (SELECT 1 FROM ScoreDetails WHERE FirstName = ? AND LastName = ? "
                      "AND CourseName = ? AND Tees = ? AND Date >= ?)"),
                  {golfer().gFirstName, golfer().gLastName, course, tees, YearStart()})
               .toInt() != 0;
}

// Each hole's scores in the order they were stored, of this year's rounds only when asked.
ScoresByHole ReadScores(const QString &course, const QString &tees, bool currentYearOnly)
{
    QString sql =
        QStringLiteral("SELECT Hole, Score FROM ScoreDetails WHERE FirstName = ? AND LastName = ? AND "
                       "CourseName = ? AND Tees = ?");
    Params params = {golfer().gFirstName, golfer().gLastName, course, tees};
    if (currentYearOnly) {
        sql += QStringLiteral(" AND Date >= ?");
        params << YearStart();
    }
    sql += QStringLiteral(" ORDER BY Hole, rowid");
    ScoresByHole scores;
    Statement s = db().run(sql, params);
    while (s.next()) {
        const int index = s.value(0).toInt() - 1;
        if (index >= 0 && index < kUltimateHoles)
            scores[index].push_back(s.value(1));
    }
    return scores;
}

// 0 or Null in CourseLog means "not entered".
bool entered(const QVariant &value)
{
    return !value.isNull() && value.toDouble() != 0;
}

// The page's totals stand one blank clear of the right edge of their labels.
QString pageText(const QString &value)
{
    return value + QLatin1Char(' ');
}

} // namespace

frmUltimateScore::frmUltimateScore(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmUltimateScore"));
    setWindowTitle(QStringLiteral("Ultimate Scorecard"));

    auto *layout = new QVBoxLayout(this);
    m_lblDescription = new QLabel(this);
    m_lblDescription->setObjectName(QStringLiteral("lblDescription"));
    m_lblDescription->setWordWrap(true);
    m_lblDescription->setText(QStringLiteral(
        "The Ultimate Scorecard shows your golfing potential!  Your scores on each hole at the "
        "specified course and tees are examined, and the best score for each hole is entered on "
        "the Ultimate Scorecard.  The result is the score you would achieve if you golfed your "
        "best on each hole!"));
    layout->addWidget(m_lblDescription);

    const CourseTeesLists lists = AddCourseTeesRow(this, layout);
    m_dbcboCourses = lists.courses;
    m_cboTees = lists.tees;

    m_chkCurrentYear = new QCheckBox(QStringLiteral("Show ultimate scorecard for current year only"), this);
    m_chkCurrentYear->setObjectName(QStringLiteral("chkCurrentYear"));
    // Nothing to narrow down before tees are chosen.
    m_chkCurrentYear->setEnabled(false);
    layout->addWidget(m_chkCurrentYear);

    m_card = BuildUltimateNines(this, layout);
    m_lblNumRounds = new QLabel(this);
    m_lblNumRounds->setObjectName(QStringLiteral("lblNumRounds"));
    layout->addWidget(m_lblNumRounds);
    layout->addStretch(1);

    // These handlers have no trap of their own: a fault goes to the last line of defence.
    connect(m_dbcboCourses, &QComboBox::currentTextChanged, this,
            [this] { RunUntrapped([this] { courseChanged(); }); });
    connect(m_cboTees, &QComboBox::activated, this, [this] { RunUntrapped([this] { teesChosen(); }); });
    // The box narrows the pass without clearing the card first: a hole without a row in the
    // narrower set keeps its cell while the sums leave it out, until the next tees choice.
    connect(m_chkCurrentYear, &QCheckBox::clicked, this,
            [this] { RunUntrapped([this] { ShowBestScores(); }); });
}

frmUltimateScore::~frmUltimateScore() = default;

bool frmUltimateScore::ShowUltimateScore(const QString &courseName, const QString &tees)
{
    bool shown = false;
    RunGuarded([&] {
        if (!courseName.isEmpty() && !tees.isEmpty() && !HasDetails(courseName, tees)) {
            platform().messageBox(
                QStringLiteral("You have not entered any scores with details on the selected course."),
                MsgIcon::Exclamation, windowTitle());
            return;
        }
        const QStringList courses = CoursesPlayed();
        if (courses.isEmpty()) {
            platform().messageBox(
                QStringLiteral("You must enter scores with details before viewing the Ultimate Scorecard."),
                MsgIcon::Exclamation, windowTitle());
            return;
        }
        {
            const QSignalBlocker quiet(m_dbcboCourses);
            m_dbcboCourses->clear();
            m_dbcboCourses->addItems(courses);
            m_dbcboCourses->setCurrentIndex(-1);
        }
        m_cboTees->clear();
        shown = true;
        if (!courseName.isEmpty()) {
            const int at = m_dbcboCourses->findText(courseName, Qt::MatchFixedString);
            if (at >= 0)
                m_dbcboCourses->setCurrentIndex(at); // the course change chooses its first tees
        }
        // The tees asked for count only where the course change left the box blank.
        if (m_cboTees->currentText().isEmpty() && !tees.isEmpty()) {
            m_cboTees->clear();
            m_cboTees->addItem(tees);
        }
    });
    return shown;
}

void frmUltimateScore::UpdateScorecard()
{
    RunUntrapped([this] { teesChosen(); });
    if (auto *window = qobject_cast<QMdiSubWindow *>(parentWidget()))
        window->showMaximized();
}

void frmUltimateScore::FormActivate()
{
    RunGuarded([this] { frame().UpdateMenus(QStringLiteral("frmUltimateScore")); });
    // A round on another course may have come while another form was in front; the card itself
    // is read again by those who change its rows (a saved round, a course edited).
    RunUntrapped([this] { refreshLists(); });
}

bool frmUltimateScore::selectedCourse(QString &course, QString &tees) const
{
    course = m_dbcboCourses->currentText();
    tees = m_cboTees->currentText();
    return !course.isEmpty() && !tees.isEmpty();
}

void frmUltimateScore::closeEvent(QCloseEvent *event)
{
    m_print.reset();
    ViewForm::closeEvent(event);
}

void frmUltimateScore::courseChanged()
{
    const QStringList tees = TeesPlayed(m_dbcboCourses->currentText());
    m_cboTees->clear();
    if (tees.isEmpty())
        return;
    m_cboTees->addItems(tees);
    m_cboTees->setCurrentIndex(0);
    teesChosen();
}

void frmUltimateScore::teesChosen()
{
    const QString course = m_dbcboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    if (tees.isEmpty())
        return;
    ClearScorecard(3);
    frmPrintUltimate &p = page();

    const QVariantList log = ReadParTotals(course, tees);
    if (!log.isEmpty()) {
        QLabel *const mine[] = {m_card.parOut, m_card.parIn, m_card.totalPar};
        QLabel *const theirs[] = {p.card().parOut, p.card().parIn, p.card().totalPar};
        for (int i = 0; i < 3; ++i) {
            const QVariant value = log.at(i);
            if (!entered(value))
                continue;
            mine[i]->setText(CellText(value));
            theirs[i]->setText(pageText(CellText(value)));
        }
    }

    const QVector<QVariantList> holes = ReadHoles(course, tees);
    if (holes.isEmpty()) {
        platform().messageBox(
            QStringLiteral("Course details for the %1 tees at %2 are incomplete.  Unable to "
                           "display an ultimate scorecard.  Please select Edit Course off the "
                           "menu to enter course details.")
                .arg(tees, course),
            MsgIcon::Information, windowTitle());
        return;
    }
    for (const QVariantList &row : holes) {
        const int index = row.at(0).toInt() - 1;
        if (index < 0 || index >= kUltimateHoles)
            continue;
        if (!row.at(1).isNull()) {
            m_card.par[index]->setText(CellText(row.at(1)));
            p.card().par[index]->setText(CellText(row.at(1)));
        }
        if (!row.at(2).isNull()) {
            m_card.hdcp[index]->setText(CellText(row.at(2)));
            p.card().hdcp[index]->setText(CellText(row.at(2)));
        }
        m_card.par[index]->setToolTip(row.at(3).isNull() ? QString()
                                                         : CellText(row.at(3)) + QStringLiteral(" yards"));
    }

    const LogGlobals &g = golfer();
    p.lblCourse()->setText(course);
    p.lblTees()->setText(tees);
    p.lblGolfer()->setText(g.gFirstName + QLatin1Char(' ') + g.gLastName);
    // The panel's first ten characters are its own caption, "Handicap: ".
    if (const QLabel *panel = frame().panel(QStringLiteral("Handicap")))
        p.lblHandicap()->setText(panel->text().mid(10));
    p.lblDate()->setText(DateText(platform().today()));

    if (!PlayedThisYear(course, tees)) {
        m_chkCurrentYear->setChecked(false);
        m_chkCurrentYear->setEnabled(false);
    } else {
        m_chkCurrentYear->setEnabled(true);
    }

    if (!ShowBestScores())
        ClearScorecard(3);
}

bool frmUltimateScore::ShowBestScores()
{
    const QString course = m_dbcboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    const ScoresByHole scores = ReadScores(course, tees, m_chkCurrentYear->isChecked());
    ParCaptions pars;
    for (int i = 0; i < kUltimateHoles; ++i)
        pars[i] = m_card.par.at(i)->text();
    const UltimatePass pass = BestScores(scores, pars);

    frmPrintUltimate &p = page();
    for (int i = 0; i < kUltimateHoles; ++i) {
        const UltimateHole &hole = pass.holes[i];
        if (!hole.played)
            continue;
        m_card.score.at(i)->setText(hole.best);
        p.card().score.at(i)->setText(hole.best);
        // The colours are the screen's only.
        if (hole.toPar)
            PaintScoreLabel(*m_card.score.at(i), ScoreToParColour(*hole.toPar));
    }
    if (pass.roundsPlayed) {
        const std::optional<QString> text = RoundsPlayedText(*pass.roundsPlayed);
        for (QLabel *label : {m_lblNumRounds, p.lblNumRounds()}) {
            if (text)
                label->setText(*text);
            label->setVisible(text.has_value());
        }
    }
    const struct {
        const std::optional<qint16> &sum;
        QLabel *mine;
        QLabel *theirs;
    } sums[] = {{pass.out, m_card.out, p.card().out},
                {pass.in, m_card.in, p.card().in},
                {pass.total, m_card.total, p.card().total}};
    for (const auto &s : sums) {
        if (!s.sum)
            continue;
        s.mine->setText(QString::number(*s.sum));
        s.theirs->setText(pageText(QString::number(*s.sum)));
    }
    if (pass.failure)
        throw *pass.failure;

    switch (pass.outcome) {
    case UltimateOutcome::NoScores:
        platform().messageBox(
            QStringLiteral("Unable to show the ultimate scorecard for the %1 tees at %2 -- you "
                           "have not entered any score details rounds played on this course.  "
                           "Please select a different course and/or tees.")
                .arg(tees, course),
            MsgIcon::Exclamation, windowTitle());
        return false;
    case UltimateOutcome::FrontOnly: ClearScorecard(2); break;
    case UltimateOutcome::BackOnly: ClearScorecard(1); break;
    case UltimateOutcome::BothNines: break;
    }
    return true;
}

void frmUltimateScore::ClearScorecard(int which)
{
    frmPrintUltimate &p = page();
    const bool front = which == 1 || which == 3;
    const bool back = which == 2 || which == 3;
    for (UltimateCardLabels *card : {&m_card, &p.card()}) {
        for (int i = 0; i < kUltimateHoles; ++i) {
            if (!(i < 9 ? front : back))
                continue;
            card->score.at(i)->clear();
            card->par.at(i)->clear();
            card->hdcp.at(i)->clear();
        }
        if (front) {
            card->out->clear();
            card->parOut->clear();
        }
        if (back) {
            card->in->clear();
            card->parIn->clear();
        }
        // A card of one nine has no total.
        card->total->clear();
        card->totalPar->clear();
    }
    for (int i = 0; i < kUltimateHoles; ++i) {
        if (!(i < 9 ? front : back))
            continue;
        PaintScoreLabel(*m_card.score.at(i), std::nullopt);
        // A blank par has no length to tell.
        m_card.par.at(i)->setToolTip(QString());
    }
    if (which == 3) {
        m_lblNumRounds->clear();
        p.lblNumRounds()->clear();
    }
}

void frmUltimateScore::refreshLists()
{
    const QString course = m_dbcboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    if (course.isEmpty())
        return; // nothing chosen yet: the list stands as it was given
    const QStringList courses = CoursesPlayed();
    {
        const QSignalBlocker quiet(m_dbcboCourses);
        m_dbcboCourses->clear();
        m_dbcboCourses->addItems(courses);
        m_dbcboCourses->setCurrentIndex(m_dbcboCourses->findText(course, Qt::MatchFixedString));
    }
    const QStringList teesList = m_dbcboCourses->currentIndex() < 0 ? QStringList() : TeesPlayed(course);
    m_cboTees->clear();
    m_cboTees->addItems(teesList);
    m_cboTees->setCurrentIndex(m_cboTees->findText(tees, Qt::MatchFixedString));
    // The rounds of the card are gone: nothing of them stays on it.
    if (m_cboTees->currentIndex() < 0 && !tees.isEmpty())
        ClearScorecard(3);
}

frmPrintUltimate &frmUltimateScore::page()
{
    // The page is made by the first write into it.
    if (!m_print)
        m_print = std::make_unique<frmPrintUltimate>();
    return *m_print;
}

} // namespace quillon
