#include "frmCourseInfo.h"

#include "CourseCardLayout.h"
#include "CourseData.h"
#include "CourseTotals.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/CourseTeesRow.h"
#include "ui/Guarded.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

namespace {

const char *const kRatingColumns[] = {"OverallRating", "FrontRating", "BackRating"};

QLabel *valueLabel(QWidget *parent, const QString &name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 10);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

frmCourseInfo::frmCourseInfo(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmCourseInfo"));
    setWindowTitle(QStringLiteral("Course Information"));

    auto *layout = new QVBoxLayout(this);
    const CourseTeesLists lists = AddCourseTeesRow(this, layout);
    m_dbcboCourses = lists.courses;
    m_cboTees = lists.tees;

    m_lblPar.resize(18);
    m_lblYards.resize(18);
    m_lblHdcp.resize(18);
    CourseCardCells cells;
    cells.rating = [this](CardNine nine, bool slope) -> QWidget * {
        const char *nines[] = {"Overall", "Front", "Back"};
        const QString column = QLatin1String(nines[int(nine)]) + (slope ? QStringLiteral("Slope") : QStringLiteral("Rating"));
        QLabel *label = valueLabel(this, QStringLiteral("lbl") + column);
        m_labels.insert(column, label);
        return label;
    };
    cells.hole = [this](CardRow row, int index) -> QWidget * {
        const char *names[] = {"lblPar", "lblYards", "lblHdcp"};
        QLabel *label = valueLabel(this, QStringLiteral("%1_%2").arg(QLatin1String(names[int(row)])).arg(index));
        (row == CardRow::Par ? m_lblPar : row == CardRow::Yards ? m_lblYards : m_lblHdcp)[index] = label;
        return label;
    };
    cells.sum = [this](CardRow row, CardSum sum) -> QWidget * {
        const bool par = row == CardRow::Par;
        const struct {
            const char *column;
            const char *label;
        } names[2][3] = {{{"ParOut", "lblParOut"}, {"ParIn", "lblParIn"}, {"TotalPar", "lblTotalPar"}},
                         {{"YardsOut", "lblYardsOut"}, {"YardsIn", "lblYardsIn"}, {"TotalYards", "lblTotalYards"}}};
        const auto &n = names[par ? 0 : 1][int(sum)];
        QLabel *label = valueLabel(this, QLatin1String(n.label));
        m_labels.insert(QLatin1String(n.column), label);
        return label;
    };
    BuildCourseCard(this, layout, cells);
    layout->addStretch(1);

    // A choice in either list is the user's: a failure there takes the last line of defence.
    connect(m_dbcboCourses, &QComboBox::currentTextChanged, this,
            [this] { RunUntrapped([this] { courseChanged(); }); });
    connect(m_cboTees, &QComboBox::activated, this, [this] { RunUntrapped([this] { teesChosen(); }); });
}

bool frmCourseInfo::ShowCourseInfo(const QString &courseName, const QString &tees, bool fromScoreDetails)
{
    bool shown = false;
    RunGuarded([&] {
        const QStringList courses = CourseNames(db());
        if (courses.isEmpty()) {
            platform().messageBox(QStringLiteral("There are no course statistics in the database.  Please select "
                                                 "New Course from the File menu to enter course statistics."),
                                  MsgIcon::Critical, windowTitle());
            return;
        }
        {
            const QSignalBlocker quiet(m_dbcboCourses);
            m_dbcboCourses->clear();
            m_dbcboCourses->addItems(courses);
            m_dbcboCourses->setCurrentIndex(-1);
        }
        QLabel *panel = frame().panel(QStringLiteral("ScoreDetails"));
        if (fromScoreDetails) {
            panel->setText(QStringLiteral("Score Details"));
            panel->setToolTip(QStringLiteral("Returns to the Score Details screen"));
            panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
            m_returnCourse = courseName;
            m_returnTees = tees;
        } else {
            panel->setText(QString());
            panel->setToolTip(QString());
            panel->setFrameStyle(QFrame::NoFrame);
        }
        if (!courseName.isEmpty()) {
            const int index = m_dbcboCourses->findText(courseName, Qt::MatchFixedString);
            if (index >= 0)
                m_dbcboCourses->setCurrentIndex(index);
        }
        if (m_dbcboCourses->currentIndex() < 0)
            m_dbcboCourses->setCurrentIndex(0);
        shown = true;
    });
    return shown;
}

void frmCourseInfo::FormActivate()
{
    RunGuarded([this] {
        frame().UpdateMenus(QStringLiteral("frmCourseInfo"));
        // Something may have changed under the card while another form was in front: courses
        // or tees added or deleted, values edited.
        refreshLists();
        if (m_cboTees->currentText().isEmpty())
            ClearCourseInfo();
        else
            teesChosen();
    });
}

void frmCourseInfo::refreshLists()
{
    const QString course = m_dbcboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    const QStringList courses = CourseNames(db());
    {
        const QSignalBlocker quiet(m_dbcboCourses);
        m_dbcboCourses->clear();
        m_dbcboCourses->addItems(courses);
        const int at = courses.indexOf(course);
        m_dbcboCourses->setCurrentIndex(at >= 0 ? at : (courses.isEmpty() ? -1 : 0));
    }
    const QStringList teesList = TeesOf(db(), m_dbcboCourses->currentText());
    m_cboTees->clear();
    m_cboTees->addItems(teesList);
    const int at = teesList.indexOf(tees);
    m_cboTees->setCurrentIndex(at >= 0 ? at : (teesList.isEmpty() ? -1 : 0));
    if (m_dbcboCourses->currentText().compare(m_returnCourse, Qt::CaseInsensitive) != 0)
        clearReturnPanel();
}

bool frmCourseInfo::selectedCourse(QString &course, QString &tees) const
{
    course = m_dbcboCourses->currentText();
    tees = m_cboTees->currentText();
    return !course.isEmpty();
}

void frmCourseInfo::courseChanged()
{
    const QString course = m_dbcboCourses->currentText();
    if (OfferTees(*m_cboTees, TeesOf(db(), course), windowTitle()))
        teesChosen();
    // The way back holds only for the course it was made for.
    if (course.compare(m_returnCourse, Qt::CaseInsensitive) != 0)
        clearReturnPanel();
}

void frmCourseInfo::teesChosen()
{
    const QString tees = m_cboTees->currentText();
    if (tees.isEmpty())
        return;
    if (tees.compare(m_returnTees, Qt::CaseInsensitive) != 0)
        clearReturnPanel();
    ClearCourseInfo();
    const CourseCard card = LoadCourseCard(db(), m_dbcboCourses->currentText(), tees);
    for (auto it = m_labels.cbegin(); it != m_labels.cend(); ++it) {
        const QVariant value = card.log.value(it.key());
        if (!IsEntered(value))
            continue;
        const bool rating = std::any_of(std::begin(kRatingColumns), std::end(kRatingColumns),
                                        [&](const char *c) { return it.key() == QLatin1String(c); });
        it.value()->setText(rating ? RatingText(value.toDouble()) : StoredText(value));
    }
    for (int i = 0; i < 18; ++i) {
        if (!card.par.at(i).isNull())
            m_lblPar[i]->setText(StoredText(card.par.at(i)));
        if (!card.yards.at(i).isNull())
            m_lblYards[i]->setText(StoredText(card.yards.at(i)));
        if (!card.hdcp.at(i).isNull())
            m_lblHdcp[i]->setText(StoredText(card.hdcp.at(i)));
    }
}

void frmCourseInfo::ClearCourseInfo()
{
    for (QLabel *label : m_labels)
        label->clear();
    for (const QVector<QLabel *> *row : {&m_lblPar, &m_lblYards, &m_lblHdcp})
        for (QLabel *label : *row)
            label->clear();
}

void frmCourseInfo::clearReturnPanel()
{
    QLabel *panel = frame().panel(QStringLiteral("ScoreDetails"));
    if (panel->text().isEmpty())
        return;
    panel->setText(QString());
    panel->setToolTip(QString());
    panel->setFrameStyle(QFrame::NoFrame);
}

} // namespace quillon
