#include "engine/fillnames.h"

#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace fillnames {

namespace {

constexpr QLatin1String FolderPrefix{".quorvex_temp_"};
constexpr int FolderDigits = 8;
constexpr QLatin1String FilePrefix{"fill_"};
constexpr QLatin1String FileSuffix{".tmp"};
constexpr int FileDigits = 6;

bool isDecimal(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isLowerHex(QChar c)
{
    return isDecimal(c) || (c >= u'a' && c <= u'f');
}

} // namespace

QString newFolder()
{
    return FolderPrefix + QUuid::createUuid().toString(QUuid::WithoutBraces).left(FolderDigits);
}

bool isFolder(QStringView name)
{
    if (!name.startsWith(FolderPrefix) || name.size() != FolderPrefix.size() + FolderDigits)
        return false;
    const QStringView digits = name.sliced(FolderPrefix.size());
    return std::all_of(digits.begin(), digits.end(), isLowerHex);
}

QString file(int index)
{
    return FilePrefix + u"%1"_s.arg(index, FileDigits, 10, QLatin1Char('0')) + FileSuffix;
}

bool isFile(QStringView name)
{
    if (!name.startsWith(FilePrefix) || !name.endsWith(FileSuffix) ||
        name.size() != FilePrefix.size() + FileDigits + FileSuffix.size())
        return false;
    const QStringView digits = name.sliced(FilePrefix.size(), FileDigits);
    return std::all_of(digits.begin(), digits.end(), isDecimal);
}

const QString recordFiles = u"mft_clean"_s;

QString recordFile(int index)
{
    return QString::number(index) + FileSuffix;
}

// Accepts only the canonical spelling of the number.
bool isRecordFile(QStringView name)
{
    if (!name.endsWith(FileSuffix))
        return false;
    const int index = name.chopped(FileSuffix.size()).toInt();
    return index >= 0 && index < RecordFiles && name == recordFile(index);
}

const QString recordFolders = u"dir_clean"_s;

QString newRecordFolder()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool isRecordFolder(QStringView name)
{
    const QUuid uuid = QUuid::fromString(name);
    return !uuid.isNull() && name == uuid.toString(QUuid::WithoutBraces);
}

} // namespace fillnames
