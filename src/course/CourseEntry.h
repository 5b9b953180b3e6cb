#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

// What the course entry form holds, as the texts of its controls: every value lives as text
// until it is saved.  Hole arrays have 18 entries, index 0 for hole 1.
struct CourseEntry {
    bool editMode = false;
    QString course; // txtCourse (in Edit mode a copy of the chosen course)
    QString tees;
    QString overallRating, overallSlope;
    QString frontRating, frontSlope;
    QString backRating, backSlope;
    QStringList par = QStringList(18, QString());
    QStringList yards = QStringList(18, QString());
    QStringList hdcp = QStringList(18, QString());
    // The derived total labels, blank when their sum is not above 0.
    QString parOut, parIn, parTotal;
    QString yardsOut, yardsIn, yardsTotal;
};

} // namespace quillon
