#include "fuzz/checks.h"
#include "services/trash/recyclebininfofile.h"

#include <cstddef>
#include <cstdint>
#include <span>

// Every user with write access to a drive can leave "$I" files on it. The checks compute the reader's result
// a second time, byte by byte, so that an error goes unnoticed only if both make it.

namespace {
using Bytes = std::span<const std::uint8_t>;

std::uint64_t numberAt(Bytes file, std::size_t offset, std::size_t width)
{
    std::uint64_t number = 0;
    for (std::size_t i = width; i-- > 0;)
        number = number << 8 | file[offset + i];
    return number;
}

QString unitsOf(Bytes field)
{
    QString text;
    for (std::size_t i = 0; i + 1 < field.size(); i += 2)
        text += QChar(static_cast<char16_t>(numberAt(field, i, 2)));
    return text;
}

// The field of the path; empty for a file without a trustworthy one.
QString storedPath(Bytes file)
{
    const std::uint64_t version = numberAt(file, 0, 8);
    if (version == 1 && file.size() >= 544)
        return unitsOf(file.subspan(24, 520));
    const std::uint64_t length = numberAt(file, 24, 4);
    if (version == 2 && length <= (file.size() - 28) / 2)
        return unitsOf(file.subspan(28, 2 * length));
    return {};
}

// Compared with the field, the path may lack only surrounding white space and one zero.
void checkPath(const QString &path, const QString &stored)
{
    require(path.size() <= stored.size(), "no more characters than the file has units");
    qsizetype begin = 0;
    while (begin < stored.size() && stored.at(begin).isSpace())
        ++begin;
    require(begin + path.size() <= stored.size(), "no more characters than the path has without white space");
    require(QStringView(stored).sliced(begin, path.size()) == path, "the path is that of the file");
    QStringView behind = QStringView(stored).sliced(begin + path.size());
    if (behind.startsWith(QChar::Null))
        behind = behind.sliced(1);
    require(behind.trimmed().isEmpty(), "the path is whole");
}

void checkName(const QString &name, const QString &path)
{
    const QChar separator = path.contains(u'\\') ? u'\\' : u'/';
    require(name.size() <= path.size(), "the name is no longer than the path");
    require(QStringView(path).last(name.size()) == name, "the name is the end of the path");
    require(!name.contains(separator), "the name is one component");
    const qsizetype before = path.size() - name.size();
    require(before == 0 || path.at(before - 1) == separator, "the name begins behind the last separator");
}

void checkItem(const RecycleBinItem &item, Bytes file)
{
    require(item.recyclePath.isEmpty() && item.infoPath.isEmpty() && !item.isDirectory,
            "nothing that the file does not tell");
    if (file.size() < 28) {
        require(item == RecycleBinItem(), "a file that is too short tells nothing");
        return;
    }
    require(item.size == numberAt(file, 8, 8), "the size is the one stored");
    checkPath(item.originalPath, storedPath(file));
    checkName(item.fileName, item.originalPath);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView contents(data, static_cast<qsizetype>(size));
    const RecycleBinItem item = recyclebin::parseInfo(contents);
    checkItem(item, Bytes(data, size));

    // The same bytes elsewhere in memory, at an odd address.
    const QByteArray moved = '\x7f' + contents.toByteArray();
    require(recyclebin::parseInfo(QByteArrayView(moved).sliced(1)) == item, "the same file, the same item");

    const QString text = unitsOf(Bytes(data, size));
    checkName(recyclebin::lastComponent(text), text);
    return 0;
}
