#pragma once

#include "ScoreLogQuery.h"
#include "ui/ViewHost.h"

class QLabel;
class QTableView;

namespace quillon {

class QueryTableModel;

// The scoring record's statement for a golfer in a sort order ("Date DESC").  Rows of equal
// sort value stand by ScoreIndex in the same direction, so that the order is always the same.
SqlStatement ScoringRecordStatement(const QString &last, const QString &first, const QString &order);

// The column a heading sorts by ("Date", "Score" ...), empty for a heading that does not sort.
QString ScoringRecordSortColumn(int position);

// The grid's eleven columns by position, all shown.
QVector<GridColumn> ScoringRecordColumns();

// The rows of the current golfer's scoring record: the scores behind the handicap, the used
// ones marked.  Read-only; it is rebuilt, in the newest-first order, at every activation.
class frmScoringRecord : public ViewForm {
    Q_OBJECT
public:
    explicit frmScoringRecord(QWidget *parent = nullptr);

    // Read the rows again in the default order and hand the form's name to the menu rules.
    void InitializeForm();
    void FormActivate() override;
    QString sortOrder() const { return m_sortOrder; }

private:
    void openRows();
    void headingClicked(int column);
    void moveFirst();

    QLabel *m_lblInstructions = nullptr;
    QTableView *m_grid = nullptr;
    QueryTableModel *m_model = nullptr;
    QString m_sortOrder = QStringLiteral("Date DESC");
};

} // namespace quillon
