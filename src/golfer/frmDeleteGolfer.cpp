#include "frmDeleteGolfer.h"

#include "ui/DialogPlacement.h"
#include "GolferListDialog.h"
#include "GolferNames.h"
#include "frmNewGolfer.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/FormInstance.h"
#include "ui/Guarded.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace quillon {

frmDeleteGolfer::frmDeleteGolfer(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDeleteGolfer"));
    const GolferListControls c = BuildGolferListDialog(
        *this, QStringLiteral("Delete Golfer"), QStringLiteral("Select the golfer to delete and press OK."),
        QStringLiteral("Golfer:"), QStringLiteral("&Cancel"));
    m_lstGolferList = c.lstGolferList;
    m_cmdOK = c.cmdOK;
    m_cmdCancel = c.cmdCancel;
    m_lstGolferList->setSelectionMode(QAbstractItemView::MultiSelection);
    m_cmdOK->setDefault(true);

    connect(m_lstGolferList, &QListWidget::itemSelectionChanged, this,
            [this] { m_cmdOK->setEnabled(!m_lstGolferList->selectedItems().isEmpty()); });
    connect(m_lstGolferList, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem *item) {
        item->setSelected(true); // the double-click's second press may have toggled it off
        cmdOK_Click();
    });
    connect(m_cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(m_cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

frmDeleteGolfer &frmDeleteGolfer::instance()
{
    return FormInstance<frmDeleteGolfer>::get();
}

void frmDeleteGolfer::DeleteGolfer()
{
    m_currentGolferGone = false;
    m_lstGolferList->clear();
    if (!RunGuarded([this] {
            m_lstGolferList->addItems(GolferListItems(db()));
            frame().UpdateMenus(QStringLiteral("frmDeleteGolfer"));
        }))
        return;
    m_lstGolferList->setFocus();
    CentreOnFrame(*this);
    exec();

    LogGlobals &g = basLogGlobals();
    if (m_currentGolferGone) {
        g.gFirstName.clear();
        g.gLastName.clear();
        g.gScoreLog.reset();
        g.gHandicapLog.reset();
        RunGuarded([] {
            FrameServices &f = frame();
            f.setPanelText(QStringLiteral("GolferName"), QString());
            f.setPanelText(QStringLiteral("Handicap"), QStringLiteral("Handicap: (not calculated)"));
            f.UnloadForms();
        });
        frmNewGolfer::instance().GetNewGolfer();
        return;
    }
    RunGuarded([] { frame().RefreshActiveView(); });
}

void frmDeleteGolfer::cmdOK_Click()
{
    Hourglass hourglass;
    RunGuarded([this] {
        LogGlobals &g = basLogGlobals();
        for (int i = 0; i < m_lstGolferList->count(); ++i) {
            if (!m_lstGolferList->item(i)->isSelected())
                continue;
            const GolferName name = SplitListItem(m_lstGolferList->item(i)->text());
            const QString question =
                QStringLiteral("Are you sure you want to delete golfer %1 %2?").arg(name.first, name.last);
            if (platform().messageBox(question, MsgIcon::Question, windowTitle(), MsgButtons::YesNo,
                                      MsgAnswer::No) != MsgAnswer::Yes)
                continue;
            DeleteGolferRows(db(), name.last, name.first);
            if (name.last == g.gLastName && name.first == g.gFirstName)
                m_currentGolferGone = true;
        }
        // The current golfer's row read again: gone under another spelling is gone as well.
        if (g.gHandicapLog) {
            g.gHandicapLog->requery();
            if (g.gHandicapLog->rows().eof())
                m_currentGolferGone = true;
        }
    });
    accept();
}

void frmDeleteGolfer::cmdCancel_Click()
{
    reject();
}

} // namespace quillon
