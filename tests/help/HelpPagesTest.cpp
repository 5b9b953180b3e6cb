#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

const QDir kHelp(QStringLiteral(QUILLON_TEST_HELP_SOURCE));

QString read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return QString();
    }
    return QString::fromUtf8(file.readAll());
}

QStringList pages()
{
    return kHelp.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
}

QStringList hrefs(const QString &html)
{
    static const QRegularExpression href(QStringLiteral(R"re(href\s*=\s*"([^"]*)")re"),
                                         QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    for (const QRegularExpressionMatch &m : href.globalMatch(html))
        found << m.captured(1);
    return found;
}

bool hasPlace(const QString &html, const QString &place)
{
    const QRegularExpression named(
        QStringLiteral(R"((name|id)\s*=\s*"%1")").arg(QRegularExpression::escape(place)));
    return named.match(html).hasMatch();
}

TEST(HelpPagesTest, TheExpectedPagesAreThere)
{
    const QStringList present = pages();
    for (const char *page : {"index.html", "starting.html", "golfer.html", "course.html", "score.html",
                             "scorelog.html", "menus.html", "handicap.html", "about.html", "views.html", "stats.html", "graphs.html",
                             "calculators.html", "database.html", "printing.html"})
        EXPECT_TRUE(present.contains(QLatin1String(page))) << page;
    EXPECT_TRUE(kHelp.exists(QStringLiteral("help.css")));
}

TEST(HelpPagesTest, EveryPageIsListedInTheContents)
{
    const QStringList linked = hrefs(read(kHelp.filePath(QStringLiteral("index.html"))));
    QSet<QString> linkedPages;
    for (const QString &link : linked)
        linkedPages.insert(QUrl(link).path());
    for (const QString &page : pages()) {
        if (page != QLatin1String("index.html")) {
            EXPECT_TRUE(linkedPages.contains(page)) << page.toStdString() << " is not in the contents";
        }
    }
}

TEST(HelpPagesTest, EveryLinkLeadsToAPageAndPlaceThatExist)
{
    for (const QString &page : pages()) {
        const QString html = read(kHelp.filePath(page));
        for (const QString &link : hrefs(html)) {
            const QUrl url(link);
            EXPECT_TRUE(url.isRelative() && url.scheme().isEmpty())
                << page.toStdString() << ": " << link.toStdString() << " leads out of the help";
            const QString target = url.path().isEmpty() ? page : url.path();
            ASSERT_TRUE(kHelp.exists(target))
                << page.toStdString() << ": " << link.toStdString() << " is missing";
            if (url.hasFragment()) {
                EXPECT_TRUE(hasPlace(read(kHelp.filePath(target)), url.fragment()))
                    << page.toStdString() << ": no place \"" << url.fragment().toStdString() << "\" in "
                    << target.toStdString();
            }
        }
    }
}

TEST(HelpPagesTest, EveryPageLeadsBackToTheContents)
{
    for (const QString &page : pages()) {
        if (page == QLatin1String("index.html"))
            continue;
        EXPECT_TRUE(hrefs(read(kHelp.filePath(page))).contains(QStringLiteral("index.html")))
            << page.toStdString();
    }
}

TEST(HelpPagesTest, EveryPageHasATitleAndTheSharedStyle)
{
    static const QRegularExpression title(QStringLiteral(R"(<title>([^<]+)</title>)"));
    for (const QString &page : pages()) {
        const QString html = read(kHelp.filePath(page));
        EXPECT_TRUE(title.match(html).hasMatch()) << page.toStdString();
        EXPECT_TRUE(hrefs(html).contains(QStringLiteral("help.css"))) << page.toStdString();
    }
}

TEST(HelpPagesTest, HandicapPageHoldsTheCountTable)
{
    const QString text = read(kHelp.filePath(QStringLiteral("handicap.html")));
    // Each row of the table of how many differentials count.
    const QList<QPair<QString, int>> rows = {
        {"5 or 6", 1},   {"7 or 8", 2}, {"9 or 10", 3}, {"11 or 12", 4}, {"13 or 14", 5},
        {"15 or 16", 6}, {"17", 7},     {"18", 8},      {"19", 9},       {"20", 10}};
    for (const auto &[scores, used] : rows)
        EXPECT_TRUE(text.contains(QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(scores).arg(used)))
            << scores.toStdString();
    EXPECT_TRUE(text.contains("0.96"));
    EXPECT_TRUE(text.contains("36.4"));
    EXPECT_TRUE(text.contains("40.4"));
}

TEST(HelpPagesTest, CoursePageHoldsItsPlaces)
{
    const QString html = read(kHelp.filePath(QStringLiteral("course.html")));
    for (const char *place : {"new", "edit", "info", "delete"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
}

TEST(HelpPagesTest, ScorePageHoldsItsPlaces)
{
    const QString html = read(kHelp.filePath(QStringLiteral("score.html")));
    for (const char *place : {"new", "edit", "adjusted", "delete"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
}

TEST(HelpPagesTest, ViewsPageHoldsItsPlaces)
{
    const QString html = read(kHelp.filePath(QStringLiteral("views.html")));
    for (const char *place : {"record", "details", "ultimate"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
}

TEST(HelpPagesTest, TheBuildLaysEveryFileBesideTheProgram)
{
    const QDir built(QStringLiteral(QUILLON_TEST_HELP_BUILT));
    for (const QString &name : kHelp.entryList(QDir::Files)) {
        ASSERT_TRUE(built.exists(name)) << name.toStdString() << " is not in " << built.path().toStdString();
        EXPECT_EQ(read(built.filePath(name)), read(kHelp.filePath(name))) << name.toStdString();
    }
}

} // namespace

TEST(HelpPagesTest, StatisticsPageHoldsItsPlaces)
{
    const QString html = read(kHelp.filePath(QStringLiteral("stats.html")));
    for (const char *place : {"stats", "pages", "terms"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
}

TEST(HelpPagesTest, GraphsPageHoldsItsPlaces)
{
    const QString html = read(kHelp.filePath(QStringLiteral("graphs.html")));
    for (const char *place : {"graphs", "trends", "pies"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
}

TEST(HelpPagesTest, CalculatorsPageHoldsItsPlacesAndTheMenusLinkThere)
{
    const QString html = read(kHelp.filePath(QStringLiteral("calculators.html")));
    for (const char *place : {"hdcpcalc", "rscalc"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
    const QStringList menuLinks = hrefs(read(kHelp.filePath(QStringLiteral("menus.html"))));
    EXPECT_TRUE(menuLinks.contains(QStringLiteral("calculators.html#hdcpcalc")));
    EXPECT_TRUE(menuLinks.contains(QStringLiteral("calculators.html#rscalc")));
    EXPECT_TRUE(hrefs(read(kHelp.filePath(QStringLiteral("course.html")))).contains(QStringLiteral("calculators.html#rscalc")));
}

TEST(HelpPagesTest, DatabasePageHoldsItsPlacesAndTheMenusLinkThere)
{
    const QString html = read(kHelp.filePath(QStringLiteral("database.html")));
    for (const char *place : {"upgrade", "backup", "restore"})
        EXPECT_TRUE(hasPlace(html, QLatin1String(place))) << place;
    const QStringList menuLinks = hrefs(read(kHelp.filePath(QStringLiteral("menus.html"))));
    EXPECT_TRUE(menuLinks.contains(QStringLiteral("database.html#backup")));
    EXPECT_TRUE(menuLinks.contains(QStringLiteral("database.html#restore")));
    EXPECT_TRUE(hrefs(read(kHelp.filePath(QStringLiteral("starting.html")))).contains(QStringLiteral("database.html#upgrade")));
}

TEST(HelpPagesTest, PrintingPageHoldsAPlaceForEveryPrintoutAndTheMenusLinkThere)
{
    const QString html = read(kHelp.filePath(QStringLiteral("printing.html")));
    const QStringList places = {"setup", "scorelog", "details", "scorecard", "ultimate", "statistics", "graph"};
    const QStringList menuLinks = hrefs(read(kHelp.filePath(QStringLiteral("menus.html"))));
    for (const QString &place : places) {
        EXPECT_TRUE(hasPlace(html, place)) << place.toStdString();
        EXPECT_TRUE(menuLinks.contains(QStringLiteral("printing.html#") + place)) << place.toStdString();
    }
}
