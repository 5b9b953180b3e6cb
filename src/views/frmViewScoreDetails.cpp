#include "frmViewScoreDetails.h"

#include "core/DateText.h"
#include "shell/basLogGlobals.h"
#include "ui/Guarded.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

frmViewScoreDetails::frmViewScoreDetails(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmViewScoreDetails"));
    setWindowTitle(QStringLiteral("Score Details"));
    auto *layout = new QVBoxLayout(this);
    m_card = BuildScoreDetailsCard(this, layout, CardFace::Screen);

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

void frmViewScoreDetails::FillScoreDetails()
{
    const LogGlobals &g = basLogGlobals();
    if (FillScoreDetailsCard(m_card, db(), g.gLastName, g.gFirstName, m_scoreDate, m_scoreIndex))
        ComputeRoundStatistics();
}

void frmViewScoreDetails::ComputeRoundStatistics()
{
    ShowRoundStatistics(m_card);
}

} // namespace quillon
