#pragma once

#include <QIcon>

class QPainter;

namespace quillon {

// The program's icon: a flag on a green.  It is the same picture as data/quillon-golf.svg, which
// the desktop uses for its menus; here it is painted, so that no image plugin is needed.
QIcon ApplicationIcon();

// Paints the icon into a square of the given side, with its top-left corner at the origin.
void PaintApplicationIcon(QPainter &painter, int side);

} // namespace quillon
