#pragma once

#include <QString>

namespace quillon {

// "Version <major>.<minor>.<revision>" of this build.
QString VersionText();

// What the operating system and Qt report about the machine the program runs on, as lines of
// "name: value" text: the program's version, the system, kernel and processor, the Qt version and
// platform plugin, the screens, and the application directory.
QString SystemInformationText();

} // namespace quillon
