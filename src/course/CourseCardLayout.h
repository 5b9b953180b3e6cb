#pragma once

#include <QString>
#include <functional>

class QBoxLayout;
class QWidget;

namespace quillon {

enum class CardNine { Overall, Front, Back };
enum class CardRow { Par, Yards, Hdcp };
enum class CardSum { Out, In, Total };

// What stands in the cells of a course card: the entry form puts boxes there, the information
// view labels.  Each function makes the named widget for its cell.
struct CourseCardCells {
    std::function<QWidget *(CardNine nine, bool slope)> rating; // the rating or slope of a frame
    std::function<QWidget *(CardRow row, int index)> hole;      // index 0 is hole 1
    std::function<QWidget *(CardRow row, CardSum sum)> sum;     // Par and Yards rows only
};

// Lay out the card in `into`: the frame "Overall Rating/Slope", then "Front Nine" and "Back
// Nine", each with its rating and slope and its holes in a grid under the row captions "Par",
// "Yards" and "Hdcp", with the Out column in the front frame and In and Total in the back.
// Widgets are made in reading order, so the tab order follows it.
void BuildCourseCard(QWidget *parent, QBoxLayout *into, const CourseCardCells &cells);

} // namespace quillon
