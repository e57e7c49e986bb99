#include "gallery.h"
#include "pseudolocale.h"
#include "textfit.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTest>
#include <QTextStream>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::vector<const GalleryRoom *> &rooms()
{
    static std::vector<const GalleryRoom *> all;
    return all;
}

// These have a fixed size by design. The texts of every language fit; the pseudo-locale would report them as
// too long.
const QStringList ofGivenSize{u"browseBtn"_s,
                              u"cardDescription"_s,
                              u"dangerBtn"_s,
                              u"methodDesc"_s,
                              u"historyTable/QHeaderView"_s,
                              u"primaryBtn"_s,
                              u"secondaryBtn"_s,
                              u"statusFilter"_s,
                              u"viewCertificateBtn"_s};

bool isOfGivenSize(const QString &cut)
{
    return std::ranges::any_of(ofGivenSize,
                               [&cut](const QString &name) { return cut.startsWith(name + u": "_s); });
}

QString scaleText()
{
    return QString::number(qRound(qApp->devicePixelRatio() * 100));
}

} // namespace

GalleryRoom::GalleryRoom(const char *roomName, Painter roomPainter)
    : name(roomName)
    , painter(roomPainter)
{
    rooms().push_back(this);
}

Gallery::Gallery(QString folder, QString language)
    : m_folder(std::move(folder))
    , m_language(std::move(language))
{}

QString Gallery::pathFor(const QString &name, const QString &suffix) const
{
    return u"%1/%2-%3-%4.%5"_s.arg(m_folder, name, m_language, scaleText(), suffix);
}

void Gallery::picture(QWidget &widget, const QString &name)
{
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        m_hasFailed = true;
    QTest::qWait(50);
    for (const QString &cut : ::cutTexts(widget)) {
        if (m_language != PseudoLocale::Code || !isOfGivenSize(cut))
            m_cutTexts.append(name + u": "_s + cut);
    }
    save(widget.grab().toImage(), name);
    widget.hide();
}

void Gallery::save(const QImage &image, const QString &name)
{
    const QString path = pathFor(name, u"png"_s);
    if (image.isNull() || (!m_folder.isEmpty() && !image.save(path))) {
        QTextStream(stderr) << "cannot write " << path << Qt::endl;
        m_hasFailed = true;
        return;
    }
    ++m_count;
}

int main(int argc, char *argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(u"folder"_s, u"where the pictures go"_s);
    parser.addOptions({{u"language"_s, u"code of the texts' language"_s, u"code"_s, u"zh_CN"_s},
                       {u"catalogues"_s, u"folder of the .qm files"_s, u"folder"_s},
                       {u"room"_s, u"only this family of pictures"_s, u"name"_s},
                       {u"check-texts"_s, u"save nothing, and fail when a text is cut"_s}});
    parser.addHelpOption();
    parser.process(application);
    const bool isCheck = parser.isSet(u"check-texts"_s);
    if (parser.positionalArguments().size() != (isCheck ? 0 : 1))
        parser.showHelp(2);

    const QString language = parser.value(u"language"_s);
    QTranslator catalogue;
    PseudoLocale pseudo;
    if (parser.isSet(u"catalogues"_s)) {
        const bool isPseudo = language == PseudoLocale::Code;
        const QString file =
            u"%1/quorvex_%2.qm"_s.arg(parser.value(u"catalogues"_s), isPseudo ? u"en"_s : language);
        if (!(isPseudo ? pseudo.loadEnglish(file) : catalogue.load(file))) {
            QTextStream(stderr) << "no catalogue " << file << Qt::endl;
            return 1;
        }
        QApplication::installTranslator(isPseudo ? &pseudo : &catalogue);
    }

    const QString folder = parser.positionalArguments().value(0);
    if (!isCheck && !QDir().mkpath(folder)) {
        QTextStream(stderr) << "cannot make " << folder << Qt::endl;
        return 1;
    }
    Gallery gallery(folder, language);
    for (const GalleryRoom *room : rooms()) {
        if (!parser.isSet(u"room"_s) || parser.value(u"room"_s) == QLatin1String(room->name))
            room->painter(gallery);
    }
    QTextStream out(stdout);
    if (isCheck) {
        for (const QString &cut : gallery.cutTexts())
            out << "cut: " << cut << Qt::endl;
        out << gallery.count() << " pictures looked at" << Qt::endl;
    } else {
        out << gallery.count() << " pictures in " << folder << Qt::endl;
    }
    const bool isGood = !gallery.hasFailed() && gallery.count() > 0;
    return isGood && (!isCheck || gallery.cutTexts().isEmpty()) ? 0 : 1;
}
