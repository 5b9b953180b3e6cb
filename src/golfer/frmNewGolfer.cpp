#include "frmNewGolfer.h"

#include "ui/DialogPlacement.h"
#include "GolferListDialog.h"
#include "handicap/Handicap.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace quillon {

frmNewGolfer::frmNewGolfer(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNewGolfer"));
    m_txtGolfer = new QLineEdit(this);
    m_txtGolfer->setObjectName(QStringLiteral("txtGolfer"));
    const GolferListControls c = BuildGolferListDialog(
        *this, QStringLiteral("New Golfer"),
        QStringLiteral("Enter the name of a new golfer or select a golfer from the list."),
        QStringLiteral("Golfer (Last name, First name):"), QStringLiteral("E&xit"), m_txtGolfer);
    m_lstGolferList = c.lstGolferList;
    m_cmdOK = c.cmdOK;
    m_cmdCancel = c.cmdCancel;
    m_lstGolferList->setSelectionMode(QAbstractItemView::SingleSelection);
    // Enter belongs to the name box and the list, which run OK themselves.
    m_cmdOK->setAutoDefault(false);
    m_cmdCancel->setAutoDefault(false);

    setTabOrder(m_txtGolfer, m_lstGolferList);
    setTabOrder(m_lstGolferList, m_cmdOK);
    setTabOrder(m_cmdOK, m_cmdCancel);

    m_txtGolfer->installEventFilter(this);
    m_lstGolferList->installEventFilter(this);
    connect(m_txtGolfer, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_cmdOK->setEnabled(!text.isEmpty()); });
    connect(m_lstGolferList, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { m_txtGolfer->setText(item->text()); });
    connect(m_lstGolferList, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        // Moving through the list by keyboard chooses as a click does.
        if (item && item->isSelected())
            m_txtGolfer->setText(item->text());
    });
    connect(m_lstGolferList, &QListWidget::itemDoubleClicked, this, [this] { cmdOK_Click(); });
    connect(m_cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

frmNewGolfer &frmNewGolfer::instance()
{
    return FormInstance<frmNewGolfer>::get();
}

void frmNewGolfer::GetNewGolfer()
{
    LogGlobals &g = basLogGlobals();
    // File, Exit chosen while the frame first painted has closed the database: the program is
    // ending, and no golfer can be chosen from nothing.
    if (!g.gConnection)
        return;
    {
        Hourglass hourglass;
        m_cmdCancel->setText(g.gLastName.isEmpty() ? QStringLiteral("E&xit") : QStringLiteral("&Cancel"));
        m_parsed = GolferName();
        m_closing = false;
        m_txtGolfer->clear();
        m_lstGolferList->clear();
        if (!RunGuarded([this] { m_lstGolferList->addItems(GolferListItems(db())); }))
            return;
        m_txtGolfer->setFocus();
        CentreOnFrame(*this);
    }
    exec();
}

int frmNewGolfer::selectedRow() const
{
    for (int i = 0; i < m_lstGolferList->count(); ++i)
        if (m_lstGolferList->item(i)->isSelected())
            return i;
    return -1;
}

void frmNewGolfer::cmdOK_Click()
{
    if (m_closing)
        return;
    RunGuarded([this] {
        if (m_txtGolfer->text().isEmpty()) {
            platform().messageBox(
                QStringLiteral("Please select a golfer from the list or \nenter the name of a "
                               "new golfer."),
                MsgIcon::Exclamation, QStringLiteral("ERROR:  New Golfer"));
            m_txtGolfer->setFocus();
            return;
        }
        QStringList items;
        for (int i = 0; i < m_lstGolferList->count(); ++i)
            items << m_lstGolferList->item(i)->text();
        const GolferChoice choice = ChooseGolfer(items, selectedRow(), m_txtGolfer->text(), m_parsed);
        m_parsed = choice.parsed;
        LogGlobals &g = basLogGlobals();
        if (choice.isNew) {
            if (!AddGolfer())
                return;
        } else {
            g.gLastName = choice.chosen.last;
            g.gFirstName = choice.chosen.first;
        }
        ActivateGolfer(choice.isNew);
    });
}

bool frmNewGolfer::AddGolfer()
{
    if (m_parsed.last.isEmpty() || m_parsed.first.isEmpty()) {
        platform().messageBox(QStringLiteral("Invalid Name -- Please enter a first and last name."),
                              MsgIcon::Critical, windowTitle());
        m_txtGolfer->setFocus();
        m_txtGolfer->selectAll();
        return false;
    }
    const QString question = QStringLiteral("Add golfer %1 %2?").arg(m_parsed.first, m_parsed.last);
    if (platform().messageBox(question, MsgIcon::Question, windowTitle(), MsgButtons::YesNo,
                              MsgAnswer::Yes) == MsgAnswer::No) {
        m_txtGolfer->clear();
        m_txtGolfer->setFocus();
        return false;
    }
    LogGlobals &g = basLogGlobals();
    // The question comes first: nothing modal stands while the row is written.
    const QString gender =
        g.genderQuestion ? g.genderQuestion->GetGender(m_parsed.first, m_parsed.last) : QStringLiteral("M");
    g.gLastName = m_parsed.last;
    g.gFirstName = m_parsed.first;
    AddGolferRow(db(), m_parsed, gender);
    return true;
}

void frmNewGolfer::ActivateGolfer(bool isNew)
{
    LogGlobals &g = basLogGlobals();
    FrameServices &f = frame();
    // The golfer's rounds are read by the score log when it opens: that view owns their statement.
    g.gScoreLog.reset();
    f.setPanelText(QStringLiteral("GolferName"),
                   QStringLiteral("Golfer: %1 %2").arg(g.gFirstName, g.gLastName));
    f.menuItem(QStringLiteral("mnuViewScoreLog"))->setChecked(true);
    for (const char *item : {"mnuViewScoringRecord", "mnuViewGolferStatistics", "mnuViewCourseInfo",
                             "mnuViewUltimateScorecard", "mnuViewGraphs"})
        f.menuItem(QLatin1String(item))->setChecked(false);
    g.gHandicapLog = std::make_unique<HeldRecordset>(
        g.gConnection, QStringLiteral("SELECT * FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
        Params{g.gLastName, g.gFirstName});
    if (g.gCommandString == QLatin1String("-h") && !isNew)
        ComputeHandicap();

    Recordset &row = g.gHandicapLog->rows();
    float value = kNoHandicap;
    if (!row.eof()) {
        row.moveFirst();
        value = row.value(QStringLiteral("Handicap")).toFloat();
    }
    ShowHandicap(value);

    m_closing = true;
    accept();
    f.ShowScoreLog();
}

void frmNewGolfer::cmdCancel_Click()
{
    LogGlobals &g = basLogGlobals();
    m_closing = true;
    if (m_cmdCancel->text() == QLatin1String("E&xit")) {
        QDialog::reject();
        frame().EndProgram();
        return;
    }
    if (g.gLastName.isEmpty() || g.gFirstName.isEmpty()) {
        g.gHandicapLog.reset();
        g.gScoreLog.reset();
        g.gConnection.reset();
        QDialog::reject();
        return;
    }
    QDialog::reject();
    RunGuarded([] { frame().RefreshActiveView(); });
}

void frmNewGolfer::reject()
{
    // Escape and the close box are the cancel button.
    if (!m_closing)
        cmdCancel_Click();
}

bool frmNewGolfer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (watched == m_txtGolfer) {
            // Typing means a name of one's own: no row stays chosen.
            m_lstGolferList->clearSelection();
            if (enter) {
                cmdOK_Click();
                return true;
            }
        } else if (watched == m_lstGolferList && enter) {
            cmdOK_Click();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillon
