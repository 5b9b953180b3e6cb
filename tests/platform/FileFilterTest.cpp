// The program's "description|pattern" filters, turned into what Qt's file dialogs filter by.
#include "platform/FileFilter.h"
#include "TestPrinting.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace quillon {
namespace {

struct FilterCase {
    const char *program;
    const char *qt;
};

TEST(FileFilter, ConvertsEachCaseOfTheTable)
{
    const FilterCase cases[] = {
        {"Quillon Data (*.qdl)|*.qdl", "Quillon Data (*.qdl)"},
        {"Quillon Data|*.qdl", "Quillon Data (*.qdl)"},
        {"Quillon Data (*.qdl)|*.qdl|All Files (*.*)|*.*", "Quillon Data (*.qdl);;All Files (*.*)"},
        {"Quillon Data|*.qdl|All Files|*.*", "Quillon Data (*.qdl);;All Files (*.*)"},
        {"Text Files|*.txt;*.csv", "Text Files (*.txt *.csv)"},
        {"Text Files (*.txt;*.csv)|*.txt;*.csv", "Text Files (*.txt;*.csv)"},
        {"Text Files (*.CSV *.TXT)|*.txt;*.csv", "Text Files (*.CSV *.TXT)"},
        // Shown patterns other than the real ones would filter wrongly: the real ones replace them.
        {"Text (*.txt)|*.txt;*.log", "Text (*.txt *.log)"},
        // Parentheses without a wildcard are words of the description.
        {"Backup (old)|*.bak", "Backup (old) (*.bak)"},
        {"|*.qdl", "(*.qdl)"},
        {"Quillon Data (*.qdl)", "Quillon Data (*.qdl)"},
        {"Quillon Data (*.qdl)|", "Quillon Data (*.qdl)"},
        {"", ""},
    };
    for (const FilterCase &c : cases) {
        SCOPED_TRACE(c.program);
        EXPECT_EQ(toQtFileFilter(QString::fromUtf8(c.program)), QString::fromUtf8(c.qt));
    }
}

// The names a real, non-native file dialog lists in dir under the converted filter.
QStringList namesListed(const QString &dir, const QString &programFilter)
{
    QFileDialog dialog(nullptr, QStringLiteral("Open"), QString(), toQtFileFilter(programFilter));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto *model = dialog.findChild<QFileSystemModel *>();
    auto *view = dialog.findChild<QListView *>(QStringLiteral("listView"));
    if (!model || !view) {
        ADD_FAILURE() << "the file dialog has no file system model or list view";
        return {};
    }
    // The directory loads on another thread; its end is signalled through the event loop.
    QSignalSpy loaded(model, &QFileSystemModel::directoryLoaded);
    dialog.setDirectory(dir);
    const QString canonical = QDir(dir).canonicalPath();
    const bool done = QTest::qWaitFor(
        [&] {
            for (const QList<QVariant> &args : loaded)
                if (QDir(args.at(0).toString()).canonicalPath() == canonical)
                    return true;
            return false;
        },
        5000);
    if (!done) {
        ADD_FAILURE() << "the directory did not load";
        return {};
    }
    QCoreApplication::processEvents();

    QStringList names;
    const QModelIndex root = view->rootIndex();
    for (int row = 0; row < view->model()->rowCount(root); ++row)
        names << view->model()->index(row, 0, root).data().toString();
    names.sort();
    return names;
}

class FileFilterDialog : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        for (const char *name : {"a.qdl", "b.txt", "c.csv"}) {
            QFile file(m_dir.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("x");
        }
    }
    QString dir() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

TEST_F(FileFilterDialog, ListsTheDataFileAndNotTheTextFile)
{
    EXPECT_EQ(namesListed(dir(), QStringLiteral("Quillon Data (*.qdl)|*.qdl")), QStringList({"a.qdl"}));
}

TEST_F(FileFilterDialog, DescriptionWithoutPatternsStillFilters)
{
    EXPECT_EQ(namesListed(dir(), QStringLiteral("Quillon Data|*.qdl")), QStringList({"a.qdl"}));
}

TEST_F(FileFilterDialog, SeveralPatternsOfOneEntryAllList)
{
    EXPECT_EQ(namesListed(dir(), QStringLiteral("Text Files|*.txt;*.csv")), QStringList({"b.txt", "c.csv"}));
}

TEST_F(FileFilterDialog, FirstEntryIsTheOneInForce)
{
    EXPECT_EQ(namesListed(dir(), QStringLiteral("All Files (*.*)|*.*|Quillon Data (*.qdl)|*.qdl")),
              QStringList({"a.qdl", "b.txt", "c.csv"}));
}

} // namespace
} // namespace quillon
