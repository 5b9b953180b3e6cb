#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace quillon {

// The pictures of the frame's toolbar, drawn in code so that no image files ship.
// Each command has a base picture (flag for a course, person for a golfer,
// scorecard for a score, ...); "New" commands add a star, "Edit" commands a pencil.
class ToolbarIcons {
public:
    static constexpr int kSize = 32;

    // The 32x32 picture of a toolbar button key (NewCourse, ScoreLog, Help, ...);
    // a null pixmap for a key without one.
    static QPixmap pixmap(const QString &key);
    static QIcon icon(const QString &key);
};

} // namespace quillon
