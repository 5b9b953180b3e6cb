#include "ApplicationIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>

namespace quillon {

namespace {

// The picture is drawn on a 64-unit square, as the SVG file is; keep the two alike.
constexpr qreal kUnits = 64.0;

const QColor kSky(0x90, 0xca, 0xf9);
const QColor kFairway(0x43, 0xa0, 0x47);
const QColor kGreen(0x81, 0xc7, 0x84);
const QColor kGreenEdge(0x2e, 0x7d, 0x32);
const QColor kBorder(0x1b, 0x5e, 0x20);
const QColor kHole(0x1b, 0x1b, 0x1b);
const QColor kPole(0x26, 0x32, 0x38);
const QColor kFlag(0xe5, 0x39, 0x35);
const QColor kFlagEdge(0xb7, 0x1c, 0x1c);

QPainterPath badge()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(4, 4, 56, 56), 12, 12);
    return path;
}

} // namespace

void PaintApplicationIcon(QPainter &p, int side)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(side / kUnits, side / kUnits);

    const QPainterPath outline = badge();
    p.setPen(Qt::NoPen);
    p.setBrush(kSky);
    p.drawPath(outline);

    p.save();
    p.setClipPath(outline);
    QPainterPath hill;
    hill.moveTo(4, 42);
    hill.cubicTo(20, 34, 44, 34, 60, 42);
    hill.lineTo(60, 60);
    hill.lineTo(4, 60);
    hill.closeSubpath();
    p.setBrush(kFairway);
    p.drawPath(hill);
    p.restore();

    p.setPen(QPen(kGreenEdge, 1.5));
    p.setBrush(kGreen);
    p.drawEllipse(QPointF(32, 48), 18, 6);
    p.setPen(Qt::NoPen);
    p.setBrush(kHole);
    p.drawEllipse(QPointF(26, 48), 3, 1.5);

    p.setPen(QPen(kPole, 2.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(26, 13), QPointF(26, 48));

    p.setPen(QPen(kFlagEdge, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(kFlag);
    p.drawPolygon(QPolygonF({QPointF(27, 13), QPointF(47, 19.5), QPointF(27, 26)}));

    p.setPen(QPen(kBorder, 2));
    p.setBrush(Qt::NoBrush);
    p.drawPath(outline);
    p.restore();
}

QIcon ApplicationIcon()
{
    // Painted once per size, so that small sizes stay sharp rather than being shrunk from a large one.
    // Not cached: pixmaps must not outlive the application object.
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        PaintApplicationIcon(painter, side);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace quillon
