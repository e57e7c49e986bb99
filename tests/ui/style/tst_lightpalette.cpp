#include "support/suite.h"
#include "ui/style/lightpalette.h"

#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"

#include <QApplication>
#include <QColor>
#include <QDialog>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QPalette>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A dark palette as on many desktops.
QPalette darkDesktop()
{
    const QColor dark(0x20, 0x20, 0x20);
    QPalette palette(Qt::white, QColor(0x2d, 0x2d, 0x2d), QColor(0x50, 0x50, 0x50), Qt::black,
                     QColor(0x40, 0x40, 0x40), Qt::white, Qt::white, dark, dark);
    palette.setColor(QPalette::AlternateBase, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(0x80, 0x80, 0x80));
    return palette;
}

// The contrast ratio of the web accessibility guidelines: 1 for equal colours, 21 for black on white.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

using Maker = std::function<std::unique_ptr<QDialog>(QWidget *parent)>;

} // namespace

class tst_LightPalette : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void cleanup() { QApplication::setPalette(m_before); }

    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void dialogsLookTheSameOnADarkDesktop_data();
    void dialogsLookTheSameOnADarkDesktop();

private:
    QImage pictureOn(const QPalette &desktop, const Maker &make) const;

    const QPalette m_before = QApplication::palette();
    QTemporaryDir m_folder;
};

void tst_LightPalette::everyTextCanBeRead_data()
{
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::addColumn<QPalette::ColorRole>("ground");
    QTest::newRow("window") << QPalette::WindowText << QPalette::Window;
    QTest::newRow("field") << QPalette::Text << QPalette::Base;
    QTest::newRow("every other row") << QPalette::Text << QPalette::AlternateBase;
    QTest::newRow("button") << QPalette::ButtonText << QPalette::Button;
    QTest::newRow("selection") << QPalette::HighlightedText << QPalette::Highlight;
    QTest::newRow("tip") << QPalette::ToolTipText << QPalette::ToolTipBase;
    QTest::newRow("hint in a field") << QPalette::PlaceholderText << QPalette::Base;
    QTest::newRow("link") << QPalette::Link << QPalette::Window;
    QTest::newRow("visited link") << QPalette::LinkVisited << QPalette::Window;
}

void tst_LightPalette::everyTextCanBeRead()
{
    QFETCH(const QPalette::ColorRole, text);
    QFETCH(const QPalette::ColorRole, ground);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const double found = contrast(lightPalette().color(group, text), lightPalette().color(group, ground));
        QVERIFY2(found > 3.5, qPrintable(QString::number(found)));
    }
    const double disabled = contrast(lightPalette().color(QPalette::Disabled, text),
                                     lightPalette().color(QPalette::Disabled, ground));
    QVERIFY2(disabled > 2, qPrintable(QString::number(disabled)));
}

QImage tst_LightPalette::pictureOn(const QPalette &desktop, const Maker &make) const
{
    QApplication::setPalette(desktop);
    QApplication::setPalette(lightPalette());
    QWidget window;
    window.setStyleSheet(programSheet());
    const std::unique_ptr<QDialog> dialog = make(&window);
    dialog->resize(640, 480);
    return dialog->grab().toImage();
}

void tst_LightPalette::dialogsLookTheSameOnADarkDesktop_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("file dialog") << Maker([this](QWidget *parent) {
        auto dialog = std::make_unique<QFileDialog>(parent, QString(), m_folder.path());
        dialog->setOption(QFileDialog::DontUseNativeDialog);
        return dialog;
    });
    QTest::newRow("message box") << Maker([](QWidget *parent) {
        auto box = std::make_unique<QMessageBox>(QMessageBox::Question, u"a"_s, u"b"_s,
                                                 QMessageBox::Yes | QMessageBox::No, parent);
        box->setDetailedText(u"c"_s);
        return box;
    });
#ifndef Q_OS_WIN
    // On other systems the dialog is the system's.
    QTest::newRow("print dialog") << Maker([](QWidget *parent) {
        static QPrinter printer;
        return std::make_unique<QPrintDialog>(&printer, parent);
    });
#endif
}

void tst_LightPalette::dialogsLookTheSameOnADarkDesktop()
{
    QFETCH(const Maker, make);
    QImage onDark;
    // The file dialog reads its folder while it is shown.
    QTRY_COMPARE((onDark = pictureOn(darkDesktop(), make)), pictureOn(m_before, make));
    QVERIFY(!onDark.isNull());
    if (const QString folder = qEnvironmentVariable("QUORVEX_TEST_PICTURES"); !folder.isEmpty())
        QVERIFY(onDark.save(folder + u"/on-dark-%1.png"_s.arg(QString::fromLatin1(QTest::currentDataTag()))));
}

QUORVEX_SUITE(tst_LightPalette, QApplication)
#include "tst_lightpalette.moc"
