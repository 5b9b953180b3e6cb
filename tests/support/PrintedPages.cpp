#include "PrintedPages.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace quillon::test {

QStringList PrintedPages(const QString &pdfPath)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdfPath, QStringLiteral("-")});
    if (!p.waitForFinished(30000) || p.exitCode() != 0) {
        ADD_FAILURE() << "pdftotext could not read " << pdfPath.toStdString() << ": "
                      << p.readAllStandardError().toStdString();
        return {};
    }
    // Ligatures ("ff" drawn as one glyph) are read back as their letters.
    QStringList pages = QString::fromUtf8(p.readAllStandardOutput())
                            .normalized(QString::NormalizationForm_KC)
                            .split(QLatin1Char('\f'));
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
        pages.removeLast(); // the form feed after the last page
    return pages;
}

QSizeF PrintedPageSize(const QString &pdfPath)
{
    QProcess p;
    p.start(QStringLiteral("pdfinfo"), {pdfPath});
    if (!p.waitForFinished(30000) || p.exitCode() != 0) {
        ADD_FAILURE() << "pdfinfo could not read " << pdfPath.toStdString();
        return {};
    }
    // "Page size:      595.2 x 841.8 pts (A4)"
    for (const QString &line : QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n')))
        if (line.startsWith(QLatin1String("Page size:"))) {
            const QStringList f = line.mid(10).simplified().split(QLatin1Char(' '));
            if (f.size() >= 3)
                return QSizeF(f.at(0).toDouble(), f.at(2).toDouble());
        }
    ADD_FAILURE() << "no page size in " << pdfPath.toStdString();
    return {};
}

QStringList TextLines(const QString &page)
{
    QStringList out;
    for (QString line : page.split(QLatin1Char('\n'))) {
        while (!line.isEmpty() && line.back().isSpace())
            line.chop(1);
        if (!line.trimmed().isEmpty())
            out << line;
    }
    return out;
}

} // namespace quillon::test
