#pragma once

#include <functional>
#include <utility>

namespace quillon {

// Runs a command handler under the error trap: a fault is shown as "Error <number>:
// <description>" with the critical icon and the title "Quillon for Golf", and the handler ends
// there.  Returns false when it did.
bool RunGuarded(const std::function<void()> &handler);

// A handler that has no trap of its own: a fault reaches the program's last line of defence,
// which names it in the platform's words ("Run-time error '13':" and the description) and
// lets the program go on.  Returns false when it did.
bool RunUntrapped(const std::function<void()> &handler);

// A handler for connect() that runs under the trap.
template <typename F>
auto Guarded(F handler)
{
    return [handler = std::move(handler)](auto &&...) { RunGuarded(handler); };
}

} // namespace quillon
