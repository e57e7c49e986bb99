#include "fuzz/checks.h"
#include "platform/filenames.h"
#include "services/trash/trashinfofile.h"

#include <cstddef>
#include <cstdint>

// ".trashinfo" files come from every desktop, and on a shared volume from any user.

namespace {
// Of several paths the first one is valid, even an empty one.
void checkFirstCounts(const QByteArray &contents, const QString &path)
{
    const QString longer = parseTrashInfo(contents + "\n[Trash Info]\nPath=/other\n");
    require(longer == path || (path.isEmpty() && longer == u"/other"), "what follows changes nothing");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString path = parseTrashInfo(contents);
    require(parseTrashInfo(QByteArray(contents.constData(), contents.size())) == path,
            "the same file, the same path");
    if (!contents.contains("[Trash Info]") || !contents.contains("Path"))
        require(path.isEmpty(), "no path without its group and key");
    require(platform::encodeName(path).size() <= contents.size(), "no more bytes than the file has");
    checkFirstCounts(contents, path);
    return 0;
}
