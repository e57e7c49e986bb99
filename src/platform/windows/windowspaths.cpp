#include "platform/windows/windowspaths.h"

#include "platform/windows/windowslongpath.h"

#include <algorithm>

namespace platform {

namespace {

constexpr wchar_t Separator = L'\\';
constexpr std::wstring_view LongPrefix = LR"(\\?\)";
constexpr std::wstring_view NetworkPrefix = LR"(\\?\UNC\)";

bool hasNetworkPrefix(std::wstring_view path)
{
    const auto sameLetter = [](wchar_t a, wchar_t b) {
        return a == b || (a >= L'a' && a <= L'z' && a - L'a' + L'A' == b);
    };
    return path.size() >= NetworkPrefix.size() &&
           std::equal(NetworkPrefix.begin(), NetworkPrefix.end(), path.begin(),
                      [&](wchar_t wanted, wchar_t found) { return sameLetter(found, wanted); });
}

} // namespace

Result<std::wstring> encodePath(const QString &path)
{
    if (path.contains(QChar(u'\0')))
        return Status{InvalidParameter, 0, "path"};
    if (path.isEmpty())
        return Status{FileNotFound, 0, "path"};
    std::wstring name = toLongPath(path);
    const auto bothSeparators = [](wchar_t a, wchar_t b) { return a == Separator && b == Separator; };
    const auto body = name.begin() + static_cast<std::ptrdiff_t>(LongPrefix.size());
    name.erase(std::unique(body, name.end(), bothSeparators), name.end());
    if (name.back() != Separator)
        name += Separator;
    if (name.size() > rootLength(name))
        name.pop_back();
    return name;
}

std::size_t rootLength(std::wstring_view path)
{
    const bool isNetwork = hasNetworkPrefix(path);
    std::size_t length = isNetwork ? NetworkPrefix.size() : LongPrefix.size();
    for (int parts = isNetwork ? 2 : 1; parts > 0; --parts) {
        const std::size_t end = path.find(Separator, length);
        if (end == std::wstring_view::npos)
            return path.size();
        length = end + 1;
    }
    return length;
}

std::wstring parentOf(const std::wstring &path)
{
    const std::size_t root = rootLength(path);
    const std::size_t end = path.rfind(Separator);
    return path.substr(0, end == std::wstring::npos ? root : std::max(root, end));
}

std::wstring withoutStream(const std::wstring &path)
{
    return path.substr(0, path.find(L':', rootLength(path)));
}

std::wstring entryPath(const std::wstring &folder, std::wstring_view name)
{
    std::wstring path = folder;
    if (path.back() != Separator)
        path += Separator;
    path += name;
    return path;
}

QString decodeName(std::wstring_view name)
{
    // A decoder would remove a byte order mark.
    static_assert(sizeof(wchar_t) == sizeof(QChar));
    return QString(reinterpret_cast<const QChar *>(name.data()), static_cast<qsizetype>(name.size()));
}

} // namespace platform
