#include "support/suite.h"
#include "ui/progress/wiperate.h"

#include <QApplication>
#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class tst_WipeRate : public QObject
{
    Q_OBJECT

private slots:
    void rateText_data();
    void rateText();
    void rateTextIsTheSameInEveryLocale();
    void remainingSeconds_data();
    void remainingSeconds();
};

void tst_WipeRate::rateText_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0.0 << u"0 B"_s;
    QTest::newRow("last of B") << 1023.0 << u"1023 B"_s;
    QTest::newRow("first of KB") << 1024.0 << u"1.0 KB"_s;
    QTest::newRow("1536") << 1536.0 << u"1.5 KB"_s;
    QTest::newRow("last of KB") << 1048575.0 << u"1024.0 KB"_s;
    QTest::newRow("first of MB") << 1048576.0 << u"1.0 MB"_s;
    QTest::newRow("disk") << 157286400.0 << u"150.0 MB"_s;
    QTest::newRow("last of MB") << 1073741823.0 << u"1024.0 MB"_s;
    QTest::newRow("first of GB") << 1073741824.0 << u"1.00 GB"_s;
    QTest::newRow("3 GB") << 3221225472.0 << u"3.00 GB"_s;
    QTest::newRow("beyond any unit") << 2199023255552.0 << u"2048.00 GB"_s;
}

void tst_WipeRate::rateText()
{
    QFETCH(const double, rate);
    QFETCH(const QString, text);
    QCOMPARE(wiperate::rateText(rate), text);
}

void tst_WipeRate::rateTextIsTheSameInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = wiperate::rateText(1536.0);
    QLocale::setDefault(before);
    QCOMPARE(text, u"1.5 KB"_s);
}

void tst_WipeRate::remainingSeconds_data()
{
    constexpr double Speed = 1000.0;
    constexpr int Nothing = -1;
    QTest::addColumn<double>("percent");
    QTest::addColumn<double>("speed");
    QTest::addColumn<int>("seconds");
    QTest::newRow("half") << 50.0 << Speed << 60;
    QTest::newRow("half, slowly") << 50.0 << 0.001 << 60;
    QTest::newRow("a tenth") << 10.0 << Speed << 540;
    QTest::newRow("one percent") << 1.0 << Speed << 5940;
    QTest::newRow("more than a day") << 0.05 << Speed << Nothing;
    // 60 * (100 - p) / p is 86400 at p = 100 / 1441.
    QTest::newRow("just under a day") << 100.0 / 1440.99 << Speed << 86399;
    QTest::newRow("just over a day") << 100.0 / 1441.01 << Speed << Nothing;
    QTest::newRow("nothing yet") << 0.0 << Speed << Nothing;
    QTest::newRow("hardly anything yet") << 1e-300 << Speed << Nothing;
    QTest::newRow("less than a second") << 99.99 << Speed << Nothing;
    QTest::newRow("just over a second") << 98.0 << Speed << 1;
    QTest::newRow("done") << 100.0 << Speed << Nothing;
    QTest::newRow("more than done") << 101.0 << Speed << Nothing;
    QTest::newRow("no speed") << 50.0 << 0.0 << Nothing;
    QTest::newRow("negative speed") << 50.0 << -1.0 << Nothing;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << Speed << Nothing;
}

void tst_WipeRate::remainingSeconds()
{
    QFETCH(const double, percent);
    QFETCH(const double, speed);
    QFETCH(const int, seconds);
    QCOMPARE(wiperate::remainingSeconds(percent, speed).value_or(-1), seconds);
}

QUORVEX_SUITE(tst_WipeRate, QApplication)
#include "tst_wiperate.moc"
