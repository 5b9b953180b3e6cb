#pragma once

#include "core/QuillonError.h"

class QSqlError;

namespace quillon {

// The number a user and a handler see for an engine failure.  A broken unique key is 3022 and
// a file that cannot be written 70, as the forms' messages expect; every other engine code gets
// a number of its own above 3200, clear of the language's own failures (6, 11, 13).
int ErrorNumberForEngineCode(int engineCode, const QString &engineText);

// The engine's failure as an error of ours: the number above and the engine's own text.
QuillonError DatabaseError(const QSqlError &error);

// Engine codes the program reacts to.
namespace engine {
constexpr int Error = 1;
constexpr int Perm = 3;
constexpr int Busy = 5;
constexpr int Locked = 6;
constexpr int ReadOnly = 8;
constexpr int Corrupt = 11;
constexpr int CantOpen = 14;
constexpr int Constraint = 19;
} // namespace engine

// The number given to engine code c that has no meaning of its own to the program.
constexpr int kEngineErrorBase = 3200;

} // namespace quillon
