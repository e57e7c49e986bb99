#include "gallery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTest>
#include <QTextStream>
#include <QTranslator>
#include <QWidget>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::vector<const GalleryRoom *> &rooms()
{
    static std::vector<const GalleryRoom *> all;
    return all;
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
    save(widget.grab().toImage(), name);
    widget.hide();
}

void Gallery::save(const QImage &image, const QString &name)
{
    const QString path = pathFor(name, u"png"_s);
    if (image.isNull() || !image.save(path)) {
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
                       {u"room"_s, u"only this family of pictures"_s, u"name"_s}});
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const QString language = parser.value(u"language"_s);
    QTranslator translator;
    if (parser.isSet(u"catalogues"_s)) {
        const QString file = u"%1/quorvex_%2.qm"_s.arg(parser.value(u"catalogues"_s), language);
        if (!translator.load(file)) {
            QTextStream(stderr) << "no catalogue " << file << Qt::endl;
            return 1;
        }
        QApplication::installTranslator(&translator);
    }

    const QString folder = parser.positionalArguments().constFirst();
    if (!QDir().mkpath(folder)) {
        QTextStream(stderr) << "cannot make " << folder << Qt::endl;
        return 1;
    }
    Gallery gallery(folder, language);
    for (const GalleryRoom *room : rooms()) {
        if (!parser.isSet(u"room"_s) || parser.value(u"room"_s) == QLatin1String(room->name))
            room->painter(gallery);
    }
    QTextStream(stdout) << gallery.count() << " pictures in " << folder << Qt::endl;
    return gallery.hasFailed() || gallery.count() == 0 ? 1 : 0;
}
