#pragma once

#include <QColor>
#include <optional>

class QLabel;

namespace quillon {

// The background that marks how a hole score stands to par: yellow for par, green one under,
// cyan two under; nothing (the plain background of the form) for anything else, three or more
// under par included.
std::optional<QColor> ScoreToParColour(int scoreMinusPar);

// Black or white, whichever reads better on the background.
QColor TextColourOn(const QColor &background);

// A score label painted with its mark, or back to the palette's own colours.
void PaintScoreLabel(QLabel &label, const std::optional<QColor> &background);

} // namespace quillon
