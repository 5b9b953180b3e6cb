#pragma once

#include <QString>
#include <functional>

class QLineEdit;
class QWidget;

namespace quillon {

// A step of a spinner: the next text of the box from its current text.  It may throw, and the
// failure is shown untrapped; the box then keeps its text.
using SpinStep = QString (*)(const QString &);

// A box with its two small arrow buttons (named `incName` and `decName`) beside it, in a cell
// that takes the box's place under its parent.  The buttons are not on the tab path: the Up and
// Down keys in the box press them.  `changed` runs when a step changed the text; a
// step to a text longer than the box holds does nothing.
QWidget *WithSpinners(QLineEdit *box, const QString &incName, const QString &decName, SpinStep increase,
                      SpinStep decrease, std::function<void()> changed = {});

} // namespace quillon
