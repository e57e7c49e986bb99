#pragma once

class QFile;

namespace platform {

// Opens the named file for text, each write of which lands behind everything in it, also behind what other
// processes have written since. A file that is not there is made, for its owner only. False when it does not
// open.
bool openForAppending(QFile &file);

} // namespace platform
