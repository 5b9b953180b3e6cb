#include "ScoreColours.h"

#include <QLabel>

namespace quillon {

std::optional<QColor> ScoreToParColour(int scoreMinusPar)
{
    switch (scoreMinusPar) {
    case 0: return QColor(255, 255, 0);  // yellow
    case -1: return QColor(0, 255, 0);   // green
    case -2: return QColor(0, 255, 255); // cyan
    default: return std::nullopt;
    }
}

QColor TextColourOn(const QColor &background)
{
    // Relative luminance (ITU-R BT.709) decides between dark and light text.
    const double luminance =
        0.2126 * background.redF() + 0.7152 * background.greenF() + 0.0722 * background.blueF();
    return luminance > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
}

void PaintScoreLabel(QLabel &label, const std::optional<QColor> &background)
{
    if (!background) {
        label.setAutoFillBackground(false);
        label.setPalette(QPalette());
        label.setProperty("scoreColour", QVariant());
        return;
    }
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, *background);
    palette.setColor(QPalette::WindowText, TextColourOn(*background));
    label.setPalette(palette);
    label.setAutoFillBackground(true);
    // Tests and printouts read the mark without looking at pixels.
    label.setProperty("scoreColour", background->name());
}

} // namespace quillon
