#include "MenuRules.h"

#include <QVector>

namespace quillon {

namespace {

enum class Column { LogRows, LogEmpty, CourseInfo, StatsGraphsRecord, Ultimate, Details, None };

Column columnOf(const MenuInputs &in)
{
    const QString &f = in.formName;
    if (f == QLatin1String("frmScoreLog"))
        return in.scoreLogEmpty ? Column::LogEmpty : Column::LogRows;
    if (f == QLatin1String("frmCourseInfo"))
        return Column::CourseInfo;
    if (f == QLatin1String("frmGolferStats") || f == QLatin1String("frmGraphs") ||
        f == QLatin1String("frmScoringRecord"))
        return Column::StatsGraphsRecord;
    if (f == QLatin1String("frmUltimateScore"))
        return Column::Ultimate;
    if (f == QLatin1String("frmViewScoreDetails"))
        return Column::Details;
    return Column::None;
}

void viewRules(const MenuInputs &in, Column c, MenuStates &s)
{
    const bool count = in.courseCount != 0;
    const bool logRows = c == Column::LogRows;
    const bool log = logRows || c == Column::LogEmpty;
    auto set = [&s](const char *item, bool on) { s.insert(QLatin1String(item), on); };

    set("mnuFileNew", true);
    if (c != Column::Details)
        set("mnuNewScore", count);

    if (c == Column::CourseInfo)
        set("mnuFilePrint", !in.scoreLogEmpty);
    else
        set("mnuFilePrint", c != Column::LogEmpty);

    if (logRows) {
        set("mnuPrintScoreLog", true);
        set("mnuPrintScorecard", true);
    }
    if (c != Column::LogEmpty) {
        bool details = false;
        if (logRows)
            details = in.detailsCount >= 1;
        else if (c == Column::Details)
            details = true;
        set("mnuPrintScoreDetails", details);
        set("mnuPrintStatistics",
            c == Column::StatsGraphsRecord && in.formName == QLatin1String("frmGolferStats"));
        set("mnuPrintGraph", c == Column::StatsGraphsRecord && in.formName == QLatin1String("frmGraphs"));
        set("mnuPrintUltimateScorecard", c == Column::Ultimate);
    }

    const bool editCourse = log ? count : c != Column::StatsGraphsRecord;
    const bool editScore = logRows || c == Column::Details;
    set("mnuEditCourse", editCourse);
    set("mnuEditScore", editScore);
    set("mnuEdit", log ? (editCourse || editScore) : c != Column::StatsGraphsRecord);

    set("mnuView", true);
    set("mnuViewAll", logRows);
    set("mnuViewCurrent", logRows);
    set("mnuViewUsed", logRows && in.scoreLogRows >= 5);
    if (log) {
        set("mnuViewGolferStatistics", logRows);
        set("mnuViewCourseInfo", count);
    }

    set("mnuTools", true);
    set("mnuToolsDelete", true);
    if (c != Column::CourseInfo)
        set("mnuToolsDatabase", true);
    set("mnuDeleteCourse", log ? count : true);
    set("mnuDeleteGolfer", true);
    set("mnuDeleteScore", editScore);
}

} // namespace

bool IsDialogForm(const QString &formName)
{
    static const QStringList dialogs = {
        QStringLiteral("frmAbout"),     QStringLiteral("frmRSCalculator"),
        QStringLiteral("DeleteCourse"), QStringLiteral("frmDeleteGolfer"),
        QStringLiteral("frmNewGolfer"), QStringLiteral("frmHdcpCalculator"),
    };
    return dialogs.contains(formName);
}

MenuStates MenuRulesFor(const MenuInputs &in)
{
    MenuStates s;
    // A graph needs two detailed rounds, an ultimate scorecard one.
    s.insert(QStringLiteral("mnuViewUltimateScorecard"), in.detailsCount >= 1);
    s.insert(QStringLiteral("mnuViewGraphs"), in.detailsCount > 1);
    s.insert(QStringLiteral("mnuToolsRSCalculator"), true);

    if (IsDialogForm(in.formName))
        return s;
    if (in.formName == QLatin1String("frmNewCourse") || in.formName == QLatin1String("frmScore")) {
        // While an entry form is active no other command exists.
        for (const char *item : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuTools"})
            s.insert(QLatin1String(item), false);
        return s;
    }
    const Column c = columnOf(in);
    if (c != Column::None)
        viewRules(in, c, s);
    return s;
}

const QVector<ToolbarMirror> &ToolbarMirrors()
{
    static const QVector<ToolbarMirror> mirrors = {
        {QStringLiteral("NewCourse"), QStringLiteral("mnuFileNew"), QStringLiteral("mnuNewCourse")},
        {QStringLiteral("NewGolfer"), QStringLiteral("mnuFileNew"), QStringLiteral("mnuNewGolfer")},
        {QStringLiteral("NewScore"), QStringLiteral("mnuFileNew"), QStringLiteral("mnuNewScore")},
        {QStringLiteral("EditCourse"), QStringLiteral("mnuEdit"), QStringLiteral("mnuEditCourse")},
        {QStringLiteral("EditScore"), QStringLiteral("mnuEdit"), QStringLiteral("mnuEditScore")},
        {QStringLiteral("GolferStats"), QStringLiteral("mnuView"), QStringLiteral("mnuViewGolferStatistics")},
        {QStringLiteral("Graphs"), QStringLiteral("mnuView"), QStringLiteral("mnuViewGraphs")},
        {QStringLiteral("CourseInfo"), QStringLiteral("mnuView"), QStringLiteral("mnuViewCourseInfo")},
        {QStringLiteral("ScoreLog"), QStringLiteral("mnuView"), QStringLiteral("mnuViewScoreLog")},
    };
    return mirrors;
}

} // namespace quillon
