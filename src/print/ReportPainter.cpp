#include "ReportPainter.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLayout>
#include <QPalette>
#include <QPagedPaintDevice>
#include <QWidget>
#include <algorithm>

namespace quillon {

namespace {

// A family every machine of ours has, so that a report looks the same everywhere.
const char *const kFamily = "DejaVu Sans";
constexpr double kBaseSize = 10;

QFont reportFont(double pointSize, bool bold)
{
    QFont font{QString::fromLatin1(kFamily)};
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    font.setItalic(false);
    return font;
}

} // namespace

ReportPainter::ReportPainter(QPagedPaintDevice &device, int columnsAcross) : m_device(device)
{
    m_painter.begin(&device);
    // Report units are points; the character column is the average width of the 10-point font.
    const double pointsPerPixel = 72.0 / device.logicalDpiX();
    const double pageWidthPoints = device.width() * pointsPerPixel;
    const double pageHeightPoints = device.height() * 72.0 / device.logicalDpiY();
    m_columnWidth = QFontMetricsF(reportFont(kBaseSize, false), &device).averageCharWidth() * pointsPerPixel;
    const double needed = columnsAcross * m_columnWidth;
    const double shrink = needed > pageWidthPoints ? pageWidthPoints / needed : 1.0;
    m_scale = shrink / pointsPerPixel;
    m_width = pageWidthPoints / shrink;
    m_height = pageHeightPoints / shrink;
    m_painter.scale(m_scale, m_scale);
    setFont(kBaseSize);
}

ReportPainter::~ReportPainter()
{
    m_painter.end();
}

void ReportPainter::setFont(double pointSize, bool bold)
{
    m_font = reportFont(pointSize, bold);
    // The painter draws in report units (points), which its scale takes to the device: the font
    // it is given must not be scaled from points to pixels a second time.
    QFont drawn = m_font;
    drawn.setPointSizeF(pointSize * 72.0 / m_device.logicalDpiY());
    m_painter.setFont(drawn);
}

double ReportPainter::lineHeight() const
{
    return QFontMetricsF(m_font, &m_device).lineSpacing() * 72.0 / m_device.logicalDpiY();
}

void ReportPainter::breakIfFull(double needed)
{
    if (m_y > 0 && m_y + needed > m_height)
        newPage();
}

void ReportPainter::line(const QVector<Tab> &texts)
{
    const double h = lineHeight();
    breakIfFull(h);
    const double ascent = QFontMetricsF(m_font, &m_device).ascent() * 72.0 / m_device.logicalDpiY();
    for (const Tab &t : texts)
        if (!t.text.isEmpty())
            m_painter.drawText(QPointF(columnX(t.column), m_y + ascent), t.text);
    m_y += h;
}

void ReportPainter::centred(const QString &text)
{
    const double h = lineHeight();
    breakIfFull(h);
    const QFontMetricsF metrics(m_font, &m_device);
    const double textWidth = metrics.horizontalAdvance(text) * 72.0 / m_device.logicalDpiX();
    const double ascent = metrics.ascent() * 72.0 / m_device.logicalDpiY();
    m_painter.drawText(QPointF(m_width / 2 - textWidth / 2, m_y + ascent), text);
    m_y += h;
}

void ReportPainter::rule(double y, int toColumn)
{
    const double at = y + lineHeight() + 1;
    const double right = toColumn < 0 ? m_width : columnX(toColumn);
    m_painter.save();
    m_painter.setPen(QPen(Qt::black, 0.75));
    m_painter.drawLine(QPointF(0, at), QPointF(right, at));
    m_painter.restore();
}

void ReportPainter::newPage()
{
    m_device.newPage();
    ++m_page;
    m_y = 0;
}

void ReportPainter::picture(QWidget &form)
{
    // The form as laid out at its own size (its natural size when none was given), drawn as
    // vectors in black on white whatever the desktop's colours.
    form.ensurePolished();
    if (!form.testAttribute(Qt::WA_Resized))
        form.resize(form.sizeHint());
    // A page form is never on the screen; shown off it for the drawing, its layouts (a chart's
    // axes and series among them) are done as on the screen.
    const bool offScreen = !form.isVisible();
    if (offScreen) {
        form.setAttribute(Qt::WA_DontShowOnScreen, true);
        form.show();
    }
    if (form.layout())
        form.layout()->activate();
    // Layouts ask for more layouts (a chart lays out its legend after its plot): let them settle.
    for (int pass = 0; pass < 3; ++pass) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    const QPalette shown = form.palette();
    QPalette paper = shown;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        paper.setColor(role, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paper.setColor(role, Qt::black);
    form.setPalette(paper);
    const QSize size = form.size();
    if (size.isEmpty())
        return;
    const double pointsPerFormPixel = 72.0 / form.logicalDpiX();
    const double naturalWidth = size.width() * pointsPerFormPixel;
    const double fit = std::min({1.0, m_width / naturalWidth, (m_height - m_y) / (size.height() * pointsPerFormPixel)});
    m_painter.save();
    m_painter.translate(0, m_y);
    m_painter.scale(fit * pointsPerFormPixel, fit * pointsPerFormPixel);
    // A chart is drawn straight from its scene: through its widget, clipped items (a legend's)
    // come out partly on a page.
    QVector<QGraphicsView *> charts;
    for (QGraphicsView *view : form.findChildren<QGraphicsView *>())
        if (view->isVisible() && view->scene()) {
            charts << view;
            view->viewport()->setUpdatesEnabled(false);
            view->viewport()->hide();
        }
    form.render(&m_painter, QPoint(), QRegion(), QWidget::DrawChildren);
    for (QGraphicsView *view : charts) {
        view->viewport()->show();
        view->viewport()->setUpdatesEnabled(true);
        const QRect port(view->viewport()->mapTo(&form, QPoint(0, 0)), view->viewport()->size());
        view->scene()->render(&m_painter, QRectF(port), view->mapToScene(view->viewport()->rect()).boundingRect());
    }
    m_painter.restore();
    form.setPalette(shown);
    if (offScreen)
        form.hide();
    m_y += size.height() * pointsPerFormPixel * fit;
}

QString FooterNotice()
{
    return QStringLiteral("Printed with Quillon for Golf.  Copyright \u00a9 %1 the makers of Quillon for Golf.  "
                          "All rights reserved.")
        .arg(platform().today().year());
}

} // namespace quillon
