#include "certificate/paperwords.h"

#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
               ? process.readAllStandardOutput()
               : QByteArray();
}

double number(const QXmlStreamReader &reader, const QString &name)
{
    return reader.attributes().value(name).toDouble();
}

} // namespace

bool PaperWords::isPossible()
{
    return !QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty() &&
           !QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty();
}

PaperWords PaperWords::of(const QString &pdf)
{
    PaperWords page;
    QXmlStreamReader reader(outputOf(u"pdftotext"_s, {u"-bbox"_s, u"-enc"_s, u"UTF-8"_s, pdf, u"-"_s}));
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == u"page"_s) {
            ++page.pages;
            page.paper = {number(reader, u"width"_s), number(reader, u"height"_s)};
        } else if (reader.name() == u"word"_s) {
            const QRectF box(QPointF(number(reader, u"xMin"_s), number(reader, u"yMin"_s)),
                             QPointF(number(reader, u"xMax"_s), number(reader, u"yMax"_s)));
            page.words.append({reader.readElementText(), box});
        }
    }
    return page;
}

double PaperWords::visibleEnd(const QString &pdf, const QRectF &box)
{
    constexpr int dpi = 150;
    constexpr int darkest = 200;
    const QImage picture = QImage::fromData(
        outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dpi), u"-gray"_s, u"-singlefile"_s, pdf}));
    const auto pixel = [](double points) { return static_cast<int>(points / 72 * dpi); };
    // The boxes of two lines touch.
    const int middle = pixel(box.center().y());
    const int reach = pixel(box.height() / 4);
    for (int x = std::min(pixel(box.right()), picture.width() - 1); x >= pixel(box.left()); --x) {
        for (int y = middle - reach; y <= middle + reach && y < picture.height(); ++y) {
            if (qGray(picture.pixel(x, y)) < darkest)
                return (x + 1) * 72.0 / dpi;
        }
    }
    return box.left();
}

QString PaperWords::characters() const
{
    QString all;
    for (const Word &word : words)
        all += word.text;
    return sortedCharacters(all);
}

QRectF PaperWords::boxOf(const QString &text) const
{
    const auto found = std::ranges::find(words, text, &Word::text);
    return found == words.end() ? QRectF() : found->box;
}

QStringList PaperWords::problems() const
{
    QStringList all;
    const QRectF sheet(QPointF(), paper);
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (!sheet.contains(words[i].box))
            all.append(u"off the paper: "_s + words[i].text);
        for (qsizetype j = i + 1; j < words.size(); ++j) {
            // Boxes have the height of the font's tallest letter, so the boxes of two lines may touch.
            const QRectF common = words[i].box & words[j].box;
            if (common.width() > 0.5 &&
                common.height() > 0.25 * std::min(words[i].box.height(), words[j].box.height()))
                all.append(words[i].text + u" lies over "_s + words[j].text);
        }
    }
    return all;
}

QString sortedCharacters(QString text)
{
    text.removeIf([](QChar character) { return character.isSpace(); });
    std::ranges::sort(text);
    return text;
}
