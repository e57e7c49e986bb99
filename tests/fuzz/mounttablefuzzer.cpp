#include "fuzz/checks.h"
#include "platform/linux/linuxmountarguments.h"
#include "platform/linux/linuxmounttable.h"

#include <cstddef>
#include <cstdint>

// The kernel's tables of mounts and swap areas. Users name mount points and sources.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<platform::MountEntry> entries = platform::parseMountInfo(text);
    require(entries.size() <= text.count('\n') + 1, "a line is at most one mount");
    for (const platform::MountEntry &entry : entries) {
        require(entry.mountPoint.size() <= text.size(), "decoding makes no path longer");
        const platform::MountArguments arguments = platform::MountArguments::of(entry);
        require(arguments.data.size() <= entry.options.toUtf8().size() * 3 + 1, "options grow by no more");
    }
    const QStringList swaps = platform::parseSwaps(text);
    require(swaps.size() <= text.count('\n') + 1, "a line is at most one swap area");
    return 0;
}
