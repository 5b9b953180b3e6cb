#pragma once

#include <QStringList>

namespace quillon {

// The program from its start to its end, with the platform already installed: the frame's
// load sequence, the event loop, and on every way out the views, the golfer's rows and the
// connection released while the application object still stands.  Returns the exit status.
int RunProgram(const QStringList &arguments);

// The whole start-up again, in this process, over the frame as it stands (after a restore): the
// same steps as at the start, ending in the golfer dialog, the locked frame, or the program's end.
void RestartProgram();

// End the program from wherever it stands, now: inside the event loop it stops the loop,
// before it (the golfer dialog of start-up) the program ends as soon as the caller returns.
void EndProgram();

} // namespace quillon
