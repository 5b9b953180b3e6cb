#include "frmScorecard.h"

#include "ReportPainter.h"
#include "ScorecardData.h"

#include <QFrame>
#include <QLabel>
#include <QPalette>

#include <algorithm>

namespace quillon {

namespace {

// All places below are in twips, as a card's design is measured.
constexpr int kRowCaptionLeft = 690;
constexpr int kGridLeft = 630;
constexpr int kGridRight = 11400;
constexpr int kFirstRowTop = 1680; // "Hole"
constexpr int kRowStep = 360;
constexpr int kTextHeight = 240;
// A row's band reaches from a little above its text to the next row's band.
constexpr int kBandAbove = 60;
constexpr int kBelowGridTop = 6120; // "Date:", "Scorer:", "Attest:"
constexpr int kFooterTop = 6660;

const char *const kRowCaptions[] = {"Hole",       "Distance", "Par",        "Handicap",
                                    "Score",      "Putts",    "Fairway",    "Penalty",
                                    "Lost Balls", "Bunkers",  "Sand Saves", "Att. Saves"};
constexpr int kRows = int(std::size(kRowCaptions));
enum Row { HoleRow, DistanceRow, ParRow, HandicapRow, FairwayRow = 6 };

struct Column {
    int left;
    int width;
    QString caption;
};

// The 23 columns of lblHoleCaption: holes 1 to 9, "Out", holes 10 to 18, "In", "Tot", "Hcp", "Net".
const std::array<Column, 23> &columns()
{
    static const std::array<Column, 23> c = [] {
        std::array<Column, 23> out;
        for (int i = 0; i < 9; ++i) {
            out[i] = {1635 + 405 * i, 405, QString::number(i + 1)};
            out[10 + i] = {5820 + 405 * i, 405, QString::number(10 + i)};
        }
        out[9] = {5370, 450, QStringLiteral("Out")};
        out[19] = {9585, 525, QStringLiteral("In")};
        out[20] = {10110, 435, QStringLiteral("Tot")};
        out[21] = {10545, 420, QStringLiteral("Hcp")};
        out[22] = {10965, 435, QStringLiteral("Net")};
        return out;
    }();
    return c;
}

constexpr int kOutColumn = 9;
constexpr int kInColumn = 19;
constexpr int kTotColumn = 20;

int columnOfHole(int hole)
{
    return hole <= 9 ? hole - 1 : hole;
}

int rowTop(int row)
{
    return kFirstRowTop + kRowStep * row;
}

QLabel *addLabel(QWidget *form, const QString &text, const QRect &place, Qt::Alignment align,
                 const QString &name = QString())
{
    auto *label = new QLabel(text, form);
    label->setObjectName(name);
    label->setGeometry(place);
    label->setAlignment(align | Qt::AlignVCenter);
    return label;
}

// A caption of the card at its place, its width taken from the place.
QLabel *addCaption(QWidget *form, const QString &text, int left, int top, int width)
{
    return addLabel(form, text, frmScorecard::twips(left, top, width, kTextHeight), Qt::AlignLeft);
}

QLabel *addCell(QWidget *form, const QString &name, int column, int row)
{
    const Column &c = columns().at(column);
    return addLabel(form, QString(), frmScorecard::twips(c.left, rowTop(row), c.width, kTextHeight),
                    Qt::AlignHCenter, name);
}

// A line of the card, across or down, one pixel wide.
void addLine(QWidget *form, int x1, int y1, int x2, int y2, const QString &name = QString())
{
    auto *line = new QFrame(form);
    line->setObjectName(name);
    line->setFrameShadow(QFrame::Plain);
    line->setLineWidth(1);
    if (y1 == y2) {
        line->setFrameShape(QFrame::HLine);
        line->setGeometry(frmScorecard::twips(x1, y1, x2 - x1, 0).adjusted(0, 0, 0, 1));
    } else {
        line->setFrameShape(QFrame::VLine);
        line->setGeometry(frmScorecard::twips(x1, y1, 0, y2 - y1).adjusted(0, 0, 1, 0));
    }
}

} // namespace

QRect frmScorecard::twips(int left, int top, int width, int height)
{
    return QRect(left / kTwipsPerPixel, top / kTwipsPerPixel, width / kTwipsPerPixel,
                 height / kTwipsPerPixel);
}

frmScorecard::frmScorecard(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmScorecard"));
    setWindowTitle(QStringLiteral("Scorecard"));
    setAttribute(Qt::WA_DontShowOnScreen);
    setFixedSize(twips(0, 0, kWidthTwips, kHeightTwips).size());
    // The page is white with black print, whatever the desktop's colours; the text is sized in
    // pixels of the card so that it keeps its place in the grid on any screen.
    QPalette paper = palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    setPalette(paper);
    setAutoFillBackground(true);
    QFont text(QStringLiteral("DejaVu Sans"));
    text.setPixelSize(10);
    setFont(text);
    QFont names = text;
    names.setPixelSize(11);
    names.setBold(true);

    // Above the grid: what the card is for, and a place for the golfer's name.
    addCaption(this, QStringLiteral("Course:"), kRowCaptionLeft, 240, 750);
    m_lblCourse = addLabel(this, QString(), twips(1440, 240, 4920, kTextHeight), Qt::AlignLeft,
                           QStringLiteral("lblCourse"));
    m_lblCourse->setFont(names);
    addLine(this, 1440, 480, 6360, 480, QStringLiteral("lnCourse"));
    addCaption(this, QStringLiteral("Golfer:"), 6600, 240, 750);
    addLine(this, 7350, 480, kGridRight, 480);
    addCaption(this, QStringLiteral("Tees:"), kRowCaptionLeft, 600, 750);
    m_lblTees = addLabel(this, QString(), twips(1440, 600, 4920, kTextHeight), Qt::AlignLeft,
                         QStringLiteral("lblTees"));
    m_lblTees->setFont(names);
    addLine(this, 1440, 840, 6360, 840, QStringLiteral("lnTees"));
    addCaption(this, QStringLiteral("Front Rating/Slope:"), kRowCaptionLeft, 960, 1830);
    m_lblFrontRating = addLabel(this, QString(), twips(2520, 960, 1500, kTextHeight), Qt::AlignLeft,
                                QStringLiteral("lblFrontRating"));
    addCaption(this, QStringLiteral("Back Rating/Slope:"), 4245, 960, 1830);
    m_lblBackRating = addLabel(this, QString(), twips(6075, 960, 1500, kTextHeight), Qt::AlignLeft,
                               QStringLiteral("lblBackRating"));
    addCaption(this, QStringLiteral("Overall Rating/Slope:"), 7800, 960, 1935);
    m_lblOverallRating = addLabel(this, QString(), twips(9735, 960, 1620, kTextHeight), Qt::AlignLeft,
                                  QStringLiteral("lblOverallRating"));
    addLine(this, kRowCaptionLeft, 1200, kGridRight, 1200, QStringLiteral("lnRating"));

    // The grid: row captions down the left, column captions along the "Hole" row.
    for (int r = 0; r < kRows; ++r)
        addCaption(this, QLatin1String(kRowCaptions[r]), kRowCaptionLeft, rowTop(r), 945);
    for (int i = 0; i < int(columns().size()); ++i)
        addCell(this, QStringLiteral("lblHoleCaption_%1").arg(i), i, HoleRow)
            ->setText(columns().at(i).caption);
    for (int hole = 1; hole <= kCardHoles; ++hole) {
        const int column = columnOfHole(hole);
        m_lblDistance[hole] = addCell(this, QStringLiteral("lblDistance_%1").arg(hole), column, DistanceRow);
        m_lblPar[hole] = addCell(this, QStringLiteral("lblPar_%1").arg(hole), column, ParRow);
        m_lblHandicap[hole] = addCell(this, QStringLiteral("lblHandicap_%1").arg(hole), column, HandicapRow);
        m_lblFairway[hole] = addCell(this, QStringLiteral("lblFairway_%1").arg(hole), column, FairwayRow);
    }
    m_lblOutDistance = addCell(this, QStringLiteral("lblOutDistance"), kOutColumn, DistanceRow);
    m_lblInDistance = addCell(this, QStringLiteral("lblInDistance"), kInColumn, DistanceRow);
    m_lblTotalDistance = addCell(this, QStringLiteral("lblTotalDistance"), kTotColumn, DistanceRow);
    m_lblOutPar = addCell(this, QStringLiteral("lblOutPar"), kOutColumn, ParRow);
    m_lblInPar = addCell(this, QStringLiteral("lblInPar"), kInColumn, ParRow);
    m_lblTotalPar = addCell(this, QStringLiteral("lblTotalPar"), kTotColumn, ParRow);

    // The rules of the grid: one above each band and one under the last, and one down each edge
    // between columns; where the sum columns stand a little apart from the holes, the rule
    // runs down the middle of the gap.
    const int gridTop = rowTop(0) - kBandAbove;
    const int gridBottom = rowTop(kRows) - kBandAbove;
    for (int r = 0; r <= kRows; ++r)
        addLine(this, kGridLeft, rowTop(r) - kBandAbove, kGridRight, rowTop(r) - kBandAbove);
    std::array<Column, 23> byPlace = columns();
    std::sort(byPlace.begin(), byPlace.end(),
              [](const Column &a, const Column &b) { return a.left < b.left; });
    addLine(this, kGridLeft, gridTop, kGridLeft, gridBottom);
    addLine(this, byPlace.front().left, gridTop, byPlace.front().left, gridBottom);
    for (std::size_t i = 1; i < byPlace.size(); ++i) {
        const int x = (byPlace[i - 1].left + byPlace[i - 1].width + byPlace[i].left) / 2;
        addLine(this, x, gridTop, x, gridBottom);
    }
    addLine(this, kGridRight, gridTop, kGridRight, gridBottom);

    // Below the grid: the blanks the players sign.
    addCaption(this, QStringLiteral("Date:"), kRowCaptionLeft, kBelowGridTop, 600);
    addLine(this, 1290, kBelowGridTop + kTextHeight, 3600, kBelowGridTop + kTextHeight);
    addCaption(this, QStringLiteral("Scorer:"), 4050, kBelowGridTop, 750);
    addLine(this, 4800, kBelowGridTop + kTextHeight, 7200, kBelowGridTop + kTextHeight);
    addCaption(this, QStringLiteral("Attest:"), 7650, kBelowGridTop, 750);
    addLine(this, 8400, kBelowGridTop + kTextHeight, kGridRight, kBelowGridTop + kTextHeight);

    QLabel *footer =
        addLabel(this, FooterNotice(), twips(kGridLeft, kFooterTop, kGridRight - kGridLeft, kTextHeight),
                 Qt::AlignHCenter, QStringLiteral("lblFooterNotice"));
    QFont small = text;
    small.setPixelSize(9);
    footer->setFont(small);
}

void frmScorecard::Fill(const ScorecardData &card)
{
    m_lblFrontRating->setText(card.frontRating);
    m_lblBackRating->setText(card.backRating);
    m_lblOverallRating->setText(card.overallRating);
    m_lblInPar->setText(card.inPar);
    m_lblOutPar->setText(card.outPar);
    m_lblTotalPar->setText(card.totalPar);
    for (int hole = 1; hole <= kCardHoles; ++hole) {
        m_lblDistance[hole]->setText(card.distance[hole]);
        m_lblPar[hole]->setText(card.par[hole]);
        m_lblHandicap[hole]->setText(card.handicap[hole]);
        m_lblFairway[hole]->setText(card.fairway[hole]);
    }
    m_lblOutDistance->setText(card.outDistance);
    m_lblInDistance->setText(card.inDistance);
    m_lblTotalDistance->setText(card.totalDistance);
    m_lblCourse->setText(card.course);
    m_lblTees->setText(card.tees);
}

} // namespace quillon
