// The score log of a golfer with 5,000 rounds printed into a PDF file: 143 pages of text.  Goal:
// under 3 s.
#include "BenchMain.h"
#include "core/DateText.h"
#include "platform/Platform.h"
#include "print/LogPrintouts.h"
#include "store/basDatabase.h"

#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>

using namespace quillon;

namespace {

const QString kLast = QStringLiteral("O'Brien");
const QString kFirst = QStringLiteral("Pat");

// Just what a printout asks of the platform: today's date for its footer line.
class BenchPlatform : public Platform {
public:
    QString defaultPrinterName() override { return QStringLiteral("PDF"); }
    std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &) override { return nullptr; }
    std::unique_ptr<QPagedPaintDevice> openPdfPrinter(const QString &path, const QString &) override
    {
        return std::make_unique<QPdfWriter>(path);
    }
    QDate today() override { return QDate(2026, 11, 22); }
    QString appDir() override { return QString(); }
    void progress(int, int, const QString &) override {}
    void progressDone() override {}
    void showHelp(const QString &) override {}

protected:
    MsgAnswer showMessageBox(const QString &, MsgIcon, const QString &, MsgButtons, MsgAnswer d) override { return d; }
    QString showSaveFileDialog(const QString &, const QString &, const QString &) override { return QString(); }
    QString showOpenFileDialog(const QString &, const QString &) override { return QString(); }
    bool showPrintSetup() override { return false; }
    bool showPrintPreview(const PrintJob &) override { return false; }
};

struct Fixture {
    QTemporaryDir dir;
    ConnectionPtr db;
    Recordset log;
};
std::unique_ptr<Fixture> gFixture;

void prepare()
{
    gFixture = std::make_unique<Fixture>();
    installPlatform(std::make_unique<BenchPlatform>());
    const QString path = gFixture->dir.filePath(QStringLiteral("Quillon.qdl"));
    if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
        qFatal("no shipped database");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    gFixture->db = OpenDatabase(path);
    Connection &c = *gFixture->db;
    Transaction fill(c);
    for (int i = 0; i < 5000; ++i)
        Exec(c,
             QStringLiteral("INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                            "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, "
                            "Bunkers, SandSaves, AttemptedSaves, CombinedIndex) VALUES (?, ?, ?, 'White', ?, "
                            "'18-holes', ?, ?, 71.5, 125, 'A', ?, 'N', 0, -1, -1, -1, -1, -1, 1)"),
             {kLast, kFirst, i % 7 ? QStringLiteral("Pebble Creek") : QStringLiteral("St. Andrew's Links"),
              IsoDate(QDate(2000, 1, 1).addDays(i)), 80 + i % 20, 80 + i % 18, 10.0 + (i % 150) / 10.0});
    fill.commit();
    gFixture->log = Query(c, QStringLiteral("SELECT * FROM ScoreLog WHERE LastName = ? AND FirstName = ? ORDER BY "
                                            "Date DESC"),
                          {kLast, kFirst});
}

void BM_ScoreLogToPdf(benchmark::State &state)
{
    const QString path = gFixture->dir.filePath(QStringLiteral("log.pdf"));
    const PrintJob job = ScoreLogPrintout(gFixture->log, {QStringLiteral("Pat O'Brien"),
                                                          QStringLiteral("Handicap: 12.4"), true});
    for (auto _ : state) {
        std::unique_ptr<QPagedPaintDevice> device = platform().openPdfPrinter(path, job.documentName);
        device->setPageOrientation(QPageLayout::Landscape);
        job.paint(*device);
    }
    state.counters["bytes"] = double(QFile(path).size());
}
BENCHMARK(BM_ScoreLogToPdf)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunGuiBenchmarks(argc, argv, prepare, [] {
        installPlatform(nullptr);
        gFixture.reset();
    });
}
