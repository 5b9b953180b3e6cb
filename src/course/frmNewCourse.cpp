#include "frmNewCourse.h"

#include "CourseData.h"
#include "CourseTotals.h"
#include "CourseValidation.h"
#include "frmRSCalculator.h"
#include "core/Convert.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/BoxArray.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"
#include "ui/KeyRules.h"
#include "ui/Spinners.h"
#include "ui/NumericLineEdit.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

const char *const kTeesPresets[] = {"Championship", "Black", "Blue", "White", "Ladies White", "Red", "Gold"};

QString nineName(CardNine nine)
{
    switch (nine) {
    case CardNine::Overall: return QStringLiteral("Overall");
    case CardNine::Front: return QStringLiteral("Front");
    case CardNine::Back: return QStringLiteral("Back");
    }
    return QString();
}

QString rowName(CardRow row)
{
    return row == CardRow::Par ? QStringLiteral("Par") : QStringLiteral("Yards");
}

QString sumName(CardRow row, CardSum sum)
{
    const char *suffix[] = {"Out", "In", "Total"};
    return QStringLiteral("lbl%1%2").arg(rowName(row), QLatin1String(suffix[int(sum)]));
}

} // namespace

frmNewCourse::frmNewCourse(QWidget *parent) : EntryForm(parent)
{
    setObjectName(QStringLiteral("frmNewCourse"));
    setWindowTitle(QStringLiteral("New Course"));

    auto *layout = new QVBoxLayout(this);
    auto *names = new QHBoxLayout;
    auto *courseCaption = new QLabel(QStringLiteral("Course Name:"), this);
    names->addWidget(courseCaption);
    m_txtCourse = new QLineEdit(this);
    m_txtCourse->setObjectName(QStringLiteral("txtCourse"));
    m_txtCourse->setMinimumWidth(260);
    SelectAllOnFocus(m_txtCourse);
    names->addWidget(m_txtCourse, 1);
    m_cboCourses = new QComboBox(this);
    m_cboCourses->setObjectName(QStringLiteral("cboCourses"));
    m_cboCourses->setMinimumWidth(260);
    m_cboCourses->hide();
    names->addWidget(m_cboCourses, 1);
    names->addSpacing(16);
    names->addWidget(new QLabel(QStringLiteral("Tees:"), this));
    m_cboTees = new QComboBox(this);
    m_cboTees->setObjectName(QStringLiteral("cboTees"));
    m_cboTees->setEditable(true);
    m_cboTees->setInsertPolicy(QComboBox::NoInsert);
    m_cboTees->setMinimumWidth(160);
    for (const char *tees : kTeesPresets)
        m_cboTees->addItem(QLatin1String(tees));
    m_cboTees->setCurrentIndex(-1);
    m_cboTees->setEditText(QString());
    names->addWidget(m_cboTees);
    layout->addLayout(names);
    m_tabOrder << m_txtCourse << m_cboCourses << m_cboTees;

    m_par = new BoxArray(QStringLiteral("txtPar"), 0, 18, 1, KeyRule::Par, this);
    m_yards = new BoxArray(QStringLiteral("txtYards"), 0, 18, 3, KeyRule::NoLeadingZero, this);
    m_hdcp = new BoxArray(QStringLiteral("txtHdcp"), 0, 18, 2, KeyRule::NoLeadingZero, this);

    CourseCardCells cells;
    cells.rating = [this](CardNine nine, bool slope) { return ratingCell(nine, slope); };
    cells.hole = [this](CardRow row, int index) -> QWidget * {
        BoxArray *array = row == CardRow::Par ? m_par : row == CardRow::Yards ? m_yards : m_hdcp;
        QLineEdit *box = array->box(index);
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 14);
        m_tabOrder << box;
        return box;
    };
    cells.sum = [this](CardRow row, CardSum sum) -> QWidget * {
        auto *label = new QLabel(this);
        label->setObjectName(sumName(row, sum));
        label->setAlignment(Qt::AlignCenter);
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->setFixedWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 10);
        m_sums.insert(label->objectName(), label);
        return label;
    };
    BuildCourseCard(this, layout, cells);

    auto *buttons = new QHBoxLayout;
    m_cmdCalculate = new QPushButton(QStringLiteral("C&alculate Rating/Slope"), this);
    m_cmdCalculate->setObjectName(QStringLiteral("cmdCalculate"));
    connect(m_cmdCalculate, &QPushButton::clicked, this, [this] { frmRSCalculator::instance().ShowCalculator(this); });
    buttons->addWidget(m_cmdCalculate);
    addSaveAndCancel(buttons);
    layout->addLayout(buttons);
    m_tabOrder << m_cmdCalculate << m_cmdSave << m_cmdCancel;
    applyTabOrder(m_tabOrder);

    connect(m_txtCourse, &QLineEdit::textChanged, this, [this] { UpdateSaveButton(); });
    connect(m_cboCourses, &QComboBox::activated, this,
            [this](int index) { RunGuarded([this, index] { courseChosen(m_cboCourses->itemText(index)); }); });
    connect(m_cboTees, &QComboBox::activated, this, [this](int index) {
        // Only a choice from the list is a choice; Enter on typed tees is not.
        if (m_cboTees->itemText(index) == m_cboTees->currentText())
            RunGuarded([this, index] { teesChosen(m_cboTees->itemText(index)); });
    });
    connect(m_par, &BoxArray::changed, this, [this](int i) { rowChanged(CardRow::Par, i); });
    connect(m_yards, &BoxArray::changed, this, [this](int i) { rowChanged(CardRow::Yards, i); });
    connect(m_hdcp, &BoxArray::changed, this, [this](int i) { hdcpChanged(i); });
    connect(m_cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });

    // Whatever the user types or chooses is input not yet saved.
    for (QLineEdit *box : findChildren<QLineEdit *>())
        connect(box, &QLineEdit::textEdited, this, [this] { markUnsaved(true); });
    connect(m_cboTees, &QComboBox::activated, this, [this] { markUnsaved(true); });
    connect(m_cboCourses, &QComboBox::activated, this, [this] { markUnsaved(true); });

}

frmNewCourse &frmNewCourse::instance()
{
    return FormInstance<frmNewCourse>::get();
}

frmNewCourse *frmNewCourse::existing()
{
    return FormInstance<frmNewCourse>::existing();
}

QWidget *frmNewCourse::ratingCell(CardNine nine, bool slope)
{
    const QString name = nineName(nine) + (slope ? QStringLiteral("Slope") : QStringLiteral("Rating"));
    auto *box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txt") + name);
    box->setMaxLength(slope ? 3 : 4);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    box->setAlignment(Qt::AlignRight);
    ApplyKeyRule(box, slope ? KeyRule::NoLeadingZero : KeyRule::Decimal);
    QWidget *cell = WithSpinners(box, QStringLiteral("cmd%1Inc").arg(name), QStringLiteral("cmd%1Dec").arg(name),
                                 slope ? &SlopeIncrease : &RatingIncrease, slope ? &SlopeDecrease : &RatingDecrease,
                                 [this] { markUnsaved(true); });
    m_ratingBoxes.insert(box->objectName(), box);
    connect(box, &QLineEdit::textChanged, this, [this] { UpdateSaveButton(); });
    m_tabOrder << box;
    return cell;
}

void frmNewCourse::NewCourse()
{
    m_helpAnchor = QStringLiteral("course.html#new");
    m_editMode = false;
    setWindowTitle(QStringLiteral("New Course"));
    m_cboCourses->hide();
    m_txtCourse->show();
    m_cboTees->setEnabled(true);
    frame().openChild(this);
    m_txtCourse->setFocus();
}

void frmNewCourse::EditCourse(const QString &courseName, const QString &tees)
{
    m_helpAnchor = QStringLiteral("course.html#edit");
    m_editMode = true;
    m_txtCourse->hide();
    m_cboCourses->show();
    setWindowTitle(QStringLiteral("Edit Course"));

    m_filling = true;
    const QStringList courses = CourseNames(db());
    m_cboCourses->clear();
    if (courses.isEmpty()) {
        m_filling = false;
        platform().messageBox(QStringLiteral("There are no courses in the database.  Please select New Course "
                                             "from the File menu to enter a course."),
                              MsgIcon::Critical, windowTitle());
        closeForm();
        return;
    }
    m_cboCourses->addItems(courses);
    m_cboCourses->setCurrentIndex(-1);
    bool open = true;
    if (!courseName.isEmpty()) {
        const int index = m_cboCourses->findText(courseName, Qt::MatchFixedString);
        m_cboCourses->setCurrentIndex(index);
        open = courseChosen(index >= 0 ? m_cboCourses->currentText() : courseName);
    }
    if (open && !tees.isEmpty()) {
        const int index = m_cboTees->findText(tees, Qt::MatchFixedString);
        if (index >= 0)
            m_cboTees->setCurrentIndex(index);
        else
            m_cboTees->setEditText(tees);
        teesChosen(m_cboTees->currentText());
    }
    m_filling = false;
    if (!open)
        return;
    m_cmdSave->setEnabled(false);
    frame().openChild(this);
    m_cboCourses->setFocus();
}

bool frmNewCourse::courseChosen(const QString &course)
{
    if (course.isEmpty())
        return true;
    // The course is copied to the name box, so that the rules read both modes alike.
    m_txtCourse->setText(course);
    const QStringList tees = TeesOf(db(), course);
    m_cboTees->clear();
    ClearCourseFields();
    if (tees.isEmpty()) {
        platform().messageBox(QStringLiteral("Course data is not available."), MsgIcon::Critical, windowTitle());
        closeForm();
        return false;
    }
    m_cboTees->setEnabled(true);
    m_cboTees->addItems(tees);
    m_cboTees->setCurrentIndex(0);
    teesChosen(tees.first());
    return true;
}

void frmNewCourse::teesChosen(const QString &tees)
{
    if (!m_editMode) {
        UpdateSaveButton();
        return;
    }
    if (tees.isEmpty()) {
        m_cmdSave->setEnabled(false);
        return;
    }
    const bool filling = m_filling;
    m_filling = true;
    ClearCourseFields();
    const CourseCard card = LoadCourseCard(db(), m_txtCourse->text(), tees);
    for (auto it = m_ratingBoxes.cbegin(); it != m_ratingBoxes.cend(); ++it) {
        const QVariant value = card.log.value(it.key().mid(3));
        if (IsEntered(value))
            it.value()->setText(StoredText(value));
    }
    const struct {
        const char *column;
        const char *label;
    } totals[] = {{"ParIn", "lblParIn"},           {"ParOut", "lblParOut"},     {"TotalPar", "lblParTotal"},
                  {"YardsIn", "lblYardsIn"},       {"YardsOut", "lblYardsOut"}, {"TotalYards", "lblYardsTotal"}};
    for (const auto &t : totals) {
        const QVariant value = card.log.value(QLatin1String(t.column));
        if (IsEntered(value))
            m_sums.value(QLatin1String(t.label))->setText(StoredText(value));
    }
    for (int i = 0; i < 18; ++i) {
        if (!card.par.at(i).isNull())
            m_par->setText(i, StoredText(card.par.at(i)));
        if (!card.yards.at(i).isNull())
            m_yards->setText(i, StoredText(card.yards.at(i)));
        if (!card.hdcp.at(i).isNull())
            m_hdcp->setText(i, StoredText(card.hdcp.at(i)));
    }
    m_filling = filling;
    UpdateSaveButton();
}

void frmNewCourse::ClearCourseFields()
{
    // Each blanking is a change, so the totals clear through their own rule.
    for (QLineEdit *box : m_ratingBoxes)
        box->clear();
    for (BoxArray *array : {m_par, m_yards, m_hdcp})
        for (int i = 0; i < 18; ++i)
            array->setText(i, QString());
}

void frmNewCourse::UpdateSaveButton()
{
    m_cmdSave->setEnabled(!m_txtCourse->text().isEmpty() && !m_cboTees->currentText().isEmpty());
}

void frmNewCourse::rowChanged(CardRow row, int index)
{
    Q_UNUSED(index);
    BoxArray *array = row == CardRow::Par ? m_par : m_yards;
    // A sum has no trap of its own: text pasted in that is not a number is a failure the user
    // sees, and the sums stand as they were.
    RunUntrapped([this, row, array] {
        const RowTotals t = SumRow(array->texts());
        m_sums.value(sumName(row, CardSum::Out))->setText(t.out);
        m_sums.value(sumName(row, CardSum::In))->setText(t.in);
        m_sums.value(sumName(row, CardSum::Total))->setText(t.total);
    });
    UpdateSaveButton();
}

void frmNewCourse::hdcpChanged(int index)
{
    const QString text = m_hdcp->text(index);
    if (text.isEmpty())
        return;
    const double value = Val(text);
    if (value < 1 || value > 18)
        platform().messageBox(QStringLiteral("Invalid handicap!  Please enter a value from 1 to 18"),
                              MsgIcon::Exclamation, SaveCourseTitle());
    UpdateSaveButton();
}

CourseEntry frmNewCourse::entry() const
{
    CourseEntry e;
    e.editMode = m_editMode;
    e.course = m_txtCourse->text();
    e.tees = m_cboTees->currentText();
    const auto box = [this](const char *name) { return m_ratingBoxes.value(QLatin1String(name))->text(); };
    e.overallRating = box("txtOverallRating");
    e.overallSlope = box("txtOverallSlope");
    e.frontRating = box("txtFrontRating");
    e.frontSlope = box("txtFrontSlope");
    e.backRating = box("txtBackRating");
    e.backSlope = box("txtBackSlope");
    e.par = m_par->texts();
    e.yards = m_yards->texts();
    e.hdcp = m_hdcp->texts();
    const auto sum = [this](const char *name) { return m_sums.value(QLatin1String(name))->text(); };
    e.parOut = sum("lblParOut");
    e.parIn = sum("lblParIn");
    e.parTotal = sum("lblParTotal");
    e.yardsOut = sum("lblYardsOut");
    e.yardsIn = sum("lblYardsIn");
    e.yardsTotal = sum("lblYardsTotal");
    return e;
}

void frmNewCourse::cmdSave_Click()
{
    const CourseEntry e = entry();
    bool withDetails = false;
    try {
        const CourseOutcome outcome =
            CourseOutcomeFor(ValidateCourse(e, [](const QString &course, const QString &tees) {
                                 return TeesExist(db(), course, tees);
                             }),
                             m_editMode);
        switch (outcome.step) {
        case CourseSaveStep::Stop:
            platform().messageBox(outcome.message, outcome.icon, SaveCourseTitle());
            if (!outcome.focus.isEmpty())
                if (auto *control = findChild<QWidget *>(outcome.focus))
                    control->setFocus();
            return;
        case CourseSaveStep::AskThenSaveBare:
            if (platform().messageBox(outcome.message, outcome.icon, SaveCourseTitle(), MsgButtons::OKCancel) !=
                MsgAnswer::OK)
                return;
            break;
        case CourseSaveStep::SaveWithDetails: withDetails = true; break;
        case CourseSaveStep::SaveWithoutDetails: break;
        }
    } catch (const QuillonError &error) {
        platform().messageBox(error.message(), MsgIcon::Critical, appTitle());
        return;
    }
    if (!save(withDetails))
        return;
    markUnsaved(false);
    closeForm();
    RunGuarded([] { frame().RefreshActiveView(); });
}

bool frmNewCourse::save(bool withDetails)
{
    const CourseEntry e = entry();
    try {
        Hourglass hourglass;
        LogGlobals &g = basLogGlobals();
        if (m_editMode) {
            SaveEditedCourse(db(), e, withDetails);
            platform().messageBox(QStringLiteral("Course information has been updated."), MsgIcon::Information,
                                  QStringLiteral("Edit Course"));
        } else {
            g.gCourseCount = SaveNewCourse(db(), e, withDetails);
            platform().messageBox(QStringLiteral("Course information for the %1 tees at %2 has been saved.  You "
                                                 "can now enter scores for rounds played at this course.")
                                      .arg(e.tees, e.course),
                                  MsgIcon::Information, QStringLiteral("New Course"));
        }
    } catch (const QuillonError &error) {
        if (error.number() == QuillonError::DuplicateKey) {
            // Another set of tees of that name came first: the user changes the name and saves again.
            platform().messageBox(QStringLiteral("Data for the %1 tees on %2 already exists.  Please select "
                                                 "different tees or use the Edit/Course menu option to update "
                                                 "the course data.")
                                      .arg(e.tees, e.course),
                                  MsgIcon::Exclamation, SaveCourseTitle());
            return false;
        }
        platform().messageBox(error.message(), MsgIcon::Critical, appTitle());
    }
    return true;
}

void frmNewCourse::acceptRatingAndSlope(const QString &rating, const QString &slope)
{
    m_ratingBoxes.value(QStringLiteral("txtOverallRating"))->setText(rating);
    m_ratingBoxes.value(QStringLiteral("txtOverallSlope"))->setText(slope);
    markUnsaved(true);
}

void frmNewCourse::FormActivate()
{
    RunGuarded([] { frame().UpdateMenus(QStringLiteral("frmNewCourse")); });
}

} // namespace quillon
