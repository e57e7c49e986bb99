#include "support/suite.h"
#include "ui/style/uiresources.h"

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QImage drawn(const QString &path, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QIcon(path).paint(&painter, image.rect());
    return image;
}

// Antialiasing causes small differences.
bool isNear(const QColor &one, const QColor &other)
{
    return qAbs(one.red() - other.red()) <= 8 && qAbs(one.green() - other.green()) <= 8 &&
           qAbs(one.blue() - other.blue()) <= 8;
}

} // namespace

// The drawings named by pages and style sheet.
class tst_Icons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void drawingIsThereAndVisible_data();
    void drawingIsThereAndVisible();
    void menuIconsDifferInColourOnly_data();
    void menuIconsDifferInColourOnly();
};

void tst_Icons::drawingIsThereAndVisible_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("colour"); // of at least a third of its pixels
    const QList<std::pair<const char *, const char *>> icons{{"icon_menu_wipe.svg", "#94a3b8"},
                                                             {"icon_menu_wipe_active.svg", "#60a5fa"},
                                                             {"icon_menu_history.svg", "#94a3b8"},
                                                             {"icon_menu_history_active.svg", "#60a5fa"},
                                                             {"icon_menu_settings.svg", "#94a3b8"},
                                                             {"icon_menu_settings_active.svg", "#60a5fa"},
                                                             {"icon_disk_wipe.svg", "#3b82f6"},
                                                             {"icon_freespace_wipe.svg", "#22c55e"},
                                                             {"icon_file_wipe.svg", "#a855f7"},
                                                             {"icon_recycle_wipe.svg", "#ef4444"},
                                                             {"icon_success.svg", "#22c55e"},
                                                             {"disk.svg", "#64748b"},
                                                             {"file.svg", "#64748b"},
                                                             {"freespace.svg", "#64748b"},
                                                             {"arrow-right.svg", "#64748b"},
                                                             {"arrow-down.svg", "#64748b"},
                                                             {"check.svg", "#ffffff"},
                                                             {"menu-check.svg", "#3b82f6"}};
    for (const auto &[name, colour] : icons)
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(colour);
}

void tst_Icons::drawingIsThereAndVisible()
{
    QFETCH(const QString, name);
    QFETCH(const QString, colour);
    const QString path = u":/icons/"_s + name;
    QVERIFY2(QFile::exists(path), qPrintable(path));
    for (const int size : {20, 60}) {
        const QImage image = drawn(path, size);
        int painted = 0;
        int coloured = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                painted += pixel.alpha() > 200 ? 1 : 0;
                coloured += pixel.alpha() > 200 && isNear(pixel, QColor(colour)) ? 1 : 0;
            }
        }
        // The drawing covers at least a stroke across and is not a full square.
        QVERIFY2(painted > size, qPrintable(QString::number(painted)));
        QVERIFY(painted < size * size * 9 / 10);
        QVERIFY2(coloured * 3 > painted, qPrintable(QString::number(coloured)));
    }
}

void tst_Icons::menuIconsDifferInColourOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("wipe") << u"icon_menu_wipe"_s;
    QTest::newRow("history") << u"icon_menu_history"_s;
    QTest::newRow("settings") << u"icon_menu_settings"_s;
}

void tst_Icons::menuIconsDifferInColourOnly()
{
    QFETCH(const QString, name);
    const auto alpha = [](const QString &path) {
        QImage image = drawn(path, 60).convertToFormat(QImage::Format_Alpha8);
        return image;
    };
    QCOMPARE(alpha(u":/icons/%1.svg"_s.arg(name)), alpha(u":/icons/%1_active.svg"_s.arg(name)));
}

QUORVEX_SUITE(tst_Icons, QApplication)
#include "tst_icons.moc"
