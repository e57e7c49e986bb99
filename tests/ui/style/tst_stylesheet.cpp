#include "support/suite.h"
#include "ui/style/buttons.h"
#include "ui/style/palette.h"
#include "ui/style/uiresources.h"

#include "support/messagecapture.h"
#include "ui/style/programsheet.h"

#include <QApplication>
#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

// The texts inside url().
QStringList pictures(const QString &text)
{
    static const QRegularExpression pattern(u"url\\(([^)]*)\\)"_s);
    QStringList paths;
    for (auto found = pattern.globalMatch(text); found.hasNext();)
        paths.append(found.next().captured(1));
    return paths;
}

// A window with the style sheet and a single control.
template <typename Control>
struct Styled
{
    QWidget window;
    Control &control;

    explicit Styled(const QString &name = {})
        : control(*new Control(&window))
    {
        window.setStyleSheet(programSheet());
        control.setObjectName(name);
        auto *layout = new QVBoxLayout(&window);
        auto *other = new QLineEdit;
        layout->addWidget(other);
        layout->addWidget(&control);
        other->setFocus();
        window.show();
    }
    QImage picture() const { return control.grab().toImage(); }
};

} // namespace

class tst_StyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }

    void theToolkitUnderstandsTheSheet();
    void everyPictureExists();
    void everyNameHasARule_data();
    void everyNameHasARule();
    void everyKindOfControlHasARule_data();
    void everyKindOfControlHasARule();
    void thePaletteIsThatOfTheSheet();
    void theFocusIsVisible_data();
    void theFocusIsVisible();
    void aCheckedBoxDiffers();
    void fixedSizesStay();
    void theNavigationButtonsAreAsDrawn();
};

void tst_StyleSheet::theToolkitUnderstandsTheSheet()
{
    QVERIFY(programSheet().size() > 1000);
    const MessageCapture capture;
    QWidget widget;
    widget.setStyleSheet(programSheet());
    widget.show();
    QVERIFY2(!capture.texts().join(u'\n').contains(u"stylesheet"_s, Qt::CaseInsensitive),
             qPrintable(capture.texts().join(u'\n')));
}

void tst_StyleSheet::everyPictureExists()
{
    const QStringList paths = pictures(programSheet());
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths)
        QVERIFY2(QFile::exists(path), qPrintable(path));
}

void tst_StyleSheet::everyNameHasARule_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"pageTitle",     "pageSubtitle",   "primaryBtn",     "secondaryBtn",   "dangerBtn",
          "dialogTitle",   "dialogMessage",  "progressStatus", "progressMethod", "progressWidget",
          "mainProgress",  "percentLabel",   "statsLabel",     "logTitle",       "logText",
          "methodScroll",  "methodRadio",    "methodName",     "methodPass",     "methodDesc",
          "standardLabel", "cardIconWidget", "cardIcon",       "cardTitle",      "cardDescription",
          "filterWidget",  "historyTable",   "tableViewBtn",   "contentWidget",  "pageStack"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_StyleSheet::everyNameHasARule()
{
    QFETCH(QString, name);
    const QRegularExpression rule(u"#%1\\s*[{,]"_s.arg(name));
    QVERIFY(programSheet().contains(rule));
}

void tst_StyleSheet::everyKindOfControlHasARule_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"QPushButton", "QToolButton", "QLineEdit",    "QTextEdit",   "QPlainTextEdit",
                             "QComboBox",   "QCheckBox",   "QRadioButton", "QListView",   "QTreeView",
                             "QTableView",  "QScrollBar",  "QScrollArea",  "QGroupBox",   "QProgressBar",
                             "QMenu",       "QToolTip",    "QDialog",      "QMessageBox", "QLabel"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void tst_StyleSheet::everyKindOfControlHasARule()
{
    QFETCH(QString, kind);
    const QRegularExpression rule(u"(^|\\n)%1\\s*[{,]"_s.arg(kind));
    QVERIFY(programSheet().contains(rule));
}

void tst_StyleSheet::thePaletteIsThatOfTheSheet()
{
    for (const QColor &color : {palette::Text, palette::MutedText, palette::FaintText, palette::DisabledText,
                                palette::Primary, palette::PrimaryHovered, palette::PrimaryPressed,
                                palette::SelectedText, palette::Success, palette::Warning, palette::Error,
                                palette::Surface, palette::Container, palette::Border, palette::StrongBorder})
        QVERIFY2(programSheet().contains(color.name()), qPrintable(color.name()));
}

void tst_StyleSheet::theFocusIsVisible_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("push button") << u"button"_s << QString();
    for (const char *name : {"primaryBtn", "secondaryBtn", "dangerBtn", "tableViewBtn"})
        QTest::newRow(name) << u"button"_s << QString::fromLatin1(name);
    QTest::newRow("push button with a look of its own") << u"own look"_s << QString();
    for (const char *kind : {"check box", "radio button", "combo box", "line edit", "table"})
        QTest::newRow(kind) << QString::fromLatin1(kind) << QString();
}

template <typename Control>
static bool focusIsVisible(const QString &name, const QString &ownLook = {})
{
    const Styled<Control> styled(name);
    styled.control.setStyleSheet(ownLook);
    if constexpr (std::is_base_of_v<QAbstractButton, Control>)
        styled.control.setText(u"text"_s);
    if (!QTest::qWaitForWindowActive(const_cast<QWidget *>(&styled.window)))
        return false;
    const QImage without = styled.picture();
    styled.control.setFocus();
    return styled.control.hasFocus() && styled.picture() != without;
}

void tst_StyleSheet::theFocusIsVisible()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    if (kind == u"button")
        QVERIFY(focusIsVisible<QPushButton>(name));
    else if (kind == u"own look")
        QVERIFY(
            focusIsVisible<QPushButton>(name, u"QPushButton { background-color: #3b82f6; border: none; }"_s));
    else if (kind == u"check box")
        QVERIFY(focusIsVisible<QCheckBox>(name));
    else if (kind == u"radio button")
        QVERIFY(focusIsVisible<QRadioButton>(name));
    else if (kind == u"combo box")
        QVERIFY(focusIsVisible<QComboBox>(name));
    else if (kind == u"line edit")
        QVERIFY(focusIsVisible<QLineEdit>(name));
    else if (kind == u"table")
        QVERIFY(focusIsVisible<QTableWidget>(name));
}

void tst_StyleSheet::aCheckedBoxDiffers()
{
    const Styled<QCheckBox> styled;
    const QImage unchecked = styled.picture();
    styled.control.setChecked(true);
    const QImage checked = styled.picture();
    QVERIFY(checked != unchecked);
    styled.control.setEnabled(false);
    QVERIFY(styled.picture() != checked);
}

void tst_StyleSheet::fixedSizesStay()
{
    for (const QString &name : {u"primaryBtn"_s, u"secondaryBtn"_s, u"dangerBtn"_s, QString()}) {
        Styled<QPushButton> styled(name);
        styled.control.setFixedSize(60, 30);
        styled.window.adjustSize();
        QCOMPARE(styled.control.size(), QSize(60, 30));
    }
}

void tst_StyleSheet::theNavigationButtonsAreAsDrawn()
{
    QWidget window;
    window.setStyleSheet(programSheet());
    QPushButton &back = *buttons::makeBack(u"← Back"_s);
    QPushButton &next = *buttons::makeNext(u"Next →"_s);
    back.setParent(&window);
    next.setParent(&window);
    QCOMPARE(back.accessibleName(), u"Back"_s);
    QCOMPARE(next.accessibleName(), u"Next"_s);
    QCOMPARE(back.objectName(), u"secondaryBtn"_s);
    QCOMPARE(next.objectName(), u"primaryBtn"_s);
    window.show();
    for (const QPushButton *button : {&back, &next})
        QCOMPARE(button->size(), QSize(140, 45));
    for (QPushButton *button : {&back, &next})
        button->clearFocus();
    QCOMPARE(next.grab().toImage().pixelColor(20, 22).name(), u"#3b82f6"_s);
    next.setEnabled(false);
    QCOMPARE(next.grab().toImage().pixelColor(20, 22).name(), u"#94a3b8"_s);
    QCOMPARE(back.grab().toImage().pixelColor(20, 22).name(), u"#ffffff"_s);
    // Its border is paler than that of other secondary buttons.
    QCOMPARE(back.grab().toImage().pixelColor(70, 0).name(), u"#e2e8f0"_s);
}

QUORVEX_SUITE(tst_StyleSheet, QApplication)
#include "tst_stylesheet.moc"
