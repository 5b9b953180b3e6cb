#include "GolferNames.h"

namespace quillon {

GolferName ParseGolferName(const QString &text, const GolferName &before)
{
    const int comma = text.indexOf(QLatin1Char(','));
    if (comma >= 0)
        return {text.left(comma).trimmed(), text.mid(comma + 1).trimmed()};
    const QString t = text.trimmed();
    const int blank = t.indexOf(QLatin1Char(' '));
    if (blank >= 0)
        return {t.mid(blank + 1).trimmed(), t.left(blank)};
    return before;
}

GolferName SplitListItem(const QString &item)
{
    const int comma = item.indexOf(QLatin1Char(','));
    if (comma < 0)
        return {item, QString()};
    return {item.left(comma), item.mid(comma + 1).trimmed()};
}

QString ListItem(const QString &last, const QString &first)
{
    return last + QStringLiteral(", ") + first;
}

GolferChoice ChooseGolfer(const QStringList &items, int selectedRow, const QString &typed,
                          const GolferName &parsedBefore)
{
    GolferChoice c;
    c.parsed = parsedBefore;
    if (items.isEmpty()) {
        c.parsed = ParseGolferName(typed, c.parsed);
        c.isNew = true;
        return c;
    }
    if (selectedRow >= 0 && selectedRow < items.size()) {
        c.chosen = SplitListItem(items.at(selectedRow));
        return c;
    }
    // The typed name, compared in lower case with every stored one: case never makes a second golfer.
    c.parsed = ParseGolferName(typed, c.parsed);
    c.isNew = true;
    const QString wanted = ListItem(c.parsed.last, c.parsed.first).toLower();
    for (const QString &item : items) {
        if (item.toLower() == wanted) {
            c.isNew = false;
            c.chosen = SplitListItem(item);
        }
    }
    return c;
}

QStringList GolferListItems(Connection &c)
{
    QStringList items;
    Statement q = c.run(QStringLiteral("SELECT Lastname, Firstname FROM HandicapLog"));
    while (q.next())
        items << ListItem(q.value(0).toString(), q.value(1).toString());
    return items;
}

void AddGolferRow(Connection &c, const GolferName &name, const QString &gender)
{
    Exec(c,
         QStringLiteral(
             "INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap) VALUES (?, ?, ?, -1000)"),
         {name.last, name.first, gender});
}

void DeleteGolferRows(Connection &c, const QString &last, const QString &first)
{
    const Params golfer = {last, first};
    Transaction unit(c);
    Exec(c, QStringLiteral("DELETE FROM ScoreDetails WHERE LastName=? AND FirstName=?"), golfer);
    Exec(c, QStringLiteral("DELETE FROM ScoreLog WHERE LastName=? AND FirstName=?"), golfer);
    Exec(c, QStringLiteral("DELETE FROM HandicapLog WHERE LastName = ? AND FirstName = ?"), golfer);
    unit.commit();
}

} // namespace quillon
