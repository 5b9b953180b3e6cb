#include "frmPrintUltimate.h"

#include "print/ReportPainter.h"

#include "shell/basLogGlobals.h"
#include "ui/PageTitle.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace quillon {

namespace {

QLabel *caption(const QString &text, QWidget *parent, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter)
{
    auto *label = new QLabel(text, parent);
    label->setAlignment(align);
    return label;
}

QLabel *cell(const QString &name, QWidget *parent, int digits)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + 12);
    return label;
}

QLabel *named(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

} // namespace

UltimateCardLabels BuildUltimateNines(QWidget *parent, QBoxLayout *into)
{
    UltimateCardLabels card;
    card.par.resize(18);
    card.hdcp.resize(18);
    card.score.resize(18);
    const struct {
        const char *name;
        QVector<QLabel *> UltimateCardLabels::*cells;
    } rows[] = {{"Par", &UltimateCardLabels::par},
                {"Handicap", &UltimateCardLabels::hdcp},
                {"Score", &UltimateCardLabels::score}};
    const char *labelNames[] = {"lblPar", "lblHdcp", "lblScore"};

    for (const bool front : {true, false}) {
        auto *box = new QGroupBox(front ? QStringLiteral("Front Nine") : QStringLiteral("Back Nine"), parent);
        auto *grid = new QGridLayout(box);
        grid->setHorizontalSpacing(4);
        const int first = front ? 0 : 9;
        grid->addWidget(caption(QStringLiteral("Hole"), box), 0, 0);
        for (int h = 0; h < 9; ++h)
            grid->addWidget(caption(QString::number(first + h + 1), box, Qt::AlignCenter), 0, h + 1);
        const QStringList sumCaptions = front ? QStringList{QStringLiteral("Out")}
                                              : QStringList{QStringLiteral("In"), QStringLiteral("Total")};
        for (int s = 0; s < sumCaptions.size(); ++s)
            grid->addWidget(caption(sumCaptions.at(s), box, Qt::AlignCenter), 0, 10 + s);

        for (int r = 0; r < 3; ++r) {
            grid->addWidget(caption(QLatin1String(rows[r].name), box), r + 1, 0);
            for (int h = 0; h < 9; ++h) {
                const int index = first + h;
                QLabel *label =
                    cell(QStringLiteral("%1_%2").arg(QLatin1String(labelNames[r])).arg(index), box, 2);
                (card.*(rows[r].cells))[index] = label;
                grid->addWidget(label, r + 1, h + 1);
            }
        }
        // The sums stand in the Par and Score rows; a handicap has no sum.
        if (front) {
            card.parOut = cell(QStringLiteral("lblParOut"), box, 4);
            card.out = cell(QStringLiteral("lblOut"), box, 4);
            grid->addWidget(card.parOut, 1, 10);
            grid->addWidget(card.out, 3, 10);
        } else {
            card.parIn = cell(QStringLiteral("lblParIn"), box, 4);
            card.totalPar = cell(QStringLiteral("lblTotalPar"), box, 4);
            card.in = cell(QStringLiteral("lblIn"), box, 4);
            card.total = cell(QStringLiteral("lblTotal"), box, 4);
            grid->addWidget(card.parIn, 1, 10);
            grid->addWidget(card.totalPar, 1, 11);
            grid->addWidget(card.in, 3, 10);
            grid->addWidget(card.total, 3, 11);
        }
        grid->setColumnStretch(10 + int(sumCaptions.size()), 1);
        into->addWidget(box);
    }
    return card;
}

frmPrintUltimate::frmPrintUltimate(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmPrintUltimate"));
    setWindowTitle(QStringLiteral("Ultimate Scorecard"));
    setAttribute(Qt::WA_DontShowOnScreen);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(PageTitle(QStringLiteral("Ultimate Scorecard"), this));

    auto *heading = new QGridLayout;
    m_lblGolfer = named(QStringLiteral("lblGolfer"), this);
    m_lblDate = named(QStringLiteral("lblDate"), this);
    m_lblCourse = named(QStringLiteral("lblCourse"), this);
    m_lblTees = named(QStringLiteral("lblTees"), this);
    m_lblHandicap = named(QStringLiteral("lblHandicap"), this);
    auto *handicapCaption = named(QStringLiteral("lblHandicapCaption"), this);
    handicapCaption->setText(QStringLiteral("Current Handicap:"));
    heading->addWidget(caption(QStringLiteral("Golfer:"), this), 0, 0);
    heading->addWidget(m_lblGolfer, 0, 1);
    heading->addWidget(caption(QStringLiteral("Date:"), this), 0, 2);
    heading->addWidget(m_lblDate, 0, 3);
    heading->addWidget(caption(QStringLiteral("Course:"), this), 1, 0);
    heading->addWidget(m_lblCourse, 1, 1);
    heading->addWidget(handicapCaption, 1, 2);
    heading->addWidget(m_lblHandicap, 1, 3);
    heading->addWidget(caption(QStringLiteral("Tees:"), this), 2, 0);
    heading->addWidget(m_lblTees, 2, 1);
    heading->setColumnStretch(1, 1);
    heading->setColumnStretch(3, 1);
    layout->addLayout(heading);

    auto *line = new QFrame(this);
    line->setObjectName(QStringLiteral("Line1"));
    line->setFrameShape(QFrame::HLine);
    layout->addWidget(line);

    m_card = BuildUltimateNines(this, layout);
    m_lblNumRounds = named(QStringLiteral("lblNumRounds"), this);
    layout->addWidget(m_lblNumRounds);
    layout->addStretch(1);
    auto *footer = named(QStringLiteral("lblFooterNotice"), this);
    footer->setText(FooterNotice());
    layout->addWidget(footer);

    // The handicap-free program prints no handicap.
    if (basLogGlobals().gCommandString != QLatin1String("-h")) {
        handicapCaption->hide();
        m_lblHandicap->hide();
    }
}

} // namespace quillon
