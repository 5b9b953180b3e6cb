#include "frmScoringRecord.h"

#include "core/DateText.h"
#include "core/Format.h"
#include "shell/basLogGlobals.h"
#include "ui/Guarded.h"
#include "ui/QueryTableModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace quillon {

SqlStatement ScoringRecordStatement(const QString &last, const QString &first, const QString &order)
{
    SqlStatement s;
    s.sql = QStringLiteral("SELECT * FROM ScoringRecord WHERE LastName = ? AND FirstName = ?");
    s.params = {last, first};
    s.sql += OrderByWithTiebreak(order);
    return s;
}

QString ScoringRecordSortColumn(int position)
{
    switch (position) {
    case 3: return QStringLiteral("Date");
    case 5: return QStringLiteral("Score");
    case 6: return QStringLiteral("Rating");
    case 7: return QStringLiteral("Slope");
    case 8: return QStringLiteral("Differential");
    case 9: return QStringLiteral("Used");
    case 10: return QStringLiteral("Details");
    default: return QString();
    }
}

QVector<GridColumn> ScoringRecordColumns()
{
    const auto oneDecimal = &OneDecimalCell;
    const auto date = &DateCell;
    const Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment centre = Qt::AlignCenter;
    return {
        {QStringLiteral("LastName"), QStringLiteral("LastName"), {}, left},
        {QStringLiteral("FirstName"), QStringLiteral("FirstName"), {}, left},
        {QStringLiteral("CourseName"), QStringLiteral("Course"), {}, left},
        {QStringLiteral("Date"), QStringLiteral("Date"), date, right},
        {QStringLiteral("ScoreIndex"), QStringLiteral("ScoreIndex"), {}, right},
        // The record's Score holds the adjusted score.
        {QStringLiteral("Score"), QStringLiteral("Adj. Score"), {}, right},
        {QStringLiteral("Rating"), QStringLiteral("Course Rating"), oneDecimal, right},
        {QStringLiteral("Slope"), QStringLiteral("Slope Rating"), {}, right},
        {QStringLiteral("Differential"), QStringLiteral("Differential"), oneDecimal, right},
        // "Yes/No" does nothing to a text: the stored letter shows.
        {QStringLiteral("Used"), QStringLiteral("Used"), {}, centre},
        {QStringLiteral("Details"), QStringLiteral("Details"), {}, left},
    };
}

frmScoringRecord::frmScoringRecord(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmScoringRecord"));
    setWindowTitle(QStringLiteral("Scoring Record"));

    m_lblInstructions = new QLabel(this);
    m_lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    m_lblInstructions->setText(QStringLiteral("Single-click on a column heading to sort in ascending order "
                                              "(click again to sort in descending order)."));
    m_lblInstructions->setWordWrap(true);

    m_model = new QueryTableModel(ScoringRecordColumns(), this);
    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("DBGrid1"));
    m_grid->setModel(m_model);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setAlternatingRowColors(true);
    m_grid->verticalHeader()->hide();
    m_grid->horizontalHeader()->setSectionsClickable(true);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_grid->horizontalHeader()->setStretchLastSection(true); // the Details sentence is the long one
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int c) { RunGuarded([this, c] { headingClicked(c); }); });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lblInstructions);
    layout->addWidget(m_grid, 1);
}

void frmScoringRecord::openRows()
{
    const LogGlobals &g = basLogGlobals();
    const SqlStatement s = ScoringRecordStatement(g.gLastName, g.gFirstName, m_sortOrder);
    m_model->setRows(Query(db(), s.sql, s.params));
}

void frmScoringRecord::InitializeForm()
{
    // A sort chosen by a heading lasts only until the view is shown again.
    m_sortOrder = QStringLiteral("Date DESC");
    openRows();
    frame().UpdateMenus(QStringLiteral("frmScoringRecord"));
}

void frmScoringRecord::FormActivate()
{
    RunGuarded([this] {
        InitializeForm();
        moveFirst();
    });
}

void frmScoringRecord::headingClicked(int column)
{
    const QString sortColumn = ScoringRecordSortColumn(column);
    if (sortColumn.isEmpty())
        return; // a heading without a sort text does nothing
    m_sortOrder = NextSortOrder(m_sortOrder, sortColumn);
    openRows();
    moveFirst();
}

void frmScoringRecord::moveFirst()
{
    if (m_model->rowCount() == 0)
        return;
    m_grid->selectRow(0);
    m_grid->scrollToTop();
}

} // namespace quillon
