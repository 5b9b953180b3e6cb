#include "frmDeleteCourse.h"

#include "CourseData.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

frmDeleteCourse::frmDeleteCourse(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDeleteCourse"));
    setWindowTitle(QStringLiteral("Delete Course"));
    setModal(true);

    auto *lblInstructions = new QLabel(QStringLiteral("Select the Course and one or more tees to delete."), this);
    lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    lblInstructions->setWordWrap(true);
    auto *courseCaption = new QLabel(QStringLiteral("Course:"), this);
    m_dblstCourses = new QComboBox(this);
    m_dblstCourses->setObjectName(QStringLiteral("dblstCourses"));
    m_dblstCourses->setMinimumWidth(240);
    courseCaption->setBuddy(m_dblstCourses);
    auto *teesCaption = new QLabel(QStringLiteral("Tees:"), this);
    m_lstTees = new QListWidget(this);
    m_lstTees->setObjectName(QStringLiteral("lstTees"));
    m_lstTees->setSelectionMode(QAbstractItemView::MultiSelection);
    teesCaption->setBuddy(m_lstTees);
    m_cmdOK = new QPushButton(QStringLiteral("&OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    m_cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    m_cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto *grid = new QGridLayout(this);
    grid->addWidget(lblInstructions, 0, 0, 1, 2);
    grid->addWidget(courseCaption, 1, 0);
    grid->addWidget(m_dblstCourses, 2, 0);
    grid->addWidget(teesCaption, 3, 0);
    grid->addWidget(m_lstTees, 4, 0);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_cmdOK);
    buttons->addWidget(m_cmdCancel);
    buttons->addStretch(1);
    grid->addLayout(buttons, 2, 1, 3, 1);

    connect(m_dblstCourses, &QComboBox::activated, this, [this] { RunGuarded([this] { courseChosen(); }); });
    // OK comes on with a first selection and stays on.
    connect(m_lstTees, &QListWidget::itemSelectionChanged, this, [this] {
        if (!m_lstTees->selectedItems().isEmpty())
            m_cmdOK->setEnabled(true);
    });
    connect(m_cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmDeleteCourse &frmDeleteCourse::instance()
{
    return FormInstance<frmDeleteCourse>::get();
}

void frmDeleteCourse::DeleteCourse()
{
    m_deleted = false;
    m_cmdOK->setEnabled(false);
    bool empty = false;
    if (!RunGuarded([&] {
            const QStringList courses = CourseNames(db());
            m_dblstCourses->clear();
            m_dblstCourses->addItems(courses);
            courseChosen();
            empty = courses.isEmpty();
        }))
        return;
    if (empty) {
        platform().messageBox(QStringLiteral("There are no courses to delete."), MsgIcon::Exclamation,
                              windowTitle());
        RunGuarded([] { frame().RefreshActiveView(); });
        return;
    }
    m_dblstCourses->setFocus();
    CentreOnFrame(*this);
    exec();
    if (m_deleted)
        RunGuarded([this] { afterDelete(); });
}

void frmDeleteCourse::courseChosen()
{
    m_lstTees->clear();
    const QString course = m_dblstCourses->currentText();
    if (!course.isEmpty())
        m_lstTees->addItems(TeesOf(db(), course));
}

void frmDeleteCourse::cmdOK_Click()
{
    const QString course = m_dblstCourses->currentText();
    if (platform().messageBox(
            QStringLiteral("Are you sure you want to delete course data for the selected tees at %1?").arg(course),
            MsgIcon::Question, windowTitle(), MsgButtons::YesNo, MsgAnswer::No) != MsgAnswer::Yes)
        return;
    Hourglass hourglass;
    const bool done = RunGuarded([&] {
        LogGlobals &g = basLogGlobals();
        for (int i = 0; i < m_lstTees->count(); ++i) {
            if (!m_lstTees->item(i)->isSelected())
                continue;
            const QString tees = m_lstTees->item(i)->text();
            // Any golfer's round holds the tees, not only the current golfer's.
            if (TeesHaveScores(db(), course, tees)) {
                platform().messageBox(
                    QStringLiteral("Unable to delete the course data for the %1 tees at %2 because a score has "
                                   "been entered using this data.  You must delete all scores from the %1 tees "
                                   "on %2 before deleting this course data.")
                        .arg(tees, course),
                    MsgIcon::Critical, windowTitle());
                continue;
            }
            DeleteTees(db(), course, tees);
            g.gCourseCount = CountCourseRows(db());
        }
    });
    if (!done)
        return; // the form stays open after a failure
    m_deleted = true;
    accept();
}

void frmDeleteCourse::afterDelete()
{
    FrameServices &f = frame();
    if (basLogGlobals().gCourseCount != 0) {
        f.RefreshActiveView();
        return;
    }
    // No course is left: the score log comes back and the course card goes.
    f.menuItem(QStringLiteral("mnuViewScoreLog"))->setChecked(true);
    for (const char *item :
         {"mnuViewCourseInfo", "mnuViewUltimateScorecard", "mnuViewGolferStatistics", "mnuViewGraphs"})
        f.menuItem(QLatin1String(item))->setChecked(false);
    f.unloadView(QStringLiteral("frmCourseInfo"));
    f.UpdateMenus(QStringLiteral("frmScoreLog"));
    f.RefreshActiveView();
}

} // namespace quillon
