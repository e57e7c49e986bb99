#include "model/spokentext.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_SpokenText : public QObject
{
    Q_OBJECT

private slots:
    void leavesPicturesOut_data();
    void leavesPicturesOut();
};

void tst_SpokenText::leavesPicturesOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("nothing") << u""_s << u""_s;
    QTest::newRow("words") << u"Clear All"_s << u"Clear All"_s;
    QTest::newRow("a picture of two units") << u"📄 Add Files"_s << u"Add Files"_s;
    QTest::newRow("a picture and two blanks") << u"📁  old  (6 B)"_s << u"old  (6 B)"_s;
    QTest::newRow("a sign made a picture") << u"⚠️ System Disk"_s << u"System Disk"_s;
    QTest::newRow("a letter made a picture") << u"ℹ️ Free space"_s << u"Free space"_s;
    QTest::newRow("Chinese") << u"⏸️ 暂停"_s << u"暂停"_s;
    QTest::newRow("an arrow before") << u"← Back"_s << u"Back"_s;
    QTest::newRow("an arrow behind") << u"Next →"_s << u"Next"_s;
    QTest::newRow("a picture alone") << u"🔄"_s << u""_s;
    QTest::newRow("a name that begins with a sign") << u"📄  ©.txt  (1 B)"_s << u"©.txt  (1 B)"_s;
    QTest::newRow("a name with a sign behind") << u"📄  C++"_s << u"C++"_s;
    QTest::newRow("a name with a picture inside") << u"📄  a💾b"_s << u"a💾b"_s;
    QTest::newRow("a lone surrogate") << QString(QChar(0xD83D)) << QString(QChar(0xD83D));
}

void tst_SpokenText::leavesPicturesOut()
{
    QFETCH(const QString, text);
    QTEST(spokenText(text), "spoken");
}

QUORVEX_SUITE(tst_SpokenText, QCoreApplication)
#include "tst_spokentext.moc"
