#include "ScoreDetailsCard.h"

#include "RoundStatistics.h"
#include "ScoreColours.h"
#include "core/DateText.h"
#include "core/NumberText.h"
#include "store/Encodings.h"
#include "store/basDatabase.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace quillon {

namespace {

struct Caption {
    const char *name;
    const char *caption;
    const char *toolTip;
};

const Caption kHeader[] = {
    {"lblCourse", "Course:", ""}, {"lblTees", "Tees:", ""},
    {"lblDate", "Date:", ""},     {"lblHoles", "Holes:", ""},
    {"lblType", "Type:", ""},     {"lblExcluded", "Excluded:", ""},
    {"lblTotal", "Score:", ""},   {"lblAdjustedScore", "Adjusted Score:", ""},
};

const Caption kStatistics[] = {
    {"lblPenalties", "Penalties", "Number of strokes penalized during the round."},
    {"lblLostBalls", "Lost Balls", "Number of balls lost during the round including balls lost in hazards."},
    {"lblTotalBunkers", "Total Bunkers", "Number of times the ball landed in a bunker."},
    {"lblSandSaves", "Sand Saves",
     "Number of times par or better was achieved after playing from a green-side bunker."},
    {"lblAttemptedSaves", "Attempted Saves", ""},
};

const Caption kPutting[] = {
    {"lblOnePutts", "1 Putts", "Number of holes played with one putt"},
    {"lblTwoPutts", "2 Putts", "Number of holes played with two putts"},
    {"lblThreePlusPutts", "3+ Putts", "Number of holes played with three or more putts"},
    {"lblChipIns", "Chip-ins", "Number of holes finished without a putt"},
    {"lblGreens", "Greens in Reg.", "Share of the holes on which the green was reached in regulation"},
    {"lblFairways", "Fairways in Reg.",
     "Share of the par 4 and par 5 holes on which the tee shot found the fairway"},
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
    {"lblOthers", "Others",
     "Number of hole scores that were worse than a triple bogey or better than an eagle"},
};

const char *const kRoundStats[] = {"lblPenalties", "lblLostBalls", "lblTotalBunkers", "lblSandSaves",
                                   "lblAttemptedSaves"};

const char *const kSums[] = {"lblIn", "lblOut", "lblInPutts", "lblOutPutts", "lblTotalPutts"};

// Only the screen tells these; the page leaves them out.
bool onScreenOnly(const char *name)
{
    return qstrcmp(name, "lblExcluded") == 0 || qstrcmp(name, "lblHoles") == 0;
}

QLabel *valueLabel(QWidget *parent, const QString &name, CardFace face, const QString &toolTip = QString())
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    // A plain box prints as a clean line; the screen keeps the sunken panel of a read-only field.
    label->setFrameStyle(face == CardFace::Screen ? QFrame::Panel | QFrame::Sunken
                                                  : QFrame::Box | QFrame::Plain);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 10);
    if (face == CardFace::Screen)
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

void setText(const ScoreDetailsCard &card, const char *name, const QString &text)
{
    if (QLabel *label = card.value(QLatin1String(name)))
        label->setText(text);
}

void clearCard(ScoreDetailsCard &card)
{
    for (int i = 0; i < 18; ++i) {
        card.score[i]->clear();
        if (card.face == CardFace::Screen) {
            PaintScoreLabel(*card.score[i], std::nullopt);
            card.score[i]->setToolTip(QString());
        }
        card.putts[i]->clear();
        card.fairway[i]->setChecked(false);
        card.fairway[i]->show();
    }
    for (const char *name : kSums)
        setText(card, name, QString());
    for (const Caption &c : kPutting)
        setText(card, c.name, QString());
    for (const Caption &c : kScoring)
        setText(card, c.name, QString());
}

} // namespace

ScoreDetailsCard BuildScoreDetailsCard(QWidget *parent, QBoxLayout *into, CardFace face)
{
    ScoreDetailsCard card;
    card.face = face;
    const bool screen = face == CardFace::Screen;

    const auto captioned = [&card, face, screen](QGridLayout *grid, const Caption &c, int row, int column,
                                                 QWidget *owner) {
        auto *caption = new QLabel(QLatin1String(c.caption), owner);
        if (screen)
            caption->setToolTip(QLatin1String(c.toolTip));
        QLabel *v = valueLabel(owner, QLatin1String(c.name), face, QLatin1String(c.toolTip));
        if (c.name == QLatin1String("lblAdjustedScore"))
            caption->setObjectName(QStringLiteral("lblAdjustedScoreCaption"));
        grid->addWidget(caption, row, column);
        grid->addWidget(v, row, column + 1);
        card.values.insert(v->objectName(), v);
    };

    // The page leaves out two fields of the header; the others keep their places.
    auto *header = new QGridLayout;
    for (int i = 0; i < int(std::size(kHeader)); ++i)
        if (screen || !onScreenOnly(kHeader[i].name))
            captioned(header, kHeader[i], i / 4, (i % 4) * 2, parent);
    card.value(QStringLiteral("lblCourse"))->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setColumnStretch(1, 2);
    into->addLayout(header);

    auto *stats = new QGroupBox(QStringLiteral("Misc. Stats"), parent);
    auto *statsGrid = new QGridLayout(stats);
    for (int i = 0; i < int(std::size(kStatistics)); ++i)
        captioned(statsGrid, kStatistics[i], 0, i * 2, stats);
    into->addWidget(stats);

    card.score.resize(18);
    card.putts.resize(18);
    card.fairway.resize(18);
    for (int first : {0, 9}) {
        const bool front = first == 0;
        auto *frame =
            new QGroupBox(front ? QStringLiteral("Front Nine") : QStringLiteral("Back Nine"), parent);
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
            card.score[i] = valueLabel(frame, QStringLiteral("lblScore_%1").arg(i), face);
            card.putts[i] = valueLabel(frame, QStringLiteral("lblPutts_%1").arg(i), face);
            auto *fairway = new QCheckBox(frame);
            fairway->setObjectName(QStringLiteral("chkFairway_%1").arg(i));
            // Shown, not changed: the card changes nothing.
            fairway->setAttribute(Qt::WA_TransparentForMouseEvents);
            fairway->setFocusPolicy(Qt::NoFocus);
            card.fairway[i] = fairway;
            grid->addWidget(card.score[i], 1, h + 1);
            grid->addWidget(card.putts[i], 2, h + 1);
            grid->addWidget(fairway, 3, h + 1, Qt::AlignCenter);
        }
        const auto sum = [&](const char *caption, const char *scoreName, const char *puttsName, int column) {
            auto *c = new QLabel(QLatin1String(caption), frame);
            c->setAlignment(Qt::AlignCenter);
            grid->addWidget(c, 0, column);
            if (*scoreName) {
                QLabel *s = valueLabel(frame, QLatin1String(scoreName), face);
                card.values.insert(s->objectName(), s);
                grid->addWidget(s, 1, column);
            }
            QLabel *p = valueLabel(frame, QLatin1String(puttsName), face);
            card.values.insert(p->objectName(), p);
            grid->addWidget(p, 2, column);
        };
        if (front) {
            sum("Out", "lblOut", "lblOutPutts", 10);
        } else {
            sum("In", "lblIn", "lblInPutts", 10);
            sum("Total", "", "lblTotalPutts", 11);
        }
        grid->setColumnStretch(12, 1);
        into->addWidget(frame);
    }

    auto *panels = new QHBoxLayout;
    const auto panel = [&](const char *name, const Caption *captions, int count, int perColumn) {
        auto *box = new QGroupBox(parent);
        box->setObjectName(QLatin1String(name));
        auto *grid = new QGridLayout(box);
        for (int i = 0; i < count; ++i)
            captioned(grid, captions[i], i % perColumn, (i / perColumn) * 2, box);
        panels->addWidget(box);
    };
    panel("Picture1", kPutting, int(std::size(kPutting)), 3);
    panel("Picture2", kScoring, int(std::size(kScoring)), 4);
    into->addLayout(panels);
    return card;
}

bool FillScoreDetailsCard(ScoreDetailsCard &card, Connection &c, const QString &last, const QString &first,
                          const QDate &date, qint64 scoreIndex)
{
    const bool screen = card.face == CardFace::Screen;
    const QString course = card.value(QStringLiteral("lblCourse"))->text();
    const QString tees = card.value(QStringLiteral("lblTees"))->text();
    clearCard(card);

    card.pars = QVector<std::optional<int>>(18);
    {
        Statement s =
            c.run(QStringLiteral("SELECT Hole, PAR, Yards, Handicap FROM CourseDetails WHERE CourseName = ? "
                                 "AND Tees = ?"),
                  {course, tees});
        while (s.next()) {
            const int i = s.value(0).toInt() - 1;
            if (i < 0 || i > 17)
                continue;
            if (!s.value(1).isNull())
                card.pars[i] = s.value(1).toInt();
            card.fairway[i]->setVisible(s.value(1).toInt() != 3);
            if (screen)
                card.score[i]->setToolTip(
                    QStringLiteral("Par %1, %2 yards, Handicap %3")
                        .arg(s.value(1).toString(), s.value(2).toString(), s.value(3).toString()));
        }
    }
    {
        Statement s = c.run(
            QStringLiteral("SELECT Type, Used, Holes, Score, AdjustedScore, Penalties, LostBalls, "
                           "Bunkers, SandSaves, AttemptedSaves FROM ScoreLog WHERE ScoreIndex = ? AND "
                           "LastName = ? AND FirstName = ? AND CourseName = ? AND Tees = ? AND Date = ?"),
            {scoreIndex, last, first, course, tees, IsoDate(date)});
        if (s.next()) {
            setText(card, "lblType", typeName(s.value(0).toString()));
            setText(card, "lblExcluded",
                    s.value(1).toString() == UsedMark::Excluded ? QStringLiteral("Yes")
                                                                : QStringLiteral("No"));
            setText(card, "lblHoles", s.value(2).toString());
            setText(card, "lblTotal", shownUnlessZero(s.value(3)));
            setText(card, "lblAdjustedScore", shownUnlessZero(s.value(4)));
            for (int i = 0; i < 5; ++i) {
                const QVariant v = s.value(5 + i);
                // -1 is "not recorded"; a recorded 0 shows.
                setText(card, kRoundStats[i],
                        v.isNull() || v.toInt() == -1 ? QString() : DoubleText(v.toDouble()));
            }
        }
    }
    Statement s =
        c.run(QStringLiteral("SELECT Hole, Score, Putts, Fairway FROM ScoreDetails WHERE ScoreIndex = ? AND "
                             "LastName = ? AND FirstName = ? AND Date = ? AND CourseName = ? AND Tees = ? "
                             "ORDER BY Hole"),
              {scoreIndex, last, first, IsoDate(date), course, tees});
    bool any = false;
    int front = 0, back = 0, frontPutts = 0, backPutts = 0;
    while (s.next()) {
        any = true;
        const int hole = s.value(0).toInt();
        const int i = hole - 1;
        if (i < 0 || i > 17)
            continue;
        if (!s.value(1).isNull()) {
            card.score[i]->setText(s.value(1).toString());
            (hole <= 9 ? front : back) += s.value(1).toInt();
        }
        if (!s.value(2).isNull()) {
            card.putts[i]->setText(s.value(2).toString());
            (hole <= 9 ? frontPutts : backPutts) += s.value(2).toInt();
        }
        if (s.value(3).toInt() == 1)
            card.fairway[i]->setChecked(true);
        if (screen && card.pars.at(i) && !s.value(1).isNull())
            PaintScoreLabel(*card.score[i], ScoreToParColour(s.value(1).toInt() - *card.pars.at(i)));
    }
    if (!any)
        return false; // a round without details: the scorecard stays blank
    // A sum of nothing: blank on the screen; a single blank on the page, where the round totals
    // are blank too rather than 0.
    const QString nothing = screen ? QString() : QStringLiteral(" ");
    const auto shownIfAbove0 = [&nothing](int v) { return v > 0 ? QString::number(v) : nothing; };
    setText(card, "lblIn", shownIfAbove0(back));
    setText(card, "lblOut", shownIfAbove0(front));
    setText(card, "lblInPutts", shownIfAbove0(backPutts));
    setText(card, "lblOutPutts", shownIfAbove0(frontPutts));
    setText(card, "lblTotal", screen ? QString::number(front + back) : shownIfAbove0(front + back));
    setText(card, "lblTotalPutts",
            screen ? QString::number(frontPutts + backPutts) : shownIfAbove0(frontPutts + backPutts));
    return true;
}

void ShowRoundStatistics(ScoreDetailsCard &card)
{
    QVector<DetailHole> holes(18);
    for (int i = 0; i < 18; ++i)
        holes[i] = {card.score[i]->text(), card.putts[i]->text(), card.pars.value(i),
                    card.fairway[i]->isChecked()};
    const RoundStatistics st = ComputeRoundStatistics(holes);
    const auto show = [&card](const char *name, const QString &text) { setText(card, name, text); };
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
