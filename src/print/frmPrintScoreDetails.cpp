#include "frmPrintScoreDetails.h"

#include "FormPrintout.h"
#include "ReportPainter.h"
#include "core/DateText.h"
#include "core/QuillonError.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"
#include "ui/PageTitle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

frmPrintScoreDetails::frmPrintScoreDetails(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmPrintScoreDetails"));
    setWindowTitle(QStringLiteral("Score Details"));
    setAttribute(Qt::WA_DontShowOnScreen);
    auto *layout = new QVBoxLayout(this);

    m_lblTitle = PageTitle(QStringLiteral("Score Details"), this);
    layout->addWidget(m_lblTitle);

    auto *golfer = new QHBoxLayout;
    golfer->addWidget(new QLabel(QStringLiteral("Golfer:"), this));
    m_lblGolfer = new QLabel(this);
    m_lblGolfer->setObjectName(QStringLiteral("lblGolfer"));
    golfer->addWidget(m_lblGolfer, 1);
    layout->addLayout(golfer);

    m_card = BuildScoreDetailsCard(this, layout, CardFace::Page);

    m_lblFooterNotice = new QLabel(FooterNotice(), this);
    m_lblFooterNotice->setObjectName(QStringLiteral("lblFooterNotice"));
    layout->addWidget(m_lblFooterNotice);
}

frmPrintScoreDetails &frmPrintScoreDetails::instance()
{
    return FormInstance<frmPrintScoreDetails>::get();
}

void frmPrintScoreDetails::PrintDetails(const QString &course, const QString &tees, const QString &scoreDate,
                                        qint32 scoreIndex)
{
    RunGuarded([&] {
        const LogGlobals &g = basLogGlobals();
        m_lblGolfer->setText(g.gFirstName + QLatin1Char(' ') + g.gLastName);
        m_card.value(QStringLiteral("lblCourse"))->setText(course);
        m_card.value(QStringLiteral("lblTees"))->setText(tees);
        const QDate date = ParseDateText(scoreDate);
        if (!date.isValid())
            throw QuillonError::typeMismatch(); // no round can be found by a date that is none
        m_card.value(QStringLiteral("lblDate"))->setText(DateText(date));
        m_scoreDate = date;
        m_scoreIndex = scoreIndex;
        FillPrintDetails();
        platform().print(FormPrintout(QStringLiteral("Score Details"), *this, PageOrientation::Portrait));
    });
    // Unloaded whatever came of it: the next printout starts from a fresh page.
    if (FormInstance<frmPrintScoreDetails>::existing() == this)
        FormInstance<frmPrintScoreDetails>::destroy();
}

void frmPrintScoreDetails::FillPrintDetails()
{
    const LogGlobals &g = basLogGlobals();
    if (FillScoreDetailsCard(m_card, db(), g.gLastName, g.gFirstName, m_scoreDate, m_scoreIndex))
        ComputePrintStatistics();
}

void frmPrintScoreDetails::ComputePrintStatistics()
{
    ShowRoundStatistics(m_card);
}

} // namespace quillon
