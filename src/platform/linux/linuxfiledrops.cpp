#include "platform/filedrops.h"

namespace platform {

class FileDrops::Private
{};

FileDrops::FileDrops(quintptr, const Receiver &)
{}

FileDrops::~FileDrops() = default;

} // namespace platform
