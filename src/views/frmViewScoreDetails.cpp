#include "frmViewScoreDetails.h"

#include "RoundStatistics.h"
#include "ScoreColours.h"
#include "core/DateText.h"
#include "core/NumberText.h"
#include "shell/basLogGlobals.h"
#include "store/Encodings.h"
#include "ui/Guarded.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

struct Caption {
    const char *name;
    const char *caption;
    const char *toolTip;
};

const Caption kHeader[] = {
    {"lblCourse", "Course:", ""},   {"lblTees", "Tees:", ""},         {"lblDate", "Date:", ""},
    {"lblHoles", "Holes:", ""},     {"lblType", "Type:", ""},         {"lblExcluded", "Excluded:", ""},
    {"lblTotal", "Score:", ""},     {"lblAdjustedScore", "Adjusted Score:", ""},
};

const Caption kStatistics[] = {
    {"lblPenalties", "Penalties", "Number of strokes penalized during the round."},
    {"lblLostBalls", "Lost Balls", "Number of balls lost during the round including balls lost in hazards."},
    {"lblTotalBunkers", "Total Bunkers", "Number of times the ball landed in a bunker."},
    {"lblSandSaves", "Sand Saves", "Number of times par or better was achieved after playing from a green-side bunker."},
    {"lblAttemptedSaves", "Attempted Saves", ""},
};

const Caption kPutting[] = {
    {"lblOnePutts", "1 Putts", "Number of holes played with one putt"},
    {"lblTwoPutts", "2 Putts", "Number of holes played with two putts"},
    {"lblThreePlusPutts", "3+ Putts", "Number of holes played with three or more putts"},
    {"lblChipIns", "Chip-ins", "Number of holes finished without a putt"},
    {"lblGreens", "Greens in Reg.", "Share of the holes on which the green was reached in regulation"},
    {"lblFairways", "Fairways in Reg.", "Share of the par 4 and par 5 holes on which the tee shot found the fairway"},
};

const Caption kScoring[] = {
    {"lblAvgPar3", "Avg. Par 3's", "Average Par 3 hole score"},
    {"lblAvgPar4", "Avg. Par 4's", "Average Par 4 hole score"},
    {"lblAvgPar5", "Avg. Par 5's", "Average Par 5 hole score"},
    {"lblEagles", "Eagles", "Number of hole scores that were two under par"},
    {"lblBirdies", "Birdies", "Number of hole scores that were one under par"},
    {"lblPars", "Pars", "Number of par hole scores"},
    {"lblBogeys", "Bogeys", "Number of hole scores that were one over par"},
    {"lblDoubleBogeys", "Double Bogeys", "Number of hole scores that were two over par"},
    {"lblTripleBogeys", "Triple Bogeys", "Number of hole scores that were 3 over par"},
    {"lblOthers", "Others", "Number of hole scores that were worse than a triple bogey or better than an eagle"},
};

const char *const kRoundStats[] = {"lblPenalties", "lblLostBalls", "lblTotalBunkers", "lblSandSaves",
                                   "lblAttemptedSaves"};

QLabel *valueLabel(QWidget *parent, const QString &name, const QString &toolTip = QString())
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 10);
    label->setToolTip(toolTip);
    return label;
}

QString typeName(const QString &letter)
{
    if (letter == QLatin1String("A"))
        return QStringLiteral("Away");
    if (letter == QLatin1String("H"))
        return QStringLiteral("Home");
    if (letter == QLatin1String("T"))
        return QStringLiteral("Tournament");
    return QString();
}

// A stored number as a label shows it; 0 (or Null) shows nothing where the rule says so.
QString shownUnlessZero(const QVariant &v)
{
    return v.isNull() || v.toDouble() == 0 ? QString() : DoubleText(v.toDouble());
}

} // namespace

frmViewScoreDetails::frmViewScoreDetails(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmViewScoreDetails"));
    setWindowTitle(QStringLiteral("Score Details"));
    auto *layout = new QVBoxLayout(this);

    const auto captioned = [this](QGridLayout *grid, const Caption &c, int row, int column, QWidget *parent) {
        auto *caption = new QLabel(QLatin1String(c.caption), parent);
        caption->setToolTip(QLatin1String(c.toolTip));
        QLabel *v = valueLabel(parent, QLatin1String(c.name), QLatin1String(c.toolTip));
        if (c.name == QLatin1String("lblAdjustedScore"))
            caption->setObjectName(QStringLiteral("lblAdjustedScoreCaption"));
        grid->addWidget(caption, row, column);
        grid->addWidget(v, row, column + 1);
        m_values.insert(v->objectName(), v);
    };

    auto *header = new QGridLayout;
    for (int i = 0; i < int(std::size(kHeader)); ++i)
        captioned(header, kHeader[i], i / 4, (i % 4) * 2, this);
    value(QStringLiteral("lblCourse"))->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setColumnStretch(1, 2);
    layout->addLayout(header);

    auto *stats = new QGroupBox(QStringLiteral("Misc. Stats"), this);
    auto *statsGrid = new QGridLayout(stats);
    for (int i = 0; i < int(std::size(kStatistics)); ++i)
        captioned(statsGrid, kStatistics[i], 0, i * 2, stats);
    layout->addWidget(stats);

    m_lblScore.resize(18);
    m_lblPutts.resize(18);
    m_chkFairway.resize(18);
    for (int first : {0, 9}) {
        const bool front = first == 0;
        auto *frame = new QGroupBox(front ? QStringLiteral("Front Nine") : QStringLiteral("Back Nine"), this);
        frame->setObjectName(front ? QStringLiteral("fraFrontNine") : QStringLiteral("fraBackNine"));
        auto *grid = new QGridLayout(frame);
        grid->setHorizontalSpacing(4);
        const char *rows[] = {"Hole", "Score", "Putts", "Fairways"};
        for (int r = 0; r < 4; ++r)
            grid->addWidget(new QLabel(QLatin1String(rows[r]), frame), r, 0);
        for (int h = 0; h < 9; ++h) {
            const int i = first + h;
            auto *number = new QLabel(QString::number(i + 1), frame);
            number->setAlignment(Qt::AlignCenter);
            grid->addWidget(number, 0, h + 1);
            m_lblScore[i] = valueLabel(frame, QStringLiteral("lblScore_%1").arg(i));
            m_lblPutts[i] = valueLabel(frame, QStringLiteral("lblPutts_%1").arg(i));
            auto *fairway = new QCheckBox(frame);
            fairway->setObjectName(QStringLiteral("chkFairway_%1").arg(i));
            // Shown, not changed: the view changes nothing.
            fairway->setAttribute(Qt::WA_TransparentForMouseEvents);
            fairway->setFocusPolicy(Qt::NoFocus);
            m_chkFairway[i] = fairway;
            grid->addWidget(m_lblScore[i], 1, h + 1);
            grid->addWidget(m_lblPutts[i], 2, h + 1);
            grid->addWidget(fairway, 3, h + 1, Qt::AlignCenter);
        }
        const auto sum = [&](const char *caption, const char *scoreName, const char *puttsName, int column) {
            auto *c = new QLabel(QLatin1String(caption), frame);
            c->setAlignment(Qt::AlignCenter);
            grid->addWidget(c, 0, column);
            if (*scoreName) {
                QLabel *s = valueLabel(frame, QLatin1String(scoreName));
                m_values.insert(s->objectName(), s);
                grid->addWidget(s, 1, column);
            }
            QLabel *p = valueLabel(frame, QLatin1String(puttsName));
            m_values.insert(p->objectName(), p);
            grid->addWidget(p, 2, column);
        };
        if (front) {
            sum("Out", "lblOut", "lblOutPutts", 10);
        } else {
            sum("In", "lblIn", "lblInPutts", 10);
            sum("Total", "", "lblTotalPutts", 11);
        }
        grid->setColumnStretch(12, 1);
        layout->addWidget(frame);
    }

    auto *panels = new QHBoxLayout;
    const auto panel = [&](const char *name, const Caption *captions, int count, int perColumn) {
        auto *box = new QGroupBox(this);
        box->setObjectName(QLatin1String(name));
        auto *grid = new QGridLayout(box);
        for (int i = 0; i < count; ++i)
            captioned(grid, captions[i], i % perColumn, (i / perColumn) * 2, box);
        panels->addWidget(box);
    };
    panel("Picture1", kPutting, int(std::size(kPutting)), 3);
    panel("Picture2", kScoring, int(std::size(kScoring)), 4);
    layout->addLayout(panels);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    m_cmdOK = new QPushButton(QStringLiteral("&OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    buttons->addWidget(m_cmdOK);
    layout->addLayout(buttons);
    layout->addStretch(1);
    connect(m_cmdOK, &QPushButton::clicked, this, [this] {
        // The view goes and the log it stands on comes back.
        if (parentWidget())
            parentWidget()->close();
    });
}

void frmViewScoreDetails::ShowDetails(const QString &courseName, const QString &tees, const QDate &scoreDate,
                                      qint64 scoreIndex, const QVariant &adjustedScore)
{
    value(QStringLiteral("lblCourse"))->setText(courseName);
    value(QStringLiteral("lblTees"))->setText(tees);
    value(QStringLiteral("lblDate"))->setText(DateText(scoreDate));
    m_scoreDate = scoreDate;
    m_scoreIndex = scoreIndex;
    value(QStringLiteral("lblAdjustedScore"))->setText(adjustedScore.toString());
    FillScoreDetails();
}

void frmViewScoreDetails::UpdateDetails()
{
    FillScoreDetails();
}

void frmViewScoreDetails::FormActivate()
{
    RunGuarded([] { frame().UpdateMenus(QStringLiteral("frmViewScoreDetails")); });
}

bool frmViewScoreDetails::selectedCourse(QString &course, QString &tees) const
{
    course = value(QStringLiteral("lblCourse"))->text();
    tees = value(QStringLiteral("lblTees"))->text();
    return !course.isEmpty();
}

void frmViewScoreDetails::clearCard()
{
    for (int i = 0; i < 18; ++i) {
        m_lblScore[i]->clear();
        PaintScoreLabel(*m_lblScore[i], std::nullopt);
        m_lblPutts[i]->clear();
        m_lblScore[i]->setToolTip(QString());
        m_chkFairway[i]->setChecked(false);
        m_chkFairway[i]->show();
    }
    for (const char *name : {"lblIn", "lblOut", "lblInPutts", "lblOutPutts", "lblTotalPutts"})
        value(QLatin1String(name))->clear();
    for (const Caption *list : {kPutting, kScoring})
        for (int i = 0; i < (list == kPutting ? int(std::size(kPutting)) : int(std::size(kScoring))); ++i)
            value(QLatin1String(list[i].name))->clear();
}

void frmViewScoreDetails::FillScoreDetails()
{
    Connection &c = db();
    const LogGlobals &g = basLogGlobals();
    const QString course = value(QStringLiteral("lblCourse"))->text();
    const QString tees = value(QStringLiteral("lblTees"))->text();
    clearCard();

    m_pars = QVector<std::optional<int>>(18);
    {
        Statement s = c.run(QStringLiteral("SELECT Hole, PAR, Yards, Handicap FROM CourseDetails WHERE CourseName = ? "
                                           "AND Tees = ?"),
                            {course, tees});
        while (s.next()) {
            const int i = s.value(0).toInt() - 1;
            if (i < 0 || i > 17)
                continue;
            if (!s.value(1).isNull())
                m_pars[i] = s.value(1).toInt();
            m_chkFairway[i]->setVisible(s.value(1).toInt() != 3);
            m_lblScore[i]->setToolTip(QStringLiteral("Par %1, %2 yards, Handicap %3")
                                          .arg(s.value(1).toString(), s.value(2).toString(), s.value(3).toString()));
        }
    }
    {
        Statement s = c.run(QStringLiteral("SELECT Type, Used, Holes, Score, AdjustedScore, Penalties, LostBalls, "
                                           "Bunkers, SandSaves, AttemptedSaves FROM ScoreLog WHERE ScoreIndex = ? AND "
                                           "LastName = ? AND FirstName = ? AND CourseName = ? AND Tees = ? AND Date = ?"),
                            {m_scoreIndex, g.gLastName, g.gFirstName, course, tees, IsoDate(m_scoreDate)});
        if (s.next()) {
            value(QStringLiteral("lblType"))->setText(typeName(s.value(0).toString()));
            value(QStringLiteral("lblExcluded"))
                ->setText(s.value(1).toString() == UsedMark::Excluded ? QStringLiteral("Yes") : QStringLiteral("No"));
            value(QStringLiteral("lblHoles"))->setText(s.value(2).toString());
            value(QStringLiteral("lblTotal"))->setText(shownUnlessZero(s.value(3)));
            value(QStringLiteral("lblAdjustedScore"))->setText(shownUnlessZero(s.value(4)));
            for (int i = 0; i < 5; ++i) {
                const QVariant v = s.value(5 + i);
                // -1 is "not recorded"; a recorded 0 shows.
                value(QLatin1String(kRoundStats[i]))
                    ->setText(v.isNull() || v.toInt() == -1 ? QString() : DoubleText(v.toDouble()));
            }
        }
    }
    Statement s = c.run(QStringLiteral("SELECT Hole, Score, Putts, Fairway FROM ScoreDetails WHERE ScoreIndex = ? AND "
                                       "LastName = ? AND FirstName = ? AND Date = ? AND CourseName = ? AND Tees = ? "
                                       "ORDER BY Hole"),
                        {m_scoreIndex, g.gLastName, g.gFirstName, IsoDate(m_scoreDate), course, tees});
    bool any = false;
    int front = 0, back = 0, frontPutts = 0, backPutts = 0;
    while (s.next()) {
        any = true;
        const int hole = s.value(0).toInt();
        const int i = hole - 1;
        if (i < 0 || i > 17)
            continue;
        if (!s.value(1).isNull()) {
            m_lblScore[i]->setText(s.value(1).toString());
            (hole <= 9 ? front : back) += s.value(1).toInt();
        }
        if (!s.value(2).isNull()) {
            m_lblPutts[i]->setText(s.value(2).toString());
            (hole <= 9 ? frontPutts : backPutts) += s.value(2).toInt();
        }
        if (s.value(3).toInt() == 1)
            m_chkFairway[i]->setChecked(true);
        if (m_pars.at(i) && !s.value(1).isNull())
            PaintScoreLabel(*m_lblScore[i], ScoreToParColour(s.value(1).toInt() - *m_pars.at(i)));
    }
    if (!any)
        return; // a round without details: the scorecard stays blank
    const auto shownIfAbove0 = [](int v) { return v > 0 ? QString::number(v) : QString(); };
    value(QStringLiteral("lblIn"))->setText(shownIfAbove0(back));
    value(QStringLiteral("lblOut"))->setText(shownIfAbove0(front));
    value(QStringLiteral("lblInPutts"))->setText(shownIfAbove0(backPutts));
    value(QStringLiteral("lblOutPutts"))->setText(shownIfAbove0(frontPutts));
    value(QStringLiteral("lblTotal"))->setText(QString::number(front + back));
    value(QStringLiteral("lblTotalPutts"))->setText(QString::number(frontPutts + backPutts));
    ComputeRoundStatistics();
}

void frmViewScoreDetails::ComputeRoundStatistics()
{
    QVector<DetailHole> holes(18);
    for (int i = 0; i < 18; ++i)
        holes[i] = {m_lblScore[i]->text(), m_lblPutts[i]->text(), m_pars.at(i), m_chkFairway[i]->isChecked()};
    const RoundStatistics st = quillon::ComputeRoundStatistics(holes);
    const auto show = [this](const char *name, const QString &text) { value(QLatin1String(name))->setText(text); };
    show("lblOnePutts", QString::number(st.onePutts));
    show("lblTwoPutts", QString::number(st.twoPutts));
    show("lblThreePlusPutts", QString::number(st.threePlusPutts));
    show("lblChipIns", QString::number(st.chipIns));
    if (st.greens)
        show("lblGreens", *st.greens); // over no hole with a par it keeps what it held
    show("lblFairways", st.fairways);
    show("lblAvgPar3", st.avgPar3);
    show("lblAvgPar4", st.avgPar4);
    show("lblAvgPar5", st.avgPar5);
    show("lblEagles", QString::number(st.eagles));
    show("lblBirdies", QString::number(st.birdies));
    show("lblPars", QString::number(st.pars));
    show("lblBogeys", QString::number(st.bogeys));
    show("lblDoubleBogeys", QString::number(st.doubleBogeys));
    show("lblTripleBogeys", QString::number(st.tripleBogeys));
    show("lblOthers", QString::number(st.others));
}

} // namespace quillon
