#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QVector>

class QPagedPaintDevice;
class QWidget;

namespace quillon {

// A text placed at a character column of a report line.
struct Tab {
    int column;
    QString text;
};

// The one painter of every printout: pages of a device, on which a report writes lines of text
// at character columns (the columns of its 10-point font, as a printer's tab stops), centres
// titles, rules lines, starts pages, and lays pictures of forms.  A report that needs more
// columns across than the page holds is drawn smaller as a whole, so that its layout keeps its
// proportions; a line that would fall off the foot of a page begins a new page.  Text stays
// text in a PDF.
class ReportPainter {
public:
    // `columnsAcross`: how many character columns the widest line of the report reaches.
    ReportPainter(QPagedPaintDevice &device, int columnsAcross);
    ~ReportPainter();
    ReportPainter(const ReportPainter &) = delete;
    ReportPainter &operator=(const ReportPainter &) = delete;

    // The font of the lines that follow: the report's family at this size, bold or not.
    void setFont(double pointSize, bool bold = false);
    // One line: each text at its column, then on to the next line.  No texts: an empty line.
    void line(const QVector<Tab> &texts = {});
    // One line with the text centred across the page.
    void centred(const QString &text);
    // A line across the page, or from the first column to `toColumn`, just below the line
    // whose top is at `y`.
    void rule(double y, int toColumn = -1);
    // The top of the next line, in the report's units; it may be set back, as a column that
    // starts again at the height of the one beside it.
    double y() const { return m_y; }
    void setY(double y) { m_y = y; }
    void newPage();
    int pageNumber() const { return m_page; }

    // A form as it stands (its labels, frames and lines), scaled to the page's width below
    // what is printed so far, and never above its own size.
    void picture(QWidget &form);

    // The width and height of the page in the report's units.
    double width() const { return m_width; }
    double height() const { return m_height; }
    double columnX(int column) const { return column * m_columnWidth; }
    double lineHeight() const;

private:
    void breakIfFull(double needed);

    QPagedPaintDevice &m_device;
    QPainter m_painter;
    QFont m_font;
    double m_columnWidth = 0; // report units (points at scale 1)
    double m_scale = 1;       // device pixels per report unit
    double m_width = 0;
    double m_height = 0;
    double m_y = 0;
    int m_page = 1;
};

// The line at the foot of every printout; it carries the year of today's date.
QString FooterNotice();

} // namespace quillon
