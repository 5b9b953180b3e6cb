#include "ToolbarIcons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>
#include <vector>

namespace quillon {

namespace {

// One palette for every picture, so that the toolbar reads as a set.
const QColor kOutline(0x33, 0x33, 0x33);
const QColor kGreen(0x2e, 0x7d, 0x32);
const QColor kLightGreen(0x81, 0xc7, 0x84);
const QColor kRed(0xd3, 0x2f, 0x2f);
const QColor kBlue(0x15, 0x65, 0xc0);
const QColor kYellow(0xfb, 0xc0, 0x2d);
const QColor kPaper(0xff, 0xff, 0xff);
const QColor kSkin(0xf2, 0xc9, 0xa0);
const QColor kWood(0xe0, 0xb8, 0x86);
const QColor kPink(0xf4, 0x8f, 0xb1);

QPen outlinePen(qreal width = 1.2)
{
    return QPen(kOutline, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A flag on a green: the course.
void drawFlag(QPainter &p)
{
    p.setPen(outlinePen());
    p.setBrush(kLightGreen);
    p.drawEllipse(QRectF(2.5, 23.5, 27, 7));
    p.setBrush(kOutline);
    p.drawEllipse(QRectF(10, 25.5, 4, 2));
    p.setPen(outlinePen(2));
    p.drawLine(QPointF(12, 4), QPointF(12, 26.5));
    p.setPen(outlinePen());
    p.setBrush(kRed);
    p.drawPolygon(QPolygonF({QPointF(13, 4), QPointF(24, 8.5), QPointF(13, 13)}));
}

// A head and shoulders: the golfer.
void drawPerson(QPainter &p)
{
    p.setPen(outlinePen());
    p.setBrush(kBlue);
    QPainterPath body;
    body.moveTo(5, 30);
    body.cubicTo(5, 19, 10, 17.5, 16, 17.5);
    body.cubicTo(22, 17.5, 27, 19, 27, 30);
    body.closeSubpath();
    p.drawPath(body);
    p.setBrush(kSkin);
    p.drawEllipse(QPointF(16, 10), 6, 6);
}

// A card with a coloured header and a grid of boxes: the score.
void drawScorecard(QPainter &p)
{
    const QRectF card(4.5, 4.5, 21, 25);
    p.setPen(outlinePen());
    p.setBrush(kPaper);
    p.drawRect(card);
    p.setPen(Qt::NoPen);
    p.setBrush(kGreen);
    p.drawRect(QRectF(5, 5, 20, 5));
    p.setPen(QPen(kOutline, 0.8));
    for (const qreal x : {11.5, 18.5})
        p.drawLine(QPointF(x, 10), QPointF(x, 29.5));
    for (const qreal y : {15.0, 20.0, 25.0})
        p.drawLine(QPointF(4.5, y), QPointF(25.5, y));
    p.setPen(QPen(kRed, 1.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(7, 12.5), QPointF(9.5, 12.5));
    p.drawLine(QPointF(14, 17.5), QPointF(16.5, 17.5));
    p.drawLine(QPointF(21, 22.5), QPointF(23.5, 22.5));
}

// A page of rows with bullets: the score log.
void drawList(QPainter &p)
{
    p.setPen(outlinePen());
    p.setBrush(kPaper);
    p.drawRect(QRectF(5.5, 2.5, 21, 27));
    for (int row = 0; row < 5; ++row) {
        const qreal y = 7.5 + row * 4.8;
        p.setPen(Qt::NoPen);
        p.setBrush(row % 2 == 0 ? kGreen : kBlue);
        p.drawRect(QRectF(8.5, y - 1.5, 3, 3));
        p.setPen(QPen(kOutline, 1.4, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(13.5, y), QPointF(row == 4 ? 19.5 : 23.5, y));
    }
}

// A disc with a glyph drawn as shapes or as text.
void drawDisc(QPainter &p, const QColor &colour)
{
    p.setPen(outlinePen());
    p.setBrush(colour);
    p.drawEllipse(QRectF(2.5, 2.5, 27, 27));
}

// An "i" in a blue disc: course information.
void drawInfo(QPainter &p)
{
    drawDisc(p, kBlue);
    p.setPen(Qt::NoPen);
    p.setBrush(kPaper);
    p.drawEllipse(QPointF(16, 9.5), 2.4, 2.4);
    p.drawRoundedRect(QRectF(13.8, 13.5, 4.4, 11.5), 1.2, 1.2);
}

// Three bars on axes: statistics.
void drawBars(QPainter &p)
{
    p.setPen(outlinePen());
    const struct {
        qreal x, height;
        QColor colour;
    } bars[] = {{7.5, 11, kBlue}, {14.5, 19, kGreen}, {21.5, 14, kRed}};
    for (const auto &b : bars) {
        p.setBrush(b.colour);
        p.drawRect(QRectF(b.x, 27 - b.height, 5, b.height));
    }
    p.setPen(outlinePen(1.6));
    p.drawPolyline(QPolygonF({QPointF(4.5, 3.5), QPointF(4.5, 27.5), QPointF(29, 27.5)}));
}

// A line with points on axes: graphs.
void drawLineChart(QPainter &p)
{
    p.setPen(outlinePen(1.6));
    p.drawPolyline(QPolygonF({QPointF(4.5, 3.5), QPointF(4.5, 27.5), QPointF(29, 27.5)}));
    const QPolygonF points(
        {QPointF(8, 21), QPointF(13, 14), QPointF(18, 18), QPointF(23, 8), QPointF(27.5, 12)});
    p.setPen(QPen(kBlue, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(points);
    p.setPen(outlinePen(1));
    p.setBrush(kRed);
    for (const QPointF &pt : points)
        p.drawEllipse(pt, 2, 2);
}

// A "?" in a green disc: help.
void drawHelp(QPainter &p)
{
    drawDisc(p, kGreen);
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(21);
    p.setFont(font);
    p.setPen(kPaper);
    p.drawText(QRectF(2.5, 2.5, 27, 27), Qt::AlignCenter, QStringLiteral("?"));
}

// Overlay of the "New" commands: a star in the upper right corner.
void drawStar(QPainter &p)
{
    QPolygonF star;
    const QPointF centre(25, 7);
    for (int i = 0; i < 10; ++i) {
        const qreal radius = i % 2 == 0 ? 6.5 : 2.8;
        const qreal angle = qDegreesToRadians(-90.0 + i * 36.0);
        star << centre + QPointF(radius * qCos(angle), radius * qSin(angle));
    }
    p.setPen(outlinePen(1));
    p.setBrush(kYellow);
    p.drawPolygon(star);
}

// Overlay of the "Edit" commands: a pencil across the lower right corner.
void drawPencil(QPainter &p)
{
    p.save();
    p.translate(22, 22);
    p.rotate(-45);
    p.setPen(outlinePen(1));
    p.setBrush(kPink);
    p.drawRect(QRectF(-11, -3, 3, 6));
    p.setBrush(kYellow);
    p.drawRect(QRectF(-8, -3, 13, 6));
    p.setBrush(kWood);
    p.drawPolygon(QPolygonF({QPointF(5, -3), QPointF(10, 0), QPointF(5, 3)}));
    p.setBrush(kOutline);
    p.drawPolygon(QPolygonF({QPointF(8.5, -0.9), QPointF(10, 0), QPointF(8.5, 0.9)}));
    p.restore();
}

using Drawer = void (*)(QPainter &);

const QHash<QString, std::vector<Drawer>> &pictures()
{
    static const QHash<QString, std::vector<Drawer>> table = {
        {QStringLiteral("NewCourse"), {drawFlag, drawStar}},
        {QStringLiteral("NewGolfer"), {drawPerson, drawStar}},
        {QStringLiteral("NewScore"), {drawScorecard, drawStar}},
        {QStringLiteral("EditCourse"), {drawFlag, drawPencil}},
        {QStringLiteral("EditScore"), {drawScorecard, drawPencil}},
        {QStringLiteral("ScoreLog"), {drawList}},
        {QStringLiteral("CourseInfo"), {drawInfo}},
        {QStringLiteral("GolferStats"), {drawBars}},
        {QStringLiteral("Graphs"), {drawLineChart}},
        {QStringLiteral("Help"), {drawHelp}},
    };
    return table;
}

} // namespace

QPixmap ToolbarIcons::pixmap(const QString &key)
{
    const auto found = pictures().constFind(key);
    if (found == pictures().constEnd())
        return QPixmap();
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Drawer draw : *found)
        draw(painter);
    return picture;
}

QIcon ToolbarIcons::icon(const QString &key)
{
    return QIcon(pixmap(key));
}

} // namespace quillon
