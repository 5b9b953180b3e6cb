#include "frmRSCalculator.h"

#include "CourseTotals.h"
#include "RatingSlopeCalculator.h"
#include "frmNewCourse.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"
#include "ui/KeyRules.h"
#include "ui/Spinners.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <iterator>

namespace quillon {

namespace {

const char *const kDefaultRating = "72.0";
const char *const kDefaultSlope = "113";

} // namespace

frmRSCalculator::frmRSCalculator(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmRSCalculator"));
    setWindowTitle(QStringLiteral("Rating/Slope Calculator"));
    auto *layout = new QVBoxLayout(this);

    const auto spin = [](QLineEdit *b, const char *inc, const char *dec, SpinStep increase, SpinStep decrease) {
        return WithSpinners(b, QLatin1String(inc), QLatin1String(dec), increase, decrease);
    };
    auto *genderFrame = new QGroupBox(QStringLiteral("Gender"), this);
    genderFrame->setObjectName(QStringLiteral("fraGender"));
    auto *genderRow = new QHBoxLayout(genderFrame);
    m_male = new QRadioButton(QStringLiteral("&Male"), genderFrame);
    m_male->setObjectName(QStringLiteral("optGender_0"));
    m_female = new QRadioButton(QStringLiteral("&Female"), genderFrame);
    m_female->setObjectName(QStringLiteral("optGender_1"));
    m_genders = new QButtonGroup(this);
    m_genders->addButton(m_male, 0);
    m_genders->addButton(m_female, 1);
    genderRow->addWidget(m_male);
    genderRow->addWidget(m_female);
    genderRow->addStretch(1);
    layout->addWidget(genderFrame);

    auto *lblRatings = new QLabel(QStringLiteral("Enter the yardage, course rating, and slope rating for the nearest set "
                                                 "of rated tees on this course for your gender."),
                                  this);
    lblRatings->setObjectName(QStringLiteral("lblRatings"));
    lblRatings->setWordWrap(true);
    layout->addWidget(lblRatings);
    auto *rated = new QGroupBox(QStringLiteral("Rated Tees"), this);
    auto *ratedGrid = new QGridLayout(rated);
    m_txtRatedYards = box("txtRatedYards", 4, rated);
    ApplyKeyRule(m_txtRatedYards, KeyRule::NoLeadingZero);
    m_txtRating = box("txtRating", 4, rated);
    ApplyKeyRule(m_txtRating, KeyRule::Decimal);
    m_txtSlope = box("txtSlope", 3, rated);
    ApplyKeyRule(m_txtSlope, KeyRule::Digits);
    ratedGrid->addWidget(new QLabel(QStringLiteral("Yardage:"), rated), 0, 0);
    ratedGrid->addWidget(spin(m_txtRatedYards, "cmdRYardageInc", "cmdRYardageDec", &YardageIncrease,
                                      &YardageDecrease),
                         0, 1);
    ratedGrid->addWidget(new QLabel(QStringLiteral("Course Rating:"), rated), 1, 0);
    ratedGrid->addWidget(spin(m_txtRating, "cmdRatingInc", "cmdRatingDec", &RatingStrictIncrease,
                                      &RatingDecrease),
                         1, 1);
    ratedGrid->addWidget(new QLabel(QStringLiteral("Slope Rating:"), rated), 2, 0);
    ratedGrid->addWidget(spin(m_txtSlope, "cmdSlopeInc", "cmdSlopeDec", &SlopeIncrease, &SlopeDecrease),
                         2, 1);
    ratedGrid->setColumnStretch(2, 1);
    layout->addWidget(rated);

    auto *lblUnratedYards = new QLabel(QStringLiteral("Enter the yardage for the unrated tees."), this);
    lblUnratedYards->setObjectName(QStringLiteral("lblUnratedYards"));
    layout->addWidget(lblUnratedYards);
    auto *unrated = new QGroupBox(QStringLiteral("Unrated Tees"), this);
    auto *unratedGrid = new QGridLayout(unrated);
    m_txtUnratedYards = box("txtUnratedYards", 4, unrated);
    ApplyKeyRule(m_txtUnratedYards, KeyRule::NoLeadingZero);
    unratedGrid->addWidget(new QLabel(QStringLiteral("Yardage:"), unrated), 0, 0);
    unratedGrid->addWidget(spin(m_txtUnratedYards, "cmdUYardageInc", "cmdUYardageDec", &YardageIncrease,
                                        &YardageDecrease),
                           0, 1);
    const auto result = [unrated](const char *name) {
        auto *label = new QLabel(unrated);
        label->setObjectName(QLatin1String(name));
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 10);
        return label;
    };
    m_lblRating = result("lblRating");
    m_lblSlope = result("lblSlope");
    unratedGrid->addWidget(new QLabel(QStringLiteral("Course Rating:"), unrated), 1, 0);
    unratedGrid->addWidget(m_lblRating, 1, 1, Qt::AlignLeft);
    unratedGrid->addWidget(new QLabel(QStringLiteral("Slope Rating:"), unrated), 2, 0);
    unratedGrid->addWidget(m_lblSlope, 2, 1, Qt::AlignLeft);
    unratedGrid->setColumnStretch(2, 1);
    layout->addWidget(unrated);

    auto *buttons = new QHBoxLayout;
    const auto button = [this, buttons](const char *name, const char *caption) {
        auto *b = new QPushButton(QLatin1String(caption), this);
        b->setObjectName(QLatin1String(name));
        b->setAutoDefault(false);
        buttons->addWidget(b);
        return b;
    };
    m_cmdCalculate = button("cmdCalculate", "&Calculate");
    m_cmdAccept = button("cmdAccept", "&Accept");
    m_cmdClear = button("cmdClear", "C&lear");
    m_cmdCancel = button("cmdCancel", "Ca&ncel");
    layout->addLayout(buttons);

    // The reading order: the gender, the rated tees, the unrated tees, the buttons.
    QWidget *const order[] = {m_male,           m_female,       m_txtRatedYards, m_txtRating, m_txtSlope,
                              m_txtUnratedYards, m_cmdCalculate, m_cmdAccept,     m_cmdClear,  m_cmdCancel};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);

    m_txtRating->setText(QLatin1String(kDefaultRating));
    m_txtSlope->setText(QLatin1String(kDefaultSlope));
    m_cmdCalculate->setEnabled(false);
    m_cmdAccept->setEnabled(false);
    for (QLineEdit *b : {m_txtRatedYards, m_txtRating, m_txtSlope, m_txtUnratedYards})
        connect(b, &QLineEdit::textChanged, this, [this] { UpdateCalculateButton(); });
    for (QRadioButton *o : {m_male, m_female})
        connect(o, &QRadioButton::clicked, this, [this] { UpdateCalculateButton(); });
    connect(m_cmdCalculate, &QPushButton::clicked, this, [this] { cmdCalculate_Click(); });
    connect(m_cmdClear, &QPushButton::clicked, this, [this] { cmdClear_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_cmdAccept, &QPushButton::clicked, this, [this] {
        // Only the overall rating and slope of the course take the estimate.
        if (m_target)
            m_target->acceptRatingAndSlope(m_lblRating->text(), m_lblSlope->text());
        accept();
    });
}

frmRSCalculator &frmRSCalculator::instance()
{
    return FormInstance<frmRSCalculator>::get();
}

QLineEdit *frmRSCalculator::box(const char *name, int maxLength, QWidget *parent)
{
    auto *b = new QLineEdit(parent);
    b->setObjectName(QLatin1String(name));
    b->setMaxLength(maxLength);
    b->setAlignment(Qt::AlignRight);
    b->setFixedWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 14);
    return b;
}

void frmRSCalculator::ShowCalculator(frmNewCourse *target)
{
    m_target = target;
    // Each opening is a fresh form: the rated tees' figures start from their defaults.
    m_txtRating->setText(QLatin1String(kDefaultRating));
    m_txtSlope->setText(QLatin1String(kDefaultSlope));
    m_cmdCancel->setText(target ? QStringLiteral("Ca&ncel") : QStringLiteral("Cl&ose"));
    adjustSize();
    CentreOnFrame(*this);
    exec();
}

void frmRSCalculator::showEvent(QShowEvent *event)
{
    // Each opening starts from the rated tees' figures alone.
    m_lblRating->clear();
    m_lblSlope->clear();
    m_txtRatedYards->clear();
    m_txtUnratedYards->clear();
    m_cmdAccept->setEnabled(false);
    unsetGender();
    UpdateCalculateButton();
    QDialog::showEvent(event);
}

void frmRSCalculator::unsetGender()
{
    // An exclusive group keeps one button checked; it lets go only while not exclusive.
    m_genders->setExclusive(false);
    m_male->setChecked(false);
    m_female->setChecked(false);
    m_genders->setExclusive(true);
}

void frmRSCalculator::UpdateCalculateButton()
{
    m_cmdAccept->setEnabled(false); // any change voids an accepted result
    m_cmdCalculate->setEnabled(!m_txtRatedYards->text().isEmpty() && !m_txtUnratedYards->text().isEmpty() &&
                               !m_txtRating->text().isEmpty() && !m_txtSlope->text().isEmpty() &&
                               (m_male->isChecked() || m_female->isChecked()));
}

void frmRSCalculator::cmdCalculate_Click()
{
    RatingSlopeInput in;
    in.gender = m_male->isChecked() ? 0 : m_female->isChecked() ? 1 : -1;
    in.ratedYards = m_txtRatedYards->text();
    in.rating = m_txtRating->text();
    in.slope = m_txtSlope->text();
    in.unratedYards = m_txtUnratedYards->text();
    RatingSlopeOutcome out;
    try {
        out = CalculateRatingSlope(in, [](const QString &gender, int distance) {
            return LookUpUnratedBand(db(), gender, distance);
        });
    } catch (const QuillonError &) {
        out.failed = true;
    }
    const QString title = windowTitle();
    if (!out.warning.isEmpty())
        platform().messageBox(out.warning, MsgIcon::Exclamation, title);
    if (!out.stop.isEmpty()) {
        platform().messageBox(out.stop, MsgIcon::Exclamation, title);
        return;
    }
    if (out.failed) {
        platform().messageBox(QStringLiteral("Calculation error."), MsgIcon::Exclamation, appTitle());
        return;
    }
    if (out.noBand) {
        platform().messageBox(NoBandMessage(), MsgIcon::Critical, title);
        reject();
        return;
    }
    m_lblRating->setText(out.rating);
    m_lblSlope->setText(out.slope);
    m_cmdAccept->setEnabled(m_target != nullptr);
}

void frmRSCalculator::cmdClear_Click()
{
    unsetGender();
    m_txtRatedYards->clear();
    m_txtUnratedYards->clear();
    m_txtRating->setText(QLatin1String(kDefaultRating));
    m_txtSlope->setText(QLatin1String(kDefaultSlope));
    m_lblRating->clear();
    m_lblSlope->clear();
    m_cmdCalculate->setEnabled(false);
    m_cmdAccept->setEnabled(false);
}

} // namespace quillon
