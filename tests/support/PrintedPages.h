#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

namespace quillon::test {

// The text of each page of a printed PDF, as `pdftotext -layout` reads it: columns stay apart
// by blanks, one line of text per printed line, and ligatures come back as their letters.
QStringList PrintedPages(const QString &pdfPath);

// The size of the first page of a printed PDF, in points (width, height).
QSizeF PrintedPageSize(const QString &pdfPath);

// The lines of a page that hold something, with their trailing blanks cut.
QStringList TextLines(const QString &page);

} // namespace quillon::test
