#pragma once

namespace quillon {

// A new release lays "Update.qdl" beside the executable.  On a fresh install
// it simply becomes "Quillon.qdl"; the carrying over of an existing database
// into a new one comes with the database upgrade.
void CheckForUpdate();

} // namespace quillon
