#include "frmScore.h"

#include "ScoreData.h"
#include "course/CourseData.h"
#include "ScoreValidation.h"
#include "core/Convert.h"
#include "core/DateText.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "store/Encodings.h"
#include "ui/BoxArray.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"
#include "ui/NumericLineEdit.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

const struct {
    StatBox box;
    const char *name;
    const char *caption;
    const char *toolTip;
} kStats[] = {
    {StatBox::Penalties, "txtPenalties", "Penalties:", "Number of strokes penalized during the round."},
    {StatBox::LostBalls, "txtLostBalls", "Lost Balls:",
     "Number of balls lost during the round including balls lost in hazards."},
    {StatBox::Bunkers, "txtTotalBunkers", "Total Bunkers:", "Number of times the ball landed in a bunker."},
    {StatBox::SandSaves, "txtSandSaves", "Sand Saves:",
     "Number of times par or better was achieved after playing from a green-side bunker."},
    {StatBox::AttemptedSaves, "txtAttemptedSaves", "Attempted Saves:", ""},
};

NumericLineEdit *numberBox(QWidget *parent, const char *name, int maxLength)
{
    auto *box = new NumericLineEdit(parent);
    box->setObjectName(QLatin1String(name));
    box->setMaxLength(maxLength);
    box->setAlignment(Qt::AlignCenter);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 14);
    return box;
}

QLabel *named(QLabel *label, const QString &name)
{
    label->setObjectName(name);
    return label;
}

int cellWidth(const QWidget *w)
{
    return w->fontMetrics().horizontalAdvance(QStringLiteral("000")) + 14;
}

} // namespace

frmScore::frmScore(QWidget *parent) : EntryForm(parent)
{
    setObjectName(QStringLiteral("frmScore"));
    setWindowTitle(QStringLiteral("New Score"));
    auto *layout = new QVBoxLayout(this);
    buildHeader(layout);
    buildGrid(layout);

    auto *buttons = new QHBoxLayout;
    addSaveAndCancel(buttons);
    layout->addLayout(buttons);
    m_tabOrder << m_cmdSave << m_cmdCancel;
    applyTabOrder(m_tabOrder);

    m_calendar = new QCalendarWidget(this);
    m_calendar->setObjectName(QStringLiteral("Calendar1"));
    m_calendar->setWindowFlags(Qt::Popup);
    m_calendar->setGridVisible(true);
    // Dates are typed in the date box.  The calendar's own typed-date popup would also be left
    // behind, never freed, when the form closes while it stands.
    m_calendar->setDateEditEnabled(false);
    m_calendar->hide();
    const auto dayChosen = [this](const QDate &day) {
        m_txtDate->setText(DateText(day));
        markUnsaved();
        m_calendar->hide();
        m_txtDate->setFocus();
    };
    connect(m_calendar, &QCalendarWidget::clicked, this, dayChosen);
    // Enter on a day chooses it, for the user at the keyboard.
    connect(m_calendar, &QCalendarWidget::activated, this, dayChosen);

    connect(m_cboCourses, &QComboBox::activated, this, [this] { RunGuarded([this] { courseChosen(); }); });
    connect(m_cboTees, &QComboBox::activated, this, [this] { RunGuarded([this] { teesChosen(); }); });
    connect(m_cboHoles, &QComboBox::activated, this, [this] { RunGuarded([this] { holesChosen(); }); });
    connect(m_cmdCalendar, &QPushButton::clicked, this, [this] { showCalendar(); });
    connect(m_txtDate, &QLineEdit::textChanged, this, [this] { UpdateSaveButton(); });
    connect(m_chkExclude, &QCheckBox::toggled, this, [this] { UpdateSaveButton(); });
    for (QRadioButton *option : m_optType)
        connect(option, &QRadioButton::toggled, this, [this] { UpdateSaveButton(); });
    connect(m_txtTotalScore, &QLineEdit::textChanged, this, [this] { UpdateSaveButton(); });
    for (const auto &s : kStats)
        connect(m_stats.value(s.box), &QLineEdit::textChanged, this, [this, box = s.box] { statTyped(box); });
    connect(m_txtScore, &BoxArray::changed, this, [this](int i) { RunUntrapped([this, i] { scoreTyped(i); }); });
    connect(m_txtPutts, &BoxArray::changed, this, [this](int i) { RunUntrapped([this, i] { puttsTyped(i); }); });
    for (QLineEdit *nine : {m_txtOut, m_txtIn})
        connect(nine, &QLineEdit::textChanged, this, [this] { RunUntrapped([this] { nineTotalTyped(); }); });
    connect(m_txtTotal, &QLineEdit::textChanged, this, [this] { totalTyped(); });
    for (QCheckBox *fairway : m_chkFairway)
        connect(fairway, &QCheckBox::toggled, this, [this] { UpdateSaveButton(); });
    connect(m_cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });

    // Whatever the user types, ticks or chooses is input not yet saved; Enter moves on as Tab does.
    for (QLineEdit *box : findChildren<QLineEdit *>()) {
        connect(box, &QLineEdit::textEdited, this, [this] { markUnsaved(); });
        box->installEventFilter(this);
    }
    for (QCheckBox *box : findChildren<QCheckBox *>()) {
        connect(box, &QCheckBox::clicked, this, [this] { markUnsaved(); });
        box->installEventFilter(this);
    }
    for (QRadioButton *option : m_optType)
        connect(option, &QRadioButton::clicked, this, [this] { markUnsaved(); });
    for (QComboBox *list : {m_cboCourses, m_cboTees, m_cboHoles})
        connect(list, &QComboBox::activated, this, [this] { markUnsaved(); });
}

frmScore &frmScore::instance()
{
    return FormInstance<frmScore>::get();
}

frmScore *frmScore::existing()
{
    return FormInstance<frmScore>::existing();
}

void frmScore::buildHeader(QVBoxLayout *layout)
{
    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    const auto caption = [this](const char *text) { return new QLabel(QLatin1String(text), this); };
    const auto valueLabel = [this](const char *name) {
        auto *label = named(new QLabel(this), QLatin1String(name));
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->hide();
        return label;
    };

    m_cboCourses = new QComboBox(this);
    m_cboCourses->setObjectName(QStringLiteral("cboCourses"));
    m_cboCourses->setMinimumWidth(240);
    m_lblCourse = valueLabel("lblCourse");
    m_cboTees = new QComboBox(this);
    m_cboTees->setObjectName(QStringLiteral("cboTees"));
    m_cboTees->setMinimumWidth(140);
    m_lblTees = valueLabel("lblTees");
    auto *courseBox = new QHBoxLayout;
    courseBox->addWidget(m_cboCourses, 1);
    courseBox->addWidget(m_lblCourse, 1);
    auto *teesBox = new QHBoxLayout;
    teesBox->addWidget(m_cboTees, 1);
    teesBox->addWidget(m_lblTees, 1);
    grid->addWidget(caption("Course:"), 0, 0);
    grid->addLayout(courseBox, 0, 1);
    grid->addWidget(caption("Tees:"), 0, 3);
    grid->addLayout(teesBox, 0, 4);

    m_txtDate = new QLineEdit(this);
    m_txtDate->setObjectName(QStringLiteral("txtDate"));
    m_txtDate->setMaxLength(10);
    m_txtDate->setFixedWidth(m_txtDate->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 14);
    SelectAllOnFocus(m_txtDate);
    m_lblDate = valueLabel("lblDate");
    m_cmdCalendar = new QPushButton(QStringLiteral("..."), this);
    m_cmdCalendar->setObjectName(QStringLiteral("cmdCalendar"));
    m_cmdCalendar->setToolTip(QStringLiteral("Choose the date from a calendar"));
    m_cmdCalendar->setFixedWidth(m_cmdCalendar->fontMetrics().horizontalAdvance(QStringLiteral("....")) + 16);
    auto *dateBox = new QHBoxLayout;
    dateBox->addWidget(m_txtDate);
    dateBox->addWidget(m_lblDate);
    dateBox->addWidget(m_cmdCalendar);
    dateBox->addStretch(1);
    m_cboHoles = new QComboBox(this);
    m_cboHoles->setObjectName(QStringLiteral("cboHoles"));
    m_lblHoles = valueLabel("lblHoles");
    auto *holesBox = new QHBoxLayout;
    holesBox->addWidget(m_cboHoles, 1);
    holesBox->addWidget(m_lblHoles, 1);
    grid->addWidget(caption("Date:"), 1, 0);
    grid->addLayout(dateBox, 1, 1);
    grid->addWidget(caption("Holes:"), 1, 3);
    grid->addLayout(holesBox, 1, 4);
    layout->addLayout(grid);

    auto *middle = new QHBoxLayout;
    auto *type = new QGroupBox(QStringLiteral("Type of Round"), this);
    auto *typeRow = new QHBoxLayout(type);
    auto *group = new QButtonGroup(this);
    const char *captions[] = {"&Away", "&Home", "&Tournament"};
    for (int i = 0; i < 3; ++i) {
        auto *option = new QRadioButton(QLatin1String(captions[i]), type);
        option->setObjectName(QStringLiteral("optType_%1").arg(i));
        group->addButton(option, i);
        typeRow->addWidget(option);
        m_optType << option;
    }
    middle->addWidget(type);
    m_chkExclude = new QCheckBox(QStringLiteral("E&xclude from handicap"), this);
    m_chkExclude->setObjectName(QStringLiteral("chkExclude"));
    middle->addWidget(m_chkExclude);
    middle->addStretch(1);
    m_lblTotalScoreCaption = named(new QLabel(QStringLiteral("Score:"), this), QStringLiteral("lblTotalScoreCaption"));
    m_txtTotalScore = numberBox(this, "txtTotalScore", 3);
    m_lblTotalScoreCaption->setBuddy(m_txtTotalScore);
    middle->addWidget(m_lblTotalScoreCaption);
    middle->addWidget(m_txtTotalScore);
    layout->addLayout(middle);

    auto *statsRow = new QHBoxLayout;
    buildStatistics(statsRow);
    layout->addLayout(statsRow);

    m_tabOrder << m_cboCourses << m_cboTees << m_txtDate << m_cmdCalendar << m_cboHoles;
    for (QRadioButton *option : m_optType)
        m_tabOrder << option;
    m_tabOrder << m_chkExclude << m_txtTotalScore;
}

void frmScore::buildStatistics(QHBoxLayout *row)
{
    auto *frame = new QGroupBox(QStringLiteral("Misc. Stats (Optional)"), this);
    frame->setObjectName(QStringLiteral("fraStats"));
    auto *inner = new QHBoxLayout(frame);
    for (const auto &s : kStats) {
        NumericLineEdit *box = numberBox(frame, s.name, 2);
        box->setToolTip(QLatin1String(s.toolTip));
        auto *caption = new QLabel(QLatin1String(s.caption), frame);
        caption->setBuddy(box);
        caption->setToolTip(box->toolTip());
        inner->addWidget(caption);
        inner->addWidget(box);
        inner->addSpacing(8);
        m_stats.insert(s.box, box);
        m_tabOrder << box;
    }
    inner->addStretch(1);
    row->addWidget(frame);
}

void frmScore::buildGrid(QVBoxLayout *layout)
{
    m_txtScore = new BoxArray(QStringLiteral("txtScore"), 0, 18, 2, KeyRule::Digits, this);
    m_txtPutts = new BoxArray(QStringLiteral("txtPutts"), 0, 18, 2, KeyRule::Digits, this);
    m_fraScoreDetails = new QGroupBox(QStringLiteral("Score Details (Optional)"), this);
    m_fraScoreDetails->setObjectName(QStringLiteral("fraScoreDetails"));
    auto *column = new QVBoxLayout(m_fraScoreDetails);
    m_fraFrontNine = buildNine(0);
    m_fraBackNine = buildNine(9);
    column->addWidget(m_fraFrontNine);
    column->addWidget(m_fraBackNine);
    layout->addWidget(m_fraScoreDetails);
}

QGroupBox *frmScore::buildNine(int first)
{
    const bool front = first == 0;
    auto *frame = new QGroupBox(front ? QStringLiteral("Front Nine") : QStringLiteral("Back Nine"), m_fraScoreDetails);
    frame->setObjectName(front ? QStringLiteral("fraFrontNine") : QStringLiteral("fraBackNine"));
    auto *grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(4);
    const char *rows[] = {"Score", "Putts", "Fairways"};
    for (int r = 0; r < 3; ++r) {
        auto *caption = named(new QLabel(QLatin1String(rows[r]), frame),
                              QStringLiteral("lblDetailsCaption_%1").arg((front ? 0 : 3) + r));
        grid->addWidget(caption, r + 1, 0);
        m_lblDetailsCaption << caption;
    }
    for (int h = 0; h < 9; ++h) {
        const int i = first + h;
        auto *number = named(new QLabel(QString::number(i + 1), frame), QStringLiteral("lblHoleCaption_%1").arg(i));
        number->setAlignment(Qt::AlignCenter);
        grid->addWidget(number, 0, h + 1);
        m_lblHoleCaption << number;
        QLineEdit *score = m_txtScore->box(i);
        QLineEdit *putts = m_txtPutts->box(i);
        score->setParent(frame);
        putts->setParent(frame);
        score->setFixedWidth(cellWidth(score));
        putts->setFixedWidth(cellWidth(putts));
        grid->addWidget(score, 1, h + 1);
        grid->addWidget(putts, 2, h + 1);
        auto *fairway = new QCheckBox(frame);
        fairway->setObjectName(QStringLiteral("chkFairway_%1").arg(i));
        fairway->setToolTip(QStringLiteral("Check if you landed in the fairway off the tee box."));
        grid->addWidget(fairway, 3, h + 1, Qt::AlignCenter);
        m_chkFairway << fairway;
        score->installEventFilter(this);
        putts->installEventFilter(this);
        m_tabOrder << score << putts << fairway;
    }
    const auto sumLabel = [frame](const QString &name) {
        auto *label = named(new QLabel(frame), name);
        label->setAlignment(Qt::AlignCenter);
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        return label;
    };
    auto *caption = named(new QLabel(front ? QStringLiteral("Out") : QStringLiteral("In"), frame),
                          front ? QStringLiteral("lblOutCaption") : QStringLiteral("lblInCaption"));
    caption->setAlignment(Qt::AlignCenter);
    QLineEdit *nine = numberBox(frame, front ? "txtOut" : "txtIn", 3);
    QLabel *putts = sumLabel(front ? QStringLiteral("lblOutPutts") : QStringLiteral("lblInPutts"));
    grid->addWidget(caption, 0, 10);
    grid->addWidget(nine, 1, 10);
    grid->addWidget(putts, 2, 10);
    m_tabOrder << nine;
    if (front) {
        m_lblOutCaption = caption;
        m_txtOut = nine;
        m_lblOutPutts = putts;
    } else {
        m_lblInCaption = caption;
        m_txtIn = nine;
        m_lblInPutts = putts;
        m_lblTotalCaption = named(new QLabel(QStringLiteral("Total"), frame), QStringLiteral("lblTotalCaption"));
        m_lblTotalCaption->setAlignment(Qt::AlignCenter);
        m_txtTotal = numberBox(frame, "txtTotal", 3);
        m_lblTotalPutts = sumLabel(QStringLiteral("lblTotalPutts"));
        grid->addWidget(m_lblTotalCaption, 0, 11);
        grid->addWidget(m_txtTotal, 1, 11);
        grid->addWidget(m_lblTotalPutts, 2, 11);
        m_tabOrder << m_txtTotal;
    }
    grid->setColumnStretch(12, 1);
    return frame;
}

QString frmScore::CourseName() const
{
    return m_editMode ? m_lblCourse->text() : m_cboCourses->currentText();
}

QString frmScore::Tees() const
{
    return m_editMode ? m_lblTees->text() : m_cboTees->currentText();
}

QString frmScore::ScoreDate() const
{
    return m_editMode ? m_lblDate->text() : m_txtDate->text();
}

QLineEdit *frmScore::statBox(StatBox box) const
{
    return m_stats.value(box);
}

void frmScore::NewScore()
{
    m_editMode = false;
    const QDate today = platform().today();
    m_txtDate->setText(DateText(today));
    m_calendar->setSelectedDate(today);
    m_cboCourses->clear();
    m_cboTees->clear();
    setWindowTitle(QStringLiteral("New Score"));
    for (QWidget *w : {static_cast<QWidget *>(m_lblDate), static_cast<QWidget *>(m_lblTees),
                       static_cast<QWidget *>(m_lblHoles), static_cast<QWidget *>(m_lblCourse)})
        w->hide();
    for (QWidget *w : {static_cast<QWidget *>(m_txtDate), static_cast<QWidget *>(m_cboTees),
                       static_cast<QWidget *>(m_cboHoles), static_cast<QWidget *>(m_cboCourses),
                       static_cast<QWidget *>(m_cmdCalendar)})
        w->show();
    const QStringList names = CourseNames(db());
    if (names.isEmpty()) {
        platform().messageBox(QStringLiteral("You must enter course data before entering a new score.  Please "
                                             "select New Course from the File menu to enter course data."),
                              MsgIcon::Critical, windowTitle());
        closeForm();
        return;
    }
    m_cboCourses->addItems(names);
    m_cboCourses->setCurrentIndex(-1);
    // Nothing is chosen yet: the grid waits for the course, tees and holes.
    m_cboHoles->clear();
    m_cboTees->setEnabled(false);
    m_cboHoles->setEnabled(false);
    EnableScoreDetails(false);
    frame().openChild(this);
    m_cboCourses->setFocus();
}

void frmScore::EditScore(const QString &courseName, const QString &tees, const QDate &scoreDate, qint64 scoreIndex)
{
    m_editMode = true;
    m_scoreIndex = scoreIndex;
    m_scoreDate = scoreDate;
    setWindowTitle(QStringLiteral("Edit Score"));
    for (QWidget *w : {static_cast<QWidget *>(m_lblDate), static_cast<QWidget *>(m_lblTees),
                       static_cast<QWidget *>(m_lblHoles), static_cast<QWidget *>(m_lblCourse)})
        w->show();
    for (QWidget *w : {static_cast<QWidget *>(m_txtDate), static_cast<QWidget *>(m_cboTees),
                       static_cast<QWidget *>(m_cboHoles), static_cast<QWidget *>(m_cboCourses),
                       static_cast<QWidget *>(m_cmdCalendar)})
        w->hide();

    const LogGlobals &g = basLogGlobals();
    const std::optional<StoredRound> round =
        LoadRound(db(), scoreIndex, g.gLastName, g.gFirstName, courseName, tees, scoreDate);
    if (!round) {
        platform().messageBox(QStringLiteral("Error retrieving score."), MsgIcon::Critical, windowTitle());
        closeForm();
        return;
    }
    m_filling = true;
    m_lblCourse->setText(courseName);
    m_lblTees->setText(tees);
    m_lblDate->setText(DateText(scoreDate));
    m_lblHoles->setText(round->holes);
    if (const int type = TypeIndex(round->type); type >= 0)
        m_optType.at(type)->setChecked(true);
    m_chkExclude->setChecked(round->used == UsedMark::Excluded);
    const StatBox order[] = {StatBox::Penalties, StatBox::LostBalls, StatBox::Bunkers, StatBox::SandSaves,
                             StatBox::AttemptedSaves};
    for (int i = 0; i < 5; ++i)
        statBox(order[i])->setText(round->stats.at(i));
    SetFairwayBoxes(courseName, tees);

    if (round->details) {
        ScoreEntry holes;
        LoadHoleDetails(db(), scoreIndex, g.gLastName, g.gFirstName, courseName, tees, scoreDate, holes);
        for (int i = 0; i < 18; ++i) {
            m_txtScore->setText(i, holes.score.at(i));
            m_txtPutts->setText(i, holes.putts.at(i));
            m_chkFairway.at(i)->setChecked(holes.fairway.at(i));
        }
        ArrangeScoreGrid(round->holes);
    } else {
        // Without hole rows the grid is arranged by what the course has.
        const TeesHoles h = LoadTeesHoles(db(), courseName, tees);
        if (h.rows == 18)
            ArrangeScoreGrid(Holes::Eighteen);
        else if (h.rows > 0 && h.hole1)
            ArrangeScoreGrid(Holes::FrontNine);
        else if (h.rows > 0 && h.hole10)
            ArrangeScoreGrid(Holes::BackNine);
        else
            EnableScoreDetails(false);
        const QString score = round->score.toString();
        if (m_fraFrontNine->isEnabled() || m_fraBackNine->isEnabled()) {
            m_txtTotalScore->hide();
            m_lblTotalScoreCaption->hide();
            m_txtTotal->setText(score);
        } else {
            m_txtTotalScore->show();
            m_lblTotalScoreCaption->show();
            m_txtTotalScore->setText(score);
        }
    }
    m_filling = false;
    m_cmdSave->setEnabled(false);
    frame().openChild(this);
}

void frmScore::FormActivate()
{
    RunGuarded([] { frame().UpdateMenus(QStringLiteral("frmScore")); });
    if (m_txtDate->isVisible())
        m_txtDate->setFocus();
}

void frmScore::courseChosen()
{
    const QString course = m_cboCourses->currentText();
    if (course.isEmpty())
        return;
    const QStringList tees = TeesOf(db(), course);
    m_cboTees->clear();
    if (tees.isEmpty()) {
        platform().messageBox(QStringLiteral("Course data is not available."), MsgIcon::Critical, windowTitle());
        closeForm();
        return;
    }
    m_cboTees->setEnabled(true);
    m_cboTees->addItems(tees);
    m_cboTees->setCurrentIndex(0);
    teesChosen();
    // A round on the golfer's home course is a Home round, any other an Away one.
    const LogGlobals &g = basLogGlobals();
    const QString home = Scalar(db(), QStringLiteral("SELECT HomeCourseName FROM HandicapLog WHERE LastName = ? AND "
                                                     "FirstName = ?"),
                                {g.gLastName, g.gFirstName})
                             .toString();
    m_optType.at(!home.isEmpty() && home.compare(course, Qt::CaseInsensitive) == 0 ? 1 : 0)->setChecked(true);
    UpdateSaveButton();
}

void frmScore::teesChosen()
{
    const QString course = m_cboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    if (tees.isEmpty())
        return;
    const std::optional<TeesRatings> ratings = LoadTeesRatings(db(), course, tees);
    if (!ratings) {
        platform().messageBox(QStringLiteral("Unable to retrieve rating and slope data for this course."),
                              MsgIcon::Critical, windowTitle());
        return;
    }
    const TeesHoles h = LoadTeesHoles(db(), course, tees);
    const HolesOffer offer = HolesOffered(ratings->overall, ratings->front, ratings->back, h.hole1, h.hole10);
    m_cboHoles->clear();
    m_cboHoles->setEnabled(true);
    m_cboHoles->addItems(offer.items);
    m_cboHoles->setCurrentIndex(offer.chosen);
    holesChosen();
    ClearScoreEntries();
    SetFairwayBoxes(course, tees);
    UpdateSaveButton();
}

void frmScore::holesChosen()
{
    m_lblHoles->setText(m_cboHoles->currentText());
    ArrangeScoreGrid(m_cboHoles->currentText());
}

void frmScore::ClearScoreEntries()
{
    for (int i = 0; i < 18; ++i) {
        m_txtScore->setText(i, QString());
        m_txtPutts->setText(i, QString());
        m_chkFairway.at(i)->setChecked(false);
    }
    for (QLineEdit *box : {m_txtIn, m_txtOut, m_txtTotal, m_txtTotalScore})
        box->clear();
    for (QLabel *label : {m_lblInPutts, m_lblOutPutts, m_lblTotalPutts})
        label->clear();
}

void frmScore::EnableScoreDetails(bool enabled)
{
    for (QWidget *w : {static_cast<QWidget *>(m_fraScoreDetails), static_cast<QWidget *>(m_fraFrontNine),
                       static_cast<QWidget *>(m_fraBackNine)})
        w->setEnabled(enabled);
    for (int i = 0; i < 18; ++i) {
        m_txtScore->box(i)->setEnabled(enabled);
        m_txtPutts->box(i)->setEnabled(enabled);
        m_lblHoleCaption.at(i)->setEnabled(enabled);
    }
    for (QLabel *caption : m_lblDetailsCaption)
        caption->setEnabled(enabled);
    for (QLabel *caption : {m_lblInCaption, m_lblOutCaption, m_lblTotalCaption})
        caption->setEnabled(enabled);
    for (QCheckBox *fairway : m_chkFairway)
        fairway->setEnabled(enabled);
    // A nine's total can be typed while the nine has no hole score.
    m_txtOut->setEnabled(!enabled || NineScoreSum(m_txtScore->texts(), 0) < 1);
    m_txtIn->setEnabled(!enabled || NineScoreSum(m_txtScore->texts(), 9) < 1);
}

void frmScore::setNineEnabled(int first, bool enabled)
{
    for (int i = first; i < first + 9; ++i) {
        m_txtScore->box(i)->setEnabled(enabled);
        m_txtPutts->box(i)->setEnabled(enabled);
        m_chkFairway.at(i)->setEnabled(enabled);
        m_lblHoleCaption.at(i)->setEnabled(enabled);
    }
    for (int r = 0; r < 3; ++r)
        m_lblDetailsCaption.at((first == 0 ? 0 : 3) + r)->setEnabled(enabled);
}

void frmScore::ArrangeScoreGrid(const QString &holes)
{
    const TeesHoles h = LoadTeesHoles(db(), CourseName(), Tees());
    const GridArrangement g = ArrangeGridFor(holes, h.rows, h.hole1, h.hole11);
    if (g.nine) {
        if (!g.front && !g.back) {
            EnableScoreDetails(false);
        } else {
            m_fraScoreDetails->setEnabled(true);
            m_fraFrontNine->setEnabled(g.front);
            m_fraBackNine->setEnabled(g.back);
            setNineEnabled(0, g.front);
            setNineEnabled(9, g.back);
            m_lblOutCaption->setEnabled(g.front);
            m_txtOut->setEnabled(g.front);
            m_lblInCaption->setEnabled(g.back);
            m_txtIn->setEnabled(g.back);
            // The total row goes for a nine, and stays gone for the rest of this entry.
            m_lblTotalCaption->hide();
            m_txtTotal->hide();
            m_lblTotalPutts->hide();
        }
    } else {
        EnableScoreDetails(g.front && g.back);
    }
    const bool grid = m_fraFrontNine->isEnabled() || m_fraBackNine->isEnabled();
    m_txtTotalScore->setVisible(!grid);
    m_lblTotalScoreCaption->setVisible(!grid);
}

void frmScore::SetFairwayBoxes(const QString &course, const QString &tees)
{
    const QVector<bool> shown = FairwayBoxes(db(), course, tees);
    for (int i = 0; i < 18; ++i)
        m_chkFairway.at(i)->setVisible(shown.at(i));
}

void frmScore::scoreTyped(int index)
{
    const int first = index < 9 ? 0 : 9;
    QLineEdit *nine = index < 9 ? m_txtOut : m_txtIn;
    const qint16 sum = NineScoreSum(m_txtScore->texts(), first);
    if (sum < 1) {
        // No hole score left on the nine: its total can be typed again.
        nine->clear();
        nine->setEnabled(true);
        QLineEdit *other = index < 9 ? m_txtIn : m_txtOut;
        QGroupBox *otherFrame = index < 9 ? m_fraBackNine : m_fraFrontNine;
        if (otherFrame->isEnabled())
            other->setEnabled(true);
        m_txtTotal->setEnabled(true);
    } else {
        nine->setText(QString::number(sum));
        m_txtOut->setEnabled(false);
        m_txtIn->setEnabled(false);
        m_txtTotal->setEnabled(false);
    }
    UpdateSaveButton();
}

void frmScore::nineTotalTyped()
{
    m_txtTotal->setText(TotalOfNines(m_txtOut->text(), m_txtIn->text()));
    UpdateSaveButton();
}

void frmScore::totalTyped()
{
    // The hidden total score box carries the grid's total, so that Save can follow it.
    const double total = Val(m_txtTotal->text());
    m_txtTotalScore->setText(total != 0 ? m_txtTotal->text() : QString());
    UpdateSaveButton();
}

void frmScore::puttsTyped(int index)
{
    QLabel *nine = index < 9 ? m_lblOutPutts : m_lblInPutts;
    nine->setText(SumText(NineScoreSum(m_txtPutts->texts(), index < 9 ? 0 : 9)));
    m_lblTotalPutts->setText(SumText(int(Val(m_lblOutPutts->text()) + Val(m_lblInPutts->text()))));
    UpdateSaveButton();
}

void frmScore::statTyped(StatBox box)
{
    const QHash<StatBox, QString> consequences = StatConsequences(box, statBox(box)->text());
    for (auto it = consequences.cbegin(); it != consequences.cend(); ++it)
        statBox(it.key())->setText(it.value());
    UpdateSaveButton();
}

void frmScore::refuseHoleBox(BoxArray *boxes, int index, const QString &message)
{
    if (message.isEmpty())
        return;
    platform().messageBox(message, MsgIcon::Exclamation, windowTitle());
    boxes->setText(index, QString());
    boxes->box(index)->setFocus();
}

bool frmScore::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && !m_leaving) {
        // The hole checks run as a box is left; the message may take the focus meanwhile.
        m_leaving = true;
        for (int i = 0; i < 18; ++i) {
            const QString score = m_txtScore->text(i);
            const QString putts = m_txtPutts->text(i);
            if (watched == m_txtScore->box(i))
                refuseHoleBox(m_txtScore, i, ScoreBoxLeft(i, score, putts));
            else if (watched == m_txtPutts->box(i))
                refuseHoleBox(m_txtPutts, i, PuttsBoxLeft(i, score, putts));
        }
        m_leaving = false;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
            (qobject_cast<QLineEdit *>(watched) || qobject_cast<QCheckBox *>(watched))) {
            // Enter moves on in playing order, as Tab does.
            focusNextChild();
            return true;
        }
    }
    return EntryForm::eventFilter(watched, event);
}

QString frmScore::helpAnchor() const
{
    return m_editMode ? QStringLiteral("score.html#edit") : QStringLiteral("score.html#new");
}

void frmScore::showCalendar()
{
    const QDate typed = ParseDateText(m_txtDate->text());
    if (typed.isValid())
        m_calendar->setSelectedDate(typed);
    m_calendar->move(m_cmdCalendar->mapToGlobal(QPoint(0, m_cmdCalendar->height())));
    m_calendar->show();
    m_calendar->setFocus();
}

void frmScore::UpdateSaveButton()
{
    m_cmdSave->setEnabled(!CourseName().isEmpty() && !Tees().isEmpty() && !ScoreDate().isEmpty() &&
                          !m_txtTotalScore->text().isEmpty());
}

ScoreEntry frmScore::entry() const
{
    ScoreEntry e;
    e.editMode = m_editMode;
    e.course = CourseName();
    e.tees = Tees();
    e.date = ScoreDate();
    e.holes = m_lblHoles->text();
    for (int i = 0; i < 3; ++i)
        if (m_optType.at(i)->isChecked())
            e.type = i;
    e.exclude = m_chkExclude->isChecked();
    e.totalScore = m_txtTotalScore->text();
    e.totalScoreVisible = !m_txtTotalScore->isHidden();
    e.penalties = statBox(StatBox::Penalties)->text();
    e.lostBalls = statBox(StatBox::LostBalls)->text();
    e.bunkers = statBox(StatBox::Bunkers)->text();
    e.sandSaves = statBox(StatBox::SandSaves)->text();
    e.attemptedSaves = statBox(StatBox::AttemptedSaves)->text();
    e.score = m_txtScore->texts();
    e.putts = m_txtPutts->texts();
    for (int i = 0; i < 18; ++i) {
        e.fairway[i] = m_chkFairway.at(i)->isChecked();
        e.fairwayShown[i] = !m_chkFairway.at(i)->isHidden();
    }
    e.out = m_txtOut->text();
    e.in = m_txtIn->text();
    e.total = m_txtTotal->text();
    return e;
}

void frmScore::cmdSave_Click()
{
    Hourglass hourglass;
    try {
        // The home course the rule compares with is a text of the check's own that nothing fills,
        // so the rule never asks: a Home round on any course goes through and becomes the home course.
        const QString home;
        const QString title = windowTitle();
        const ScoreCheck check = ValidateScore(
            entry(), home,
            [&title](const QString &question) {
                return platform().messageBox(question, MsgIcon::Question, title, MsgButtons::OKCancel) ==
                       MsgAnswer::OK;
            },
            [&title](const QString &question) {
                return platform().messageBox(question, MsgIcon::Question, title, MsgButtons::YesNo) ==
                       MsgAnswer::Yes;
            });
        if (check.out)
            m_txtOut->setText(*check.out);
        if (check.in)
            m_txtIn->setText(*check.in);
        if (check.totalScore)
            m_txtTotalScore->setText(*check.totalScore);
        if (check.type)
            m_optType.at(*check.type)->setChecked(true);
        if (check.message == CancelledCheck())
            return;
        if (!check.passed()) {
            if (!check.focus.isEmpty())
                if (auto *control = findChild<QWidget *>(check.focus))
                    control->setFocus();
            platform().messageBox(check.message, MsgIcon::Exclamation, title);
            return;
        }

        const ScoreEntry e = entry();
        LogGlobals &g = basLogGlobals();
        if (check.storeHomeCourse)
            Exec(db(), QStringLiteral("UPDATE HandicapLog SET HomeCourseName = ? WHERE LastName = ? AND FirstName = ?"),
                 {e.course, g.gLastName, g.gFirstName});
        if (!LoadTeesRatings(db(), e.course, e.tees)) {
            platform().messageBox(QStringLiteral("Unable to retrieve rating and slope data for this course."),
                                  MsgIcon::Critical, title);
            return;
        }
        m_scoreIndex = SaveScore(db(), g.gLastName, g.gFirstName, m_scoreIndex, e, check.detailsEntered);
        frame().ScoreSaved();
    } catch (const QuillonError &error) {
        platform().messageBox(error.message(), MsgIcon::Critical, appTitle());
        return;
    }
    closeForm();
}

} // namespace quillon
