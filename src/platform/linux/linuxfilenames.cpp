#include "platform/filenames.h"

namespace platform {

namespace {

constexpr char16_t FirstLowSurrogate = 0xDC00;

struct Decoded
{
    char32_t codePoint = 0;
    int length = 0; // bytes; 0 when no valid character begins here
};

// Accepts only the shortest form, no surrogates and nothing above U+10FFFF. All other bytes stay bytes,
// because otherwise two names could decode to the same string.
Decoded decodeCharacter(QByteArrayView bytes)
{
    const auto first = static_cast<uchar>(bytes[0]);
    if (first < 0x80)
        return {first, 1};
    const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return {};
    char32_t codePoint = first & (0x7Fu >> length);
    for (int i = 1; i < length; ++i) {
        const auto next = static_cast<uchar>(bytes[i]);
        if ((next & 0xC0) != 0x80)
            return {};
        codePoint = codePoint << 6 | (next & 0x3Fu);
    }
    constexpr char32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (codePoint < Smallest[length] || codePoint > QChar::LastValidCodePoint ||
        QChar::isSurrogate(codePoint))
        return {};
    return {codePoint, length};
}

void appendUtf8(QByteArray &bytes, char32_t codePoint)
{
    const auto append = [&bytes](char32_t value) {
        bytes.append(static_cast<char>(static_cast<uchar>(value)));
    };
    const auto continuation = [&](int shift) { append(0x80 | (codePoint >> shift & 0x3F)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
        continuation(0);
    } else if (codePoint < 0x10000) {
        append(0xE0 | codePoint >> 12);
        continuation(6);
        continuation(0);
    } else {
        append(0xF0 | codePoint >> 18);
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

} // namespace

QString decodeName(QByteArrayView bytes)
{
    QString name;
    name.reserve(bytes.size());
    while (!bytes.isEmpty()) {
        const Decoded character = decodeCharacter(bytes);
        if (character.length == 0) {
            name.append(QChar(static_cast<char16_t>(FirstLowSurrogate + static_cast<uchar>(bytes[0]))));
            bytes = bytes.sliced(1);
        } else {
            name.append(QChar::fromUcs4(character.codePoint));
            bytes = bytes.sliced(character.length);
        }
    }
    return name;
}

QByteArray encodeName(const QString &name)
{
    QByteArray bytes;
    bytes.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        if (QChar::isHighSurrogate(unit) && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            appendUtf8(bytes, QChar::surrogateToUcs4(unit, name[i + 1].unicode()));
            ++i;
        } else if (unit >= FirstLowSurrogate + 0x80 && unit <= FirstLowSurrogate + 0xFF) {
            bytes.append(static_cast<char>(static_cast<uchar>(unit - FirstLowSurrogate)));
        } else {
            appendUtf8(bytes, unit);
        }
    }
    return bytes;
}

Result<QByteArray> encodePath(const QString &path)
{
    if (path.contains(QChar(u'\0')))
        return Status{InvalidParameter, 0, "path"};
    QByteArray bytes = encodeName(path);
    while (bytes.size() > 1 && bytes.endsWith('/'))
        bytes.chop(1);
    return bytes;
}

} // namespace platform
