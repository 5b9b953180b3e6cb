#include "frmScoreLog.h"

#include "core/DateText.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/Guarded.h"
#include "ui/QueryTableModel.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

namespace quillon {

namespace {

bool checked(const char *item)
{
    QAction *a = frame().menuItem(QLatin1String(item));
    return a && a->isChecked();
}

} // namespace

frmScoreLog::frmScoreLog(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmScoreLog"));
    setWindowTitle(QStringLiteral("Score Log"));

    m_lblInstructions = new QLabel(this);
    m_lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    m_lblInstructions->setText(
        QStringLiteral("Single-click on a column heading to sort in ascending order (click again to sort in "
                       "descending order).\nDouble-click on a row in the Score Log to view score details."));
    m_lblInstructions->setWordWrap(true);

    m_lblMessage = new QLabel(this);
    m_lblMessage->setObjectName(QStringLiteral("lblMessage"));
    m_lblMessage->setAlignment(Qt::AlignCenter);
    m_lblMessage->setWordWrap(true);
    m_lblMessage->hide();

    const bool handicapMode = basLogGlobals().gCommandString == QLatin1String("-h");
    m_model = new QueryTableModel(ScoreLogColumns(handicapMode), this);
    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("DBGrid1"));
    m_grid->setModel(m_model);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setAlternatingRowColors(true);
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);
    m_grid->verticalHeader()->hide();
    m_grid->horizontalHeader()->setSectionsClickable(true);
    m_grid->horizontalHeader()->setHighlightSections(false);
    for (int c = 0; c < m_model->columns().size(); ++c)
        m_grid->setColumnHidden(c, m_model->columns().at(c).hidden);
    m_grid->installEventFilter(this);
    // A row change is remembered, so that the user comes back to the same row after a detour.
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    rememberRow(current.row());
            });

    connect(m_grid->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int c) { RunGuarded([this, c] { headingClicked(c); }); });
    connect(m_grid, &QTableView::doubleClicked, this, [this] { RunGuarded([this] { ShowScoreDetails(); }); });
    connect(m_grid, &QWidget::customContextMenuRequested, this, [this](const QPoint &at) {
        // The right button selects the row under it before the menu comes.
        const QModelIndex index = m_grid->indexAt(at);
        if (index.isValid())
            m_grid->selectRow(index.row());
        if (QMenu *popup = frame().menu(QStringLiteral("mnuScoreLog")))
            popup->popup(m_grid->viewport()->mapToGlobal(at));
    });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lblInstructions);
    layout->addWidget(m_grid, 1);
    layout->addWidget(m_lblMessage, 1);
}

ScoreLogSelection frmScoreLog::CheckedSelection()
{
    if (checked("mnuViewUsed"))
        return ScoreLogSelection::Used;
    if (checked("mnuViewCurrent"))
        return ScoreLogSelection::CurrentYear;
    return ScoreLogSelection::All;
}

void frmScoreLog::openRows(ScoreLogSelection selection)
{
    LogGlobals &g = basLogGlobals();
    const SqlStatement s =
        ScoreLogStatement(g.gLastName, g.gFirstName, selection, platform().today().year(), m_sortOrder);
    g.gScoreLog = std::make_unique<HeldRecordset>(g.gConnection, s.sql, s.params);
    m_model->setRows(g.gScoreLog->rows());
    connect(g.gScoreLog.get(), &HeldRecordset::requeried, m_model,
            [this, held = g.gScoreLog.get()] { m_model->setRows(held->rows()); });
}

void frmScoreLog::showRowsOrMessage(ScoreLogSelection selection)
{
    const bool empty = m_model->rowCount() == 0;
    if (empty)
        m_lblMessage->setText(EmptyScoreLogMessage(selection, platform().today().year()));
    m_lblMessage->setVisible(empty);
    m_lblInstructions->setVisible(!empty);
    m_grid->setVisible(!empty);
}

void frmScoreLog::InitializeForm()
{
    if (m_sortOrder.isEmpty())
        m_sortOrder = QStringLiteral("Date DESC");
    const ScoreLogSelection selection = CheckedSelection();
    openRows(selection);
    showRowsOrMessage(selection);

    LogGlobals &g = basLogGlobals();
    if (g.gCommandString == QLatin1String("-h")) {
        const bool noRecord =
            Scalar(db(),
                   QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE LastName = ? AND FirstName = ?"),
                   {g.gLastName, g.gFirstName})
                .toInt() == 0;
        for (const char *item : {"mnuViewScoringRecord", "mnuPrintScoringRecord"})
            if (QAction *a = frame().menuItem(QLatin1String(item)))
                a->setEnabled(!noRecord);
    }
    frame().UpdateMenus(QStringLiteral("frmScoreLog"));
}

bool frmScoreLog::selectedCourse(QString &course, QString &tees) const
{
    if (selectedRow() < 0)
        return false;
    course = selectedValue(QStringLiteral("CourseName")).toString();
    tees = selectedValue(QStringLiteral("Tees")).toString();
    return true;
}

void frmScoreLog::FormActivate()
{
    RunGuarded([this] {
        InitializeForm();
        restoreRow();
    });
}

void frmScoreLog::ViewSelection(ScoreLogSelection selection)
{
    rememberRow(selectedRow());
    openRows(selection);
    const char *items[] = {"mnuViewAll", "mnuViewUsed", "mnuViewCurrent"};
    for (int i = 0; i < 3; ++i)
        if (QAction *a = frame().menuItem(QLatin1String(items[i])))
            a->setChecked(i == int(selection));
    showRowsOrMessage(selection);
    restoreRow();
}

void frmScoreLog::headingClicked(int column)
{
    const QString sortColumn = ScoreLogSortColumn(column);
    if (sortColumn.isEmpty())
        return; // a heading without a sort column does nothing
    m_sortOrder = NextSortOrder(m_sortOrder, sortColumn);
    openRows(CheckedSelection());
    m_gridRow = -1;
    m_selectedIndex = -1;
    if (m_model->rowCount() > 0) {
        m_grid->selectRow(0);
        m_grid->scrollToTop();
    }
}

int frmScoreLog::selectedRow() const
{
    const QModelIndexList rows = m_grid->selectionModel()->selectedRows();
    return rows.isEmpty() ? (m_grid->currentIndex().isValid() ? m_grid->currentIndex().row() : -1)
                          : rows.first().row();
}

void frmScoreLog::selectRow(int row)
{
    if (row >= 0 && row < m_model->rowCount()) {
        m_grid->selectRow(row);
        m_grid->scrollTo(m_model->index(row, 2));
    }
}

QVariant frmScoreLog::selectedValue(const QString &field) const
{
    return m_model->fieldValue(selectedRow(), field);
}

void frmScoreLog::rememberRow(int row)
{
    m_gridRow = row;
    const QVariant index = m_model->fieldValue(m_gridRow, QStringLiteral("ScoreIndex"));
    m_selectedIndex = index.isValid() ? index.toLongLong() : -1;
}

void frmScoreLog::restoreRow()
{
    if (m_model->rowCount() == 0)
        return;
    // The same round where it still stands, else the same place, else the first row.
    int row = -1;
    if (m_selectedIndex >= 0)
        for (int r = 0; r < m_model->rowCount() && row < 0; ++r)
            if (m_model->fieldValue(r, QStringLiteral("ScoreIndex")).toLongLong() == m_selectedIndex)
                row = r;
    if (row < 0)
        row = m_gridRow >= 0 && m_gridRow < m_model->rowCount() ? m_gridRow : 0;
    selectRow(row);
}

void frmScoreLog::ShowScoreDetails()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    rememberRow(row);
    const bool handicapMode = basLogGlobals().gCommandString == QLatin1String("-h");
    emit scoreDetailsRequested(
        m_model->fieldValue(row, QStringLiteral("CourseName")).toString(),
        m_model->fieldValue(row, QStringLiteral("Tees")).toString(),
        ParseDateText(m_model->fieldValue(row, QStringLiteral("Date")).toString()),
        m_model->fieldValue(row, QStringLiteral("ScoreIndex")).toLongLong(),
        m_model->fieldValue(row, handicapMode ? QStringLiteral("AdjustedScore") : QStringLiteral("Score")));
}

bool frmScoreLog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_grid && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            RunGuarded([this] { ShowScoreDetails(); });
            return true;
        }
    }
    return ViewForm::eventFilter(watched, event);
}

} // namespace quillon
