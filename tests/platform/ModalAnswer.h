#pragma once

#include <QWidget>
#include <functional>

namespace quillon::test {

// Runs answer on the next modal dialog from inside the event loop that dialog runs.
// answer returns false when the dialog is not the one it waits for.  When none comes
// within the time, the test fails and whatever modal dialog is up is rejected, so that
// a test fails instead of hanging.
void whenModalUp(std::function<bool(QWidget &)> answer, int timeoutMs = 5000);

// The same for a dialog of type T.
template <typename T, typename F>
void answerNextModal(F answer, int timeoutMs = 5000)
{
    whenModalUp(
        [answer](QWidget &widget) {
            auto *dialog = qobject_cast<T *>(&widget);
            if (!dialog)
                return false;
            answer(*dialog);
            return true;
        },
        timeoutMs);
}

} // namespace quillon::test
