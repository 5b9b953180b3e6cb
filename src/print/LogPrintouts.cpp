#include "LogPrintouts.h"

#include "ReportPainter.h"
#include "core/Format.h"
#include "store/basDatabase.h"
#include "views/ScoreLogQuery.h"

#include <cmath>

namespace quillon {

namespace {

constexpr int kRowsPerPage = 35;
// The widest line reaches past the differential's column by its value.
constexpr int kColumnsAcross = 165;

struct Column {
    const char *heading;
    int headingColumn;
    int rowColumn;
    const char *field;
    bool oneDecimal;
};

QVector<Column> logColumns(bool handicapMode)
{
    QVector<Column> c = {{"Course", 10, 10, "CourseName", false}, {"Tees", 55, 55, "Tees", false},
                         {"Date", 73, 73, "Date", false},         {"Holes", 87, 87, "Holes", false}};
    if (handicapMode) {
        c << Column{"Adj. Score", 105, 109, "AdjustedScore", false}
          << Column{"Course Rating", 118, 124, "Rating", true} << Column{"Slope Rating", 135, 140, "Slope", false}
          << Column{"Differential", 151, 155, "Differential", true};
    } else {
        // Without handicaps the score itself is shown, and no differential.
        c << Column{"Score", 108, 109, "Score", false} << Column{"Course Rating", 118, 124, "Rating", true}
          << Column{"Slope Rating", 135, 140, "Slope", false};
    }
    return c;
}

const QVector<Column> &recordColumns()
{
    static const QVector<Column> c = {
        {"Date", 10, 10, "Date", false},          {"Adj. Score", 24, 27, "Score", false},
        {"Course Rating", 37, 41, "Rating", true}, {"Slope Rating", 53, 57, "Slope", false},
        {"Differential", 69, 72, "Differential", true}, {"Used", 84, 84, "Used", false},
        {"Details", 94, 94, "Details", false}};
    return c;
}

QString cell(const QVariant &value, const Column &column)
{
    if (value.isNull())
        return QString();
    if (QLatin1String(column.field) == QLatin1String("Date"))
        return DateCell(value);
    if (column.oneDecimal)
        return Format(value.toDouble(), QStringLiteral("##.0"));
    return value.toString();
}

// The head of a page: the title, the golfer (with the page on the score log), the handicap
// line, and the headings with a rule under them.
void printHead(ReportPainter &r, const QString &title, const ReportHead &head, const QVector<Column> &columns,
               const QString &pageText, int ruleTo)
{
    r.setFont(12, true);
    r.line();
    r.centred(title);
    r.setFont(10, false);
    r.line();
    QVector<Tab> golfer = {{10, QStringLiteral("Golfer: ") + head.golfer}};
    if (!pageText.isEmpty())
        golfer << Tab{130, pageText};
    r.line(golfer);
    if (head.handicapMode)
        r.line({{10, QStringLiteral("Current ") + head.handicap}});
    r.line();
    QVector<Tab> headings;
    for (const Column &c : columns)
        headings << Tab{c.headingColumn, QLatin1String(c.heading)};
    const double headingY = r.y();
    r.line(headings);
    r.rule(headingY, ruleTo);
    r.line();
}

void printRow(ReportPainter &r, const QVector<Column> &columns, const std::function<QVariant(const char *)> &value)
{
    QVector<Tab> texts;
    for (const Column &c : columns)
        texts << Tab{c.rowColumn, cell(value(c.field), c)};
    r.line(texts);
}

} // namespace

PrintJob ScoreLogPrintout(Recordset &log, const ReportHead &head)
{
    PrintJob job;
    job.documentName = QStringLiteral("Score Log");
    job.orientation = PageOrientation::Landscape;
    job.paint = [&log, head](QPagedPaintDevice &device) {
        ReportPainter r(device, kColumnsAcross);
        const QVector<Column> columns = logColumns(head.handicapMode);
        const int pages = int(std::ceil(log.rowCount() / double(kRowsPerPage)));
        int row = 1, page = 1;
        const auto pageHead = [&] {
            printHead(r, QStringLiteral("Score Log"), head, columns, QStringLiteral("Page %1 of %2").arg(page).arg(pages),
                      -1);
        };
        pageHead();
        if (!log.isEmpty())
            log.moveFirst();
        while (!log.eof()) {
            printRow(r, columns, [&log](const char *field) { return log.value(QLatin1String(field)); });
            // The break comes straight after the row, before the end is seen: a log of a whole
            // number of pages ends on a page of its head alone, numbered one past the count.
            if (++row == kRowsPerPage + 1) {
                row = 1;
                ++page;
                r.newPage();
                pageHead();
            }
            log.moveNext();
        }
        r.line();
        r.line({{10, FooterNotice()}});
        if (!log.isEmpty())
            log.moveFirst();
    };
    return job;
}

PrintJob ScoringRecordPrintout(Connection &c, const QString &last, const QString &first, const ReportHead &head)
{
    PrintJob job;
    job.documentName = QStringLiteral("Scoring Record");
    job.orientation = PageOrientation::Landscape;
    job.paint = [&c, last, first, head](QPagedPaintDevice &device) {
        ReportPainter r(device, kColumnsAcross);
        printHead(r, QStringLiteral("Scoring Record"), head, recordColumns(), QString(), 152);
        // Always newest first, whatever order the view shows.
        Statement st = c.run(QStringLiteral("SELECT * FROM ScoringRecord WHERE LastName = ? AND FirstName = ? "
                                            "ORDER BY Date DESC"),
                             {last, first});
        const QSqlRecord columns = st.record();
        while (st.next())
            printRow(r, recordColumns(),
                     [&st, &columns](const char *field) { return st.value(columns.indexOf(QLatin1String(field))); });
        r.line();
        r.line({{10, FooterNotice()}});
    };
    return job;
}

} // namespace quillon
