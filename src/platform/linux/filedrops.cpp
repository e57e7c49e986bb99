#include "platform/filedrops.h"

namespace platform {

class FileDrops::Private
{};

FileDrops::FileDrops(quintptr, Receiver)
{}

FileDrops::~FileDrops() = default;

} // namespace platform
