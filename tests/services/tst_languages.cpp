#include "support/suite.h"

#include "services/languages.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

// The languages of the program are those of one list, which the build and the scripts read too.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void theTableIsTheList();
    void theMenuBeginsAsDesigned();
    void eachHasItsCatalogueOrSupplement();
};

void tst_Languages::theTableIsTheList()
{
    QFile list(QStringLiteral(QUORVEX_LANGUAGES_FILE));
    QVERIFY(list.open(QIODevice::ReadOnly | QIODevice::Text));
    QStringList expected;
    for (const QString &line : QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        const QStringList fields = line.split(u" | "_s);
        QCOMPARE(fields.size(), 4);
        expected.append(fields.at(0) + u'=' + (fields.at(3) == u"-"_s ? QString() : fields.at(3)));
    }
    QStringList found;
    for (const languages::Language &language : languages::all())
        found.append(language.code + u'=' + language.menuLabel);
    QVERIFY(!found.isEmpty());
    QCOMPARE(found, expected);
    QCOMPARE(languages::codes().size(), found.size());
}

// Users find a language at the place where it has always been; others follow.
void tst_Languages::theMenuBeginsAsDesigned()
{
    const QStringList designed{u"🇺🇸  English"_s,    u"🇫🇷  Français"_s,  u"🇩🇪  Deutsch"_s,
                               u"🇯🇵  日本語"_s,     u"🇪🇸  Español"_s,   u"🇰🇷  한국어"_s,
                               u"🇳🇱  Nederlands"_s, u"🇵🇹  Português"_s, u"🇮🇹  Italiano"_s};
    QStringList labels;
    for (const languages::Language &language : languages::all()) {
        if (!language.menuLabel.isEmpty())
            labels.append(language.menuLabel);
    }
    QCOMPARE(labels.mid(0, designed.size()), designed);
}

void tst_Languages::eachHasItsCatalogueOrSupplement()
{
    for (const QString &code : languages::codes())
        QVERIFY2(QFile::exists(languages::catalogue(code)) != QFile::exists(languages::supplement(code)),
                 qPrintable(code));
}

QUORVEX_SUITE(tst_Languages, QCoreApplication)
#include "tst_languages.moc"
