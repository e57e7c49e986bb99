#include "model/spokentext.h"

#include <QChar>
#include <QStringView>

namespace {

constexpr char16_t AsPicture = 0xFE0F; // turns the character before it into a picture

bool isArrow(QChar character)
{
    return character >= QChar(0x2190) && character <= QChar(0x21FF);
}

// The number of UTF-16 units of a leading picture, which extends to the first blank.
qsizetype pictureLength(const QString &text)
{
    if (text.isEmpty())
        return 0;
    const bool isPair = text.size() > 1 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate();
    const char32_t first = isPair ? QChar::surrogateToUcs4(text.at(0), text.at(1)) : text.at(0).unicode();
    const qsizetype length = isPair ? 2 : 1;
    const bool isMadePicture = text.size() > length && text.at(length).unicode() == AsPicture;
    if (!isMadePicture && !isArrow(text.at(0)) && QChar::category(first) != QChar::Symbol_Other)
        return 0;
    const qsizetype blank = text.indexOf(u' ', length);
    return blank < 0 ? text.size() : blank;
}

} // namespace

QString spokenText(const QString &text)
{
    QStringView spoken = QStringView(text).sliced(pictureLength(text)).trimmed();
    if (!spoken.isEmpty() && isArrow(spoken.back()))
        spoken = spoken.chopped(1).trimmed();
    return spoken.toString();
}
