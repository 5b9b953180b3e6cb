#include "frmPrintScorecard.h"

#include "FormPrintout.h"
#include "ScorecardData.h"
#include "course/CourseData.h"
#include "frmScorecard.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/CourseTeesRow.h"
#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <QVBoxLayout>

namespace quillon {

frmPrintScorecard::frmPrintScorecard(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmPrintScorecard"));
    setWindowTitle(QStringLiteral("Print Scorecard"));
    setModal(false);

    auto *lblInstructions = new QLabel(
        QStringLiteral("To print a scorecard for a specific course, choose the Selected Course option "
                       "and specify the course name and tees. Choose the Generic Course option to print "
                       "a blank scorecard."),
        this);
    lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    lblInstructions->setWordWrap(true);

    auto *fraPrintType = new QGroupBox(QStringLiteral("Print Type"), this);
    fraPrintType->setObjectName(QStringLiteral("fraPrintType"));
    m_optSelectedCourse = new QRadioButton(QStringLiteral("&Selected Course"), fraPrintType);
    m_optSelectedCourse->setObjectName(QStringLiteral("optSelectedCourse"));
    m_optGenericCourse = new QRadioButton(QStringLiteral("&Generic Course"), fraPrintType);
    m_optGenericCourse->setObjectName(QStringLiteral("optGenericCourse"));
    auto *options = new QHBoxLayout(fraPrintType);
    options->addWidget(m_optSelectedCourse);
    options->addWidget(m_optGenericCourse);
    options->addStretch(1);

    // The data control of the course list: the courses the list offers.
    m_rdcCourses = new QStringListModel(this);
    m_rdcCourses->setObjectName(QStringLiteral("rdcCourses"));
    m_lblCourse = new QLabel(QStringLiteral("Course:"), this);
    m_lblCourse->setObjectName(QStringLiteral("lblCourse"));
    m_dbcboCourses = new QComboBox(this);
    m_dbcboCourses->setObjectName(QStringLiteral("dbcboCourses"));
    m_dbcboCourses->setModel(m_rdcCourses);
    m_dbcboCourses->setMinimumWidth(260);
    m_lblCourse->setBuddy(m_dbcboCourses);
    m_lblTees = new QLabel(QStringLiteral("Tees:"), this);
    m_lblTees->setObjectName(QStringLiteral("lblTees"));
    m_cboTees = new QComboBox(this);
    m_cboTees->setObjectName(QStringLiteral("cboTees"));
    m_lblTees->setBuddy(m_cboTees);
    auto *lists = new QFormLayout;
    lists->addRow(m_lblCourse, m_dbcboCourses);
    lists->addRow(m_lblTees, m_cboTees);

    m_cmdPrint = new QPushButton(QStringLiteral("&Print"), this);
    m_cmdPrint->setObjectName(QStringLiteral("cmdPrint"));
    m_cmdPrint->setDefault(true);
    m_cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    m_cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_cmdPrint);
    buttons->addWidget(m_cmdCancel);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblInstructions);
    layout->addWidget(fraPrintType);
    layout->addLayout(lists);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    lblInstructions->setFixedWidth(380);

    setTabOrder(m_optSelectedCourse, m_optGenericCourse);
    setTabOrder(m_optGenericCourse, m_dbcboCourses);
    setTabOrder(m_dbcboCourses, m_cboTees);
    setTabOrder(m_cboTees, m_cmdPrint);
    setTabOrder(m_cmdPrint, m_cmdCancel);

    // A change of course has no trap of its own.
    connect(m_dbcboCourses, &QComboBox::currentTextChanged, this,
            [this] { RunUntrapped([this] { courseChanged(); }); });
    connect(m_cboTees, &QComboBox::currentTextChanged, this, [this] { updatePrintButton(); });
    connect(m_optSelectedCourse, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            optionChanged();
    });
    connect(m_optGenericCourse, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            optionChanged();
    });
    connect(m_cmdPrint, &QPushButton::clicked, this, [this] { cmdPrint_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    reset();
}

frmPrintScorecard &frmPrintScorecard::instance()
{
    return FormInstance<frmPrintScorecard>::get();
}

void frmPrintScorecard::reset()
{
    {
        const QSignalBlocker quietCourses(m_dbcboCourses);
        const QSignalBlocker quietTees(m_cboTees);
        const QSignalBlocker quietOption(m_optSelectedCourse);
        const QSignalBlocker quietGeneric(m_optGenericCourse);
        m_optSelectedCourse->setChecked(true);
        m_rdcCourses->setStringList({});
        m_dbcboCourses->setCurrentIndex(-1);
        m_cboTees->clear();
    }
    for (QWidget *w : std::initializer_list<QWidget *>{m_optSelectedCourse, m_optGenericCourse, m_lblCourse,
                                                       m_dbcboCourses, m_lblTees, m_cboTees})
        w->setEnabled(true);
    updatePrintButton();
}

void frmPrintScorecard::PrintScorecard(const QString &course, const QString &tees)
{
    RunGuarded([&] {
        // Each print command starts from the dialog as it first comes up.
        reset();
        const QStringList courses = CoursesWithHoles(db());
        {
            const QSignalBlocker quiet(m_dbcboCourses);
            m_rdcCourses->setStringList(courses);
            m_dbcboCourses->setCurrentIndex(-1);
        }
        if (courses.isEmpty()) {
            // The selected option stays set, so that Print explains what is missing.
            for (QWidget *w : std::initializer_list<QWidget *>{m_optSelectedCourse, m_lblCourse, m_lblTees,
                                                               m_dbcboCourses, m_cboTees})
                w->setEnabled(false);
            m_optGenericCourse->setEnabled(true);
            m_cmdPrint->setEnabled(true);
        } else if (!course.isEmpty() && !tees.isEmpty()) {
            if (!TeesHaveHoles(db(), course, tees)) {
                m_optGenericCourse->setChecked(true);
            } else {
                m_dbcboCourses->setCurrentIndex(m_dbcboCourses->findText(course, Qt::MatchFixedString));
                const int teesAt = m_cboTees->findText(tees, Qt::MatchFixedString);
                if (teesAt >= 0)
                    m_cboTees->setCurrentIndex(teesAt);
            }
        }
        // Above the frame, without holding it up.
        if (QWidget *frameWindow = platform().dialogParent(); frameWindow && parentWidget() != frameWindow)
            setParent(frameWindow, windowFlags());
        CentreOnFrame(*this);
        show();
        raise();
        activateWindow();
    });
}

void frmPrintScorecard::courseChanged()
{
    OfferTees(*m_cboTees, TeesOf(db(), m_dbcboCourses->currentText()), windowTitle());
    updatePrintButton();
}

void frmPrintScorecard::updatePrintButton()
{
    m_cmdPrint->setEnabled(!m_dbcboCourses->currentText().isEmpty() && !m_cboTees->currentText().isEmpty());
}

void frmPrintScorecard::optionChanged()
{
    const bool selected = m_optSelectedCourse->isChecked();
    for (QWidget *w : std::initializer_list<QWidget *>{m_lblCourse, m_lblTees, m_dbcboCourses, m_cboTees})
        w->setEnabled(selected);
    if (selected)
        updatePrintButton();
    else
        m_cmdPrint->setEnabled(true);
}

void frmPrintScorecard::cmdPrint_Click()
{
    RunGuarded([this] {
        const bool selected = m_optSelectedCourse->isChecked();
        if (selected && m_rdcCourses->rowCount() == 0) {
            platform().messageBox(
                QStringLiteral("There are no course statistics in the database.  Please select "
                               "New Course from the File menu to enter course statistics."),
                MsgIcon::Critical, windowTitle());
            reject();
            return;
        }
        Hourglass busy;
        // A card of its own for each print, so that no value of the last one carries over.
        frmScorecard card;
        if (selected)
            FillScorecard(card);
        // A preview closed without printing leaves the choice open.
        if (platform().print(FormPrintout(QStringLiteral("Scorecard"), card, PageOrientation::Landscape)))
            accept();
    });
}

void frmPrintScorecard::FillScorecard(frmScorecard &card)
{
    const QString course = m_dbcboCourses->currentText();
    const QString tees = m_cboTees->currentText();
    const ScorecardData data = ReadScorecard(db(), course, tees);
    card.Fill(data);
    // A warning only: the card goes out with what there is.
    if (!data.holesFound)
        platform().messageBox(IncompleteDetailsMessage(course, tees), MsgIcon::Information, windowTitle());
}

} // namespace quillon
