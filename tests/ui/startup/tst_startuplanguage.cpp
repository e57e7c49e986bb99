#include "support/suite.h"
#include "ui/startup/language.h"

#include "services/applog.h"
#include "services/languages.h"
#include "support/messagecapture.h"
#include "support/userdata.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <cstdio>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const char *const sample = "正在擦除数据...";

QString translatedSample()
{
    return QCoreApplication::translate("ProgressPage", sample);
}

QByteArray lineOf(const MessageCapture::Message &message)
{
    static const QRegularExpression time(u"^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] "_s);
    const QByteArray kind = message.type == QtDebugMsg  ? "debug "
                            : message.type == QtInfoMsg ? "log "
                                                        : "other ";
    return kind + QString(message.text).remove(time).toUtf8() + '\n';
}

// Run as a child process, because a process has a single language: SETTINGS LOCALE [without-application].
// Prints each message on its own line, then the result.
int choose(int argc, char **argv)
{
    std::unique_ptr<QCoreApplication> application;
    if (qstrcmp(argv[argc - 1], "without-application") != 0)
        application = std::make_unique<QCoreApplication>(argc, argv);
    const QString settings = QFile::decodeName(argv[2]);
    AppLog::instance().setLogFile(settings + u".log"_s);
    QByteArray lines;
    {
        const MessageCapture capture;
        const QString code =
            initTranslation(QSettings(settings, QSettings::IniFormat), QString::fromLatin1(argv[3]));
        for (const MessageCapture::Message &message : capture.messages())
            lines += lineOf(message);
        lines += "code " + code.toUtf8() + '\n';
    }
    lines += "text " + translatedSample().toUtf8() + '\n';
    lines += "english " + QCoreApplication::translate("Sidebar", "Data Wipe").toUtf8() + '\n';
    lines += "button " + QCoreApplication::translate("QPlatformTheme", "Cancel").toUtf8() + '\n';
    return std::fwrite(lines.constData(), 1, static_cast<std::size_t>(lines.size()), stdout) ==
                   static_cast<std::size_t>(lines.size())
               ? 0
               : 1;
}

} // namespace

// The language of the program and the messages about it.
class tst_StartupLanguage : public QObject
{
    Q_OBJECT

private slots:
    void theSystemDecidesUnlessTheUserDid_data();
    void theSystemDecidesUnlessTheUserDid();
    void everyLanguageButTheSourceHasACatalogue_data();
    void everyLanguageButTheSourceHasACatalogue();
    void everyLanguageIsWhole_data();
    void everyLanguageIsWhole();
    void theSupplementHasEveryEnglishText();
    void aRefusedInstallationIsTold();

private:
    struct Outcome
    {
        QStringList trace; // debug output and log
        QStringList others;
        QString code;
        QString text;
        QString english; // a text that is English in the sources
        QString button;  // one of Qt's own
        QStringList storedKeys;
        QString stored;
    };
    void store(const QString &language);
    Outcome run(const QString &locale, const QString &way = {});
    QStringList expectedTrace(const QStringList &choice, const QString &code, bool exists,
                              const QStringList &ending) const;

    QTemporaryDir m_folder;
    QString m_settings = m_folder.filePath(u"settings.ini"_s);
};

void tst_StartupLanguage::store(const QString &language)
{
    QFile::remove(m_settings);
    QSettings settings(m_settings, QSettings::IniFormat);
    settings.setValue(u"wipe/verifyAfterWipe"_s, false);
    if (!language.isEmpty())
        settings.setValue(u"language"_s, language);
}

tst_StartupLanguage::Outcome tst_StartupLanguage::run(const QString &locale, const QString &way)
{
    QStringList arguments{u"tst_startuplanguage"_s, u"--choose"_s, m_settings, locale};
    if (!way.isEmpty())
        arguments.append(way);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The log creates the folder of its default file.
    environment.insert(u"XDG_DATA_HOME"_s, m_folder.filePath(u"data"_s));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {{u"the process failed"_s}, {}, {}, {}, {}, {}, {}, {}};

    Outcome outcome;
    const QStringList lines =
        QString::fromUtf8(process.readAllStandardOutput()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QString rest = line.section(u' ', 1);
        if (line.startsWith(u"code "))
            outcome.code = rest;
        else if (line.startsWith(u"text "))
            outcome.text = rest;
        else if (line.startsWith(u"english "))
            outcome.english = rest;
        else if (line.startsWith(u"button "))
            outcome.button = rest;
        else if (line.startsWith(u"other "))
            outcome.others.append(rest);
        else
            outcome.trace.append(line);
    }
    const QSettings settings(m_settings, QSettings::IniFormat);
    outcome.storedKeys = settings.allKeys();
    outcome.stored = settings.value(u"language"_s).toString();
    return outcome;
}

QStringList tst_StartupLanguage::expectedTrace(const QStringList &choice, const QString &code, bool exists,
                                               const QStringList &ending) const
{
    return QStringList{u"debug ========== Translation Init =========="_s,
                       u"debug [Main] Settings path: \"%1\""_s.arg(m_settings)} +
           choice +
           QStringList{u"debug [Main] Translation file: \":/translations/quorvex_%1.qm\""_s.arg(code),
                       u"debug [Main] File exists: %1"_s.arg(exists ? u"true"_s : u"false"_s)} +
           ending + QStringList{u"debug ======================================="_s};
}

void tst_StartupLanguage::theSystemDecidesUnlessTheUserDid_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("beginning"); // of the locale, as looked up
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("hasCatalogue");
    const auto detected = [](const char *name, const QString &locale, const QString &beginning,
                             const QString &code, bool hasCatalogue = true) {
        QTest::newRow(name) << QString() << locale << beginning << code << hasCatalogue;
    };
    detected("French Canada", u"fr_CA"_s, u"fr"_s, u"fr"_s);
    detected("British", u"en_GB"_s, u"en"_s, u"en"_s);
    detected("German", u"de_DE"_s, u"de"_s, u"de"_s);
    detected("Japanese", u"ja_JP"_s, u"ja"_s, u"ja"_s);
    detected("Mexican", u"es_MX"_s, u"es"_s, u"es"_s);
    detected("Korean", u"ko_KR"_s, u"ko"_s, u"ko"_s);
    detected("Dutch", u"nl_NL"_s, u"nl"_s, u"nl"_s);
    detected("Brazilian", u"pt_BR"_s, u"pt"_s, u"pt"_s);
    detected("Italian", u"it_IT"_s, u"it"_s, u"it"_s);
    detected("mainland China", u"zh_CN"_s, u"zh"_s, u"zh_CN"_s, false);
    detected("Taiwan is not told apart", u"zh_TW"_s, u"zh"_s, u"zh_CN"_s, false);
    detected("Russian has no catalogue", u"ru_RU"_s, u"ru"_s, u"en"_s);
    detected("Filipino by its first two letters", u"fil_PH"_s, u"fi"_s, u"en"_s);
    detected("no locale", u"C"_s, u"C"_s, u"en"_s);

    const auto chosen = [](const char *name, const QString &code, bool hasCatalogue) {
        QTest::newRow(name) << code << u"de_DE"_s << QString() << code << hasCatalogue;
    };
    chosen("stored Taiwan", u"zh_TW"_s, true);
    chosen("stored French", u"fr"_s, true);
    chosen("stored source texts", u"zh_CN"_s, false);
    chosen("stored, unsupported", u"xx"_s, false);
    chosen("stored, unsupported country of a supported language", u"fr_CA"_s, false);
    chosen("stored, in capitals", u"FR"_s, false);
}

void tst_StartupLanguage::theSystemDecidesUnlessTheUserDid()
{
    QFETCH(const QString, stored);
    QFETCH(const QString, locale);
    QFETCH(const QString, beginning);
    QFETCH(const QString, code);
    QFETCH(const bool, hasCatalogue);

    QStringList choice{u"debug [Main] User language from settings: \"%1\""_s.arg(stored)};
    if (stored.isEmpty())
        choice += {u"debug [Main] System language: \"%1\""_s.arg(beginning),
                   u"debug [Main] Auto-detected: \"%1\""_s.arg(code)};
    else
        choice += u"debug [Main] Using user language: \"%1\""_s.arg(code);
    const QString path = u":/translations/quorvex_%1.qm"_s.arg(code);
    const QStringList ending =
        hasCatalogue ? QStringList{u"debug [Main] ✓ Translation loaded successfully: \"%1\""_s.arg(code),
                                   u"log [INFO] Loaded translation: %1"_s.arg(code)}
                     : QStringList{u"debug [Main] ✗ Failed to load translation file: \"%1\""_s.arg(path),
                                   u"debug [Main] Falling back to English"_s};
    QString text = QString::fromUtf8(sample);
    if (hasCatalogue) {
        QTranslator catalogue;
        QVERIFY(catalogue.load(languages::catalogue(code)));
        text = catalogue.translate("ProgressPage", sample);
        QVERIFY(!text.isEmpty());
        QVERIFY(text != QString::fromUtf8(sample));
    }

    store(stored);
    const Outcome outcome = run(locale);
    QCOMPARE(outcome.trace, expectedTrace(choice, code, hasCatalogue, ending));
    QCOMPARE(outcome.others, QStringList());
    QCOMPARE(outcome.code, code);
    QCOMPARE(outcome.text, text);
    // The choice of the language stores nothing.
    QCOMPARE(outcome.stored, stored);
    QCOMPARE(outcome.storedKeys.size(), stored.isEmpty() ? 1 : 2);
}

void tst_StartupLanguage::everyLanguageButTheSourceHasACatalogue_data()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : languages::codes()) {
        if (code != u"zh_CN"_s)
            QTest::newRow(qPrintable(code)) << code;
    }
}

void tst_StartupLanguage::everyLanguageButTheSourceHasACatalogue()
{
    QFETCH(const QString, code);
    QTranslator catalogue;
    QVERIFY(catalogue.load(languages::catalogue(code)));
    const QString text = catalogue.translate("ProgressPage", sample);
    QVERIFY(!text.isEmpty());
    QVERIFY(text != QString::fromUtf8(sample));
    QVERIFY(!QFile::exists(languages::catalogue(u"zh_CN"_s)));
}

void tst_StartupLanguage::everyLanguageIsWhole_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("button");
    QTest::newRow("en") << u"en"_s << u"Data Wipe"_s << u"Cancel"_s;
    QTest::newRow("fr") << u"fr"_s << QString() << u"Annuler"_s;
    QTest::newRow("de") << u"de"_s << QString() << u"Abbrechen"_s;
    QTest::newRow("ja") << u"ja"_s << QString() << u"キャンセル"_s;
    QTest::newRow("es") << u"es"_s << QString() << u"Cancelar"_s;
    QTest::newRow("ko") << u"ko"_s << QString() << u"취소"_s;
    QTest::newRow("nl") << u"nl"_s << QString() << u"Annuleren"_s;
    QTest::newRow("pt") << u"pt"_s << QString() << u"Cancelar"_s;
    QTest::newRow("it") << u"it"_s << QString() << u"Annulla"_s;
    QTest::newRow("zh_TW") << u"zh_TW"_s << QString() << u"取消"_s;
    QTest::newRow("zh_CN") << u"zh_CN"_s << u"数据擦除"_s << u"取消"_s;
    QTest::newRow("a language that there is not") << u"xx"_s << u"Data Wipe"_s << u"Cancel"_s;
}

void tst_StartupLanguage::everyLanguageIsWhole()
{
    QFETCH(const QString, code);
    QFETCH(const QString, english);
    store(code);
    const Outcome outcome = run(u"de_DE"_s);
    QTEST(outcome.button, "button");
    if (!english.isEmpty())
        QCOMPARE(outcome.english, english);
    else
        QVERIFY(outcome.english != u"Data Wipe"_s);
}

// Texts from another catalogue.
void tst_StartupLanguage::theSupplementHasEveryEnglishText()
{
    QTranslator supplement;
    QVERIFY(supplement.load(languages::supplement(u"zh_CN"_s)));
    for (const auto &[context, text] :
         {std::pair("MainWindow", "Confirm Stop"), std::pair("FileSelectPage", "Remove"),
          std::pair("Cli", "Lists the drives with their volumes"), std::pair("TitleBar", "Language"),
          std::pair("OutcomeRecord", "entries could not be removed"),
          std::pair("CertificateDialog", "Data Erasure Certificate"),
          std::pair("WipeTask", "File not found: %1")})
        QVERIFY2(!supplement.translate(context, text).isEmpty(), text);
    QVERIFY(!QFile::exists(languages::supplement(u"de"_s)));
}

// Qt cannot install a translator before the application exists.
void tst_StartupLanguage::aRefusedInstallationIsTold()
{
    store(u"fr"_s);
    const Outcome outcome = run(u"de_DE"_s, u"without-application"_s);
    QCOMPARE(outcome.trace, expectedTrace({u"debug [Main] User language from settings: \"fr\""_s,
                                           u"debug [Main] Using user language: \"fr\""_s},
                                          u"fr"_s, true, {u"debug [Main] ✗ Failed to install translator"_s}));
    QCOMPARE(outcome.others.size(), 1); // Qt's own
    QCOMPARE(outcome.code, u"fr"_s);
    QCOMPARE(outcome.text, QString::fromUtf8(sample));
}

static int runSuite(int argc, char *argv[])
{
    userdata::hide();
    if (argc > 3 && qstrcmp(argv[1], "--choose") == 0)
        return choose(argc, argv);
    QCoreApplication application(argc, argv);
    tst_StartupLanguage suite;
    return QTest::qExec(&suite, argc, argv);
}
QUORVEX_SUITE_RUN(tst_StartupLanguage, runSuite)
#include "tst_startuplanguage.moc"
