#include "frmHdcpCalculator.h"

#include "CourseHandicap.h"
#include "CourseTotals.h"
#include "core/Convert.h"
#include "core/QuillonError.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "store/HeldRecordset.h"
#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"
#include "ui/NumericLineEdit.h"
#include "ui/Spinners.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

const char *const kInstructions =
    "The Course Handicap Calculator will calculate your handicap on a specific course.  Enter the slope of "
    "the course and press Calculate to obtain your course handicap.  If the tees are unrated, enter 113 "
    "for the slope.";

// The value of HandicapLog.Handicap that means the golfer has no handicap yet.
constexpr float kNoHandicapIndex = -1000.0f;

// The golfer's held HandicapLog row; reading it with no current row is a fault.
const Recordset &handicapRow()
{
    LogGlobals &g = basLogGlobals();
    if (!g.gHandicapLog)
        throw QuillonError(91, QStringLiteral("Object variable or With block variable not set"));
    return g.gHandicapLog->rows();
}

bool hasCurrentRow()
{
    LogGlobals &g = basLogGlobals();
    return g.gHandicapLog && !g.gHandicapLog->rows().eof() && !g.gHandicapLog->rows().bof();
}

} // namespace

frmHdcpCalculator::frmHdcpCalculator(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmHdcpCalculator"));
    setWindowTitle(QStringLiteral("Course Handicap Calculator"));
    setModal(true);

    m_lblInstructions = new QLabel(this);
    m_lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    m_lblInstructions->setWordWrap(true);
    m_lblInstructions->setMinimumWidth(320);

    auto *slopeCaption = new QLabel(QStringLiteral("Slope Rating:"), this);
    m_txtSlope = new NumericLineEdit(this);
    m_txtSlope->setObjectName(QStringLiteral("txtSlope"));
    m_txtSlope->setMaxLength(3);
    m_txtSlope->setMaximumWidth(60);
    slopeCaption->setBuddy(m_txtSlope);
    auto *handicapCaption = new QLabel(QStringLiteral("Course Handicap:"), this);
    m_lblHandicap = new QLabel(this);
    m_lblHandicap->setObjectName(QStringLiteral("lblHandicap"));
    m_lblHandicap->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_lblHandicap->setMinimumWidth(60);

    m_cmdCalculate = new QPushButton(QStringLiteral("&Calculate"), this);
    m_cmdCalculate->setObjectName(QStringLiteral("cmdCalculate"));
    m_cmdCalculate->setDefault(true);
    m_cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    m_cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    m_cmdCancel->setAutoDefault(false);

    auto *grid = new QGridLayout;
    grid->addWidget(slopeCaption, 0, 0);
    grid->addWidget(WithSpinners(m_txtSlope, QStringLiteral("cmdSlopeInc"), QStringLiteral("cmdSlopeDec"),
                                 &SlopeIncrease, &SlopeDecrease),
                    0, 1, Qt::AlignLeft);
    grid->addWidget(handicapCaption, 1, 0);
    grid->addWidget(m_lblHandicap, 1, 1);
    grid->setColumnStretch(3, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_cmdCalculate);
    buttons->addWidget(m_cmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lblInstructions);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    connect(m_txtSlope, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_cmdCalculate->setEnabled(!text.isEmpty()); });
    connect(m_cmdCalculate, &QPushButton::clicked, this, [this] { cmdCalculate_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });

    resetFields();
}

frmHdcpCalculator &frmHdcpCalculator::instance()
{
    return FormInstance<frmHdcpCalculator>::get();
}

void frmHdcpCalculator::resetFields()
{
    m_lblInstructions->setText(QLatin1String(kInstructions));
    m_txtSlope->setText(QStringLiteral("113"));
    m_cmdCalculate->setEnabled(true);
    m_lblHandicap->clear();
}

void frmHdcpCalculator::ShowCalculator()
{
    resetFields();
    m_txtSlope->setFocus();
    // Take the size the controls need before measuring where to stand.
    adjustSize();
    CentreOnFrame(*this);
    exec();
}

void frmHdcpCalculator::cmdCalculate_Click()
{
    try {
        calculate();
    } catch (const std::exception &) {
        platform().messageBox(QStringLiteral("Calculation error."), MsgIcon::Exclamation, appTitle());
        reject();
    }
}

void frmHdcpCalculator::calculate()
{
    const QString title = windowTitle();
    const bool rowThere = hasCurrentRow();
    if (!rowThere || handicapRow().value(QStringLiteral("Handicap")).toFloat() == kNoHandicapIndex) {
        platform().messageBox(QStringLiteral("Unable to calculate a course handicap.  You must establish a "
                                             "handicap before calculating your handicap on a specific course."),
                              MsgIcon::Exclamation, title);
        reject();
        // With no row at all the calculation goes on to its read of the index, which fails.
        if (rowThere)
            return;
    }
    const QString slope = m_txtSlope->text();
    if (slope.isEmpty()) {
        platform().messageBox(QStringLiteral("Please enter the slope for the nearest set of rated tees."),
                              MsgIcon::Exclamation, title);
        return;
    }
    const double slopeValue = Val(slope);
    if (slopeValue < 55 || slopeValue > 155)
        platform().messageBox(QStringLiteral("Invalid slope!  Please enter a value from 55 to 155."),
                              MsgIcon::Exclamation, title);
    const double index = handicapRow().value(QStringLiteral("Handicap")).toFloat();
    m_lblHandicap->setText(QString::number(CourseHandicapFor(index, slope)));
}

void frmHdcpCalculator::cmdCancel_Click()
{
    reject();
}

} // namespace quillon
