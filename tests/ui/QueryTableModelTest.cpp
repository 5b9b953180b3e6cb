#include "ui/QueryTableModel.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "core/Format.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

QVector<GridColumn> golferColumns()
{
    return {
        {QStringLiteral("LastName"), QStringLiteral("Last"), {}},
        {QStringLiteral("Handicap"), QStringLiteral("Index"),
         [](const QVariant &v) { return Format(v.toDouble(), QStringLiteral("###.0")); }, Qt::AlignRight},
        {QStringLiteral("Gender"), QStringLiteral("Gender"), {}, Qt::AlignLeft, true},
    };
}

} // namespace

TEST(QueryTableModel, ShowsTheRowsOfAQueryFormattedByColumn)
{
    TestApp app;
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"), 0.5);
    addGolfer(app.db(), QStringLiteral("Baker"), QStringLiteral("Al"), QString(), 12.0);
    QueryTableModel model(golferColumns());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setRows(Query(app.db(), QStringLiteral("SELECT * FROM HandicapLog ORDER BY LastName")));

    ASSERT_EQ(model.rowCount(), 2);
    ASSERT_EQ(model.columnCount(), 3);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Index"));
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Baker"));
    EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("12.0"));
    EXPECT_EQ(model.index(1, 1).data().toString(), QStringLiteral(".5"));
    EXPECT_EQ(model.index(0, 2).data().toString(), QString()) << "a Null shows empty";
    EXPECT_EQ(model.index(1, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignRight);
    EXPECT_EQ(model.fieldValue(1, QStringLiteral("FirstName")).toString(), QStringLiteral("Pat"));
    EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_EQ(model.columnOf(QStringLiteral("handicap")), 1);
}

TEST(QueryTableModel, RowsAreReplacedWholeWhenReadAgain)
{
    TestApp app;
    QueryTableModel model(golferColumns());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setRows(Query(app.db(), QStringLiteral("SELECT * FROM HandicapLog")));
    EXPECT_EQ(model.rowCount(), 0);
    addGolfer(app.db(), QStringLiteral("New"), QStringLiteral("Row"));
    model.setRows(Query(app.db(), QStringLiteral("SELECT * FROM HandicapLog")));
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_FALSE(model.fieldValue(5, QStringLiteral("LastName")).isValid());
}
