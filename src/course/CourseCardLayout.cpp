#include "CourseCardLayout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace quillon {

namespace {

struct NineText {
    CardNine nine;
    const char *frame;
    const char *rating;
    const char *slope;
};

const NineText kNines[] = {
    {CardNine::Overall, "Overall Rating/Slope", "Course Rating:", "Slope Rating:"},
    {CardNine::Front, "Front Nine", "Course Rating (front nine):", "Slope Rating (front nine):"},
    {CardNine::Back, "Back Nine", "Course Rating (back nine):", "Slope Rating (back nine):"},
};

QLabel *caption(const char *text, QWidget *parent, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter)
{
    auto *label = new QLabel(QString::fromLatin1(text), parent);
    label->setAlignment(align);
    return label;
}

void addHoleGrid(QGroupBox *box, QVBoxLayout *column, CardNine nine, const CourseCardCells &cells)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    const int first = nine == CardNine::Front ? 0 : 9;
    grid->addWidget(caption("Hole", box), 0, 0);
    for (int h = 0; h < 9; ++h)
        grid->addWidget(caption(QByteArray::number(first + h + 1).constData(), box, Qt::AlignCenter), 0, h + 1);
    const QList<CardSum> sums =
        nine == CardNine::Front ? QList<CardSum>{CardSum::Out} : QList<CardSum>{CardSum::In, CardSum::Total};
    const char *sumCaptions[] = {"Out", "In", "Total"};
    for (int s = 0; s < sums.size(); ++s)
        grid->addWidget(caption(sumCaptions[int(sums[s])], box, Qt::AlignCenter), 0, 10 + s);

    const struct {
        CardRow row;
        const char *text;
    } rows[] = {{CardRow::Par, "Par"}, {CardRow::Yards, "Yards"}, {CardRow::Hdcp, "Hdcp"}};
    for (int r = 0; r < 3; ++r) {
        grid->addWidget(caption(rows[r].text, box), r + 1, 0);
        for (int h = 0; h < 9; ++h)
            grid->addWidget(cells.hole(rows[r].row, first + h), r + 1, h + 1);
        if (rows[r].row == CardRow::Hdcp)
            continue;
        for (int s = 0; s < sums.size(); ++s)
            grid->addWidget(cells.sum(rows[r].row, sums[s]), r + 1, 10 + s);
    }
    // The cells keep their own width; what is left over stands at the right.
    grid->setColumnStretch(10 + sums.size(), 1);
    column->addLayout(grid);
}

} // namespace

void BuildCourseCard(QWidget *parent, QBoxLayout *into, const CourseCardCells &cells)
{
    for (const NineText &n : kNines) {
        auto *box = new QGroupBox(QString::fromLatin1(n.frame), parent);
        auto *column = new QVBoxLayout(box);
        auto *ratings = new QHBoxLayout;
        ratings->addWidget(caption(n.rating, box));
        ratings->addWidget(cells.rating(n.nine, false));
        ratings->addSpacing(24);
        ratings->addWidget(caption(n.slope, box));
        ratings->addWidget(cells.rating(n.nine, true));
        ratings->addStretch(1);
        column->addLayout(ratings);
        if (n.nine != CardNine::Overall)
            addHoleGrid(box, column, n.nine, cells);
        into->addWidget(box);
    }
}

} // namespace quillon
