#pragma once

#include "ScoreLogQuery.h"
#include "ui/ViewHost.h"

#include <QDate>

class QLabel;
class QTableView;

namespace quillon {

class QueryTableModel;

// The home view: a grid of the current golfer's rounds, sorted by a click on a heading, in one
// of three selections (all, used, current year) told by the View menu's checks.  The selected
// row is what other commands take their course, tees, date and round from.
class frmScoreLog : public ViewForm {
    Q_OBJECT
public:
    explicit frmScoreLog(QWidget *parent = nullptr);

    // Rebuild the view from the database: rows, message, menus.
    void InitializeForm();
    void FormActivate() override;
    // The selected round's course and tees.
    bool selectedCourse(QString &course, QString &tees) const override;
    QString ScoreLogSort() const { return m_sortOrder; }

    // The View items All, Used and Current Year (run under the menu item's error trap).
    void ViewSelection(ScoreLogSelection selection);

    // The selected round's values by column name; invalid when no row is selected.
    QVariant selectedValue(const QString &field) const;
    int selectedRow() const;
    void selectRow(int row);

    // Open the details of the selected round.
    void ShowScoreDetails();

    // The selection the View menu's checks stand for.
    static ScoreLogSelection CheckedSelection();

signals:
    // The details of a round were asked for (double-click, Enter, the popup).
    void scoreDetailsRequested(const QString &course, const QString &tees, const QDate &date,
                               qint64 scoreIndex, const QVariant &score);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openRows(ScoreLogSelection selection);
    void showRowsOrMessage(ScoreLogSelection selection);
    void headingClicked(int column);
    void rememberRow(int row);
    void restoreRow();

    QLabel *m_lblInstructions = nullptr;
    QLabel *m_lblMessage = nullptr;
    QTableView *m_grid = nullptr;
    QueryTableModel *m_model = nullptr;
    QString m_sortOrder = QStringLiteral("Date DESC");
    // The row selected when the view was left, by round and by position.
    qint64 m_selectedIndex = -1;
    int m_gridRow = -1;
};

} // namespace quillon
