#include "markingtranslator.h"
#include "model/joboutcome.h"
#include "model/wipetask.h"
#include "support/suite.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <limits>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

class tst_JobOutcome : public QObject
{
    Q_OBJECT

private slots:
    void whatHasNotEndedIsNotComplete();
    void everyKindHasANameAndALine();
    void everyKindIsPartialOrANote();
    void unknownNamesAreNoKind();
    void completeBecomesPartial();
    void notesLeaveAJobComplete();
    void aSummaryOfSomeKindsTellsHowManyMore();
    void failedAndCancelledStay();
    void theSameIsToldOnce();
    void placesBeyondTheMostAreCounted();
    void linesNameTheKindOnce();
    void summarySaysHowItEnded();
    void whatReachedTheMediumIsToldWhereItDiffers();
    void textsAreTranslated();
    void jsonIsAsDocumented();
    void jsonComesBack();
    void strangeTextIsNoOutcome();
    void aLaterVersionIsReadAsFarAsItIsKnown();
    void aForgedCompletenessIsPartial();
    void anyTextIsRead();
    void taskKeepsIt();
    void whatATaskLeavesOutMakesItPartial();
    void taskIsSafeAcrossThreads();
};

void tst_JobOutcome::whatHasNotEndedIsNotComplete()
{
    QCOMPARE(OutcomeRecord().outcome(), JobOutcome::Failed);
    QCOMPARE(WipeTask().outcome(), OutcomeRecord());
}

void tst_JobOutcome::everyKindHasANameAndALine()
{
    static const QRegularExpression kebab(u"^[a-z]+(-[a-z]+)*$"_s);
    QSet<QString> names;
    QSet<QString> texts;
    for (const ShortfallKind kind : allShortfallKinds()) {
        QVERIFY2(kebab.match(kindName(kind)).hasMatch(), qPrintable(kindName(kind)));
        QCOMPARE(kindFromName(kindName(kind)), kind);
        QVERIFY(!kindText(kind).isEmpty() && !kindText(kind).contains(u'\n'));
        names.insert(kindName(kind));
        texts.insert(kindText(kind));
    }
    QCOMPARE(names.size(), 27);
    QCOMPARE(texts.size(), 27);
    QCOMPARE(allShortfallKinds().last(), ShortfallKind::NoFreeByte);
    // Scripts and databases use these words.
    QCOMPARE(kindName(ShortfallKind::OnlyVolumes), u"only-volumes");
    QCOMPARE(kindName(ShortfallKind::ContentElsewhere), u"content-elsewhere");
    QCOMPARE(kindName(ShortfallKind::NotReadBack), u"not-read-back");
}

void tst_JobOutcome::everyKindIsPartialOrANote()
{
    QStringList notes;
    for (const ShortfallKind kind : allShortfallKinds()) {
        if (!makesPartial(kind))
            notes.append(kindName(kind));
    }
    QCOMPARE(notes,
             (QStringList{u"not-read-back"_s, u"read-back-impossible"_s, u"reserve-kept"_s, u"other-names"_s,
                          u"copy-on-write"_s, u"shadow-copies"_s, u"cloud-copy"_s, u"no-free-byte"_s}));
}

void tst_JobOutcome::unknownNamesAreNoKind()
{
    for (const QString &name : {u""_s, u"Only-Volumes"_s, u"only-volumes "_s, u"everything"_s})
        QVERIFY(!kindFromName(name));
}

void tst_JobOutcome::completeBecomesPartial()
{
    OutcomeRecord before;
    before.note({ShortfallKind::RoomLeft});
    before.setOutcome(JobOutcome::Complete);
    QCOMPARE(before.outcome(), JobOutcome::Partial);

    OutcomeRecord after(JobOutcome::Complete);
    QCOMPARE(after.outcome(), JobOutcome::Complete);
    after.note({ShortfallKind::RoomLeft});
    QCOMPARE(after.outcome(), JobOutcome::Partial);
    QVERIFY(after.hasShortfalls());
    QCOMPARE(after.shortfallKinds(), QList{ShortfallKind::RoomLeft});
}

void tst_JobOutcome::notesLeaveAJobComplete()
{
    OutcomeRecord record(JobOutcome::Complete);
    record.note({ShortfallKind::NotReadBack});
    QCOMPARE(record.outcome(), JobOutcome::Complete);
    QVERIFY(!record.hasShortfalls());
    QVERIFY(record.shortfallKinds().isEmpty());
    QVERIFY(record.has(ShortfallKind::NotReadBack));
    QCOMPARE(record.notes(), QList{Shortfall{ShortfallKind::NotReadBack}});
    QVERIFY(record.shortfalls().isEmpty());
}

void tst_JobOutcome::failedAndCancelledStay()
{
    for (const JobOutcome outcome : {JobOutcome::Failed, JobOutcome::Cancelled}) {
        OutcomeRecord record;
        record.note({ShortfallKind::OnlyVolumes});
        record.setOutcome(outcome);
        record.note({ShortfallKind::RoomLeft});
        QCOMPARE(record.outcome(), outcome);
    }
}

void tst_JobOutcome::theSameIsToldOnce()
{
    OutcomeRecord record;
    record.note({ShortfallKind::VolumeInUse, u"E:"_s, 100, -1});
    record.note({ShortfallKind::VolumeInUse, u"E:"_s, 50, 3});
    record.note({ShortfallKind::VolumeInUse, u"F:"_s, -1, -1});
    record.note({ShortfallKind::VolumeEndedEarly, u"E:"_s, 7, -1});
    QCOMPARE(record.shortfalls(), (QList<Shortfall>{{ShortfallKind::VolumeEndedEarly, u"E:"_s, 7, -1},
                                                    {ShortfallKind::VolumeInUse, u"E:"_s, 100, 3},
                                                    {ShortfallKind::VolumeInUse, u"F:"_s, -1, -1}}));
}

void tst_JobOutcome::placesBeyondTheMostAreCounted()
{
    OutcomeRecord record;
    for (int i = 0; i < OutcomeRecord::MostPlaces; ++i)
        record.note({ShortfallKind::EntryVanished, QString::number(i), 1, -1});
    QCOMPARE(record.further(ShortfallKind::EntryVanished), OutcomeRecord::Further());
    record.note({ShortfallKind::EntryVanished, u"a"_s, -1, -1});
    QCOMPARE(record.further(ShortfallKind::EntryVanished), (OutcomeRecord::Further{1, -1}));
    record.note({ShortfallKind::EntryVanished, u"b"_s, 20, -1});
    record.note({ShortfallKind::EntryVanished, u"c"_s, 30, -1});
    record.note({ShortfallKind::EntryVanished, u"7"_s, 9, -1}); // already listed
    QCOMPARE(record.shortfalls().size(), OutcomeRecord::MostPlaces);
    QCOMPARE(record.further(ShortfallKind::EntryVanished), (OutcomeRecord::Further{3, 50}));
    QVERIFY2(record.shortfallLines().constFirst().endsWith(u": 0, 1, 2 and 100 more (158 B)"_s),
             qPrintable(record.shortfallLines().constFirst()));

    record.note({ShortfallKind::EntryVanished, u"d"_s, std::numeric_limits<qint64>::max(), -1});
    QCOMPARE(record.further(ShortfallKind::EntryVanished).bytes, std::numeric_limits<qint64>::max());
}

void tst_JobOutcome::linesNameTheKindOnce()
{
    OutcomeRecord record;
    QVERIFY(record.shortfallLines().isEmpty());
    record.note({ShortfallKind::NotReadBack});
    record.note({ShortfallKind::FillFilesLeft, u"/a"_s, 1024, 2});
    record.note({ShortfallKind::FillFilesLeft, u"/b\n"_s, 1024, -1});
    record.note({ShortfallKind::OnlyVolumes});
    const QStringList lines = record.shortfallLines();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], kindText(ShortfallKind::OnlyVolumes));
    QVERIFY2(lines[1].startsWith(u"fill files were left behind: /a, /b"_s), qPrintable(lines[1]));
    QVERIFY(!lines[1].contains(u'\n'));
    QVERIFY(lines[1].endsWith(u" (2.00 KB)"_s));
    QCOMPARE(record.noteLines(), QStringList{kindText(ShortfallKind::NotReadBack)});
}

void tst_JobOutcome::summarySaysHowItEnded()
{
    OutcomeRecord record(JobOutcome::Complete);
    record.note({ShortfallKind::NotReadBack});
    QCOMPARE(record.summary(), QString());
    record.note({ShortfallKind::OnlyVolumes});
    record.note({ShortfallKind::RoomLeft});
    QCOMPARE(record.summary(),
             u"Partly erased: only the mounted volumes are erased, not the rest of the drive; free space was "
             "left that could not be filled"_s);
    record.setOutcome(JobOutcome::Failed);
    QCOMPARE(record.summary(), u"Not completely erased: the job failed"_s);
    record.setOutcome(JobOutcome::Cancelled);
    QCOMPARE(record.summary(), u"Not completely erased: the job was cancelled"_s);
}

void tst_JobOutcome::whatReachedTheMediumIsToldWhereItDiffers()
{
    OutcomeRecord record(JobOutcome::Complete);
    QVERIFY(record.written() < 0);
    QCOMPARE(record.writtenText(0), QString()); // not counted
    QVERIFY(!record.toJson().contains("written"));
    record.addWritten(0);
    QCOMPARE(record.written(), 0);
    QCOMPARE(record.writtenText(0), QString());
    record.addWritten(1024);
    record.addWritten(1024);
    QCOMPARE(record.writtenText(0), u"Written to the medium: 2.00 KB"_s);
    QCOMPARE(record.writtenText(2048), QString());
    QVERIFY(record.toJson().contains(R"("outcome":"complete","written":"2048",)"));
    QCOMPARE(OutcomeRecord::fromJson(record.toJson()), record);
    QCOMPARE(OutcomeRecord::fromJson(R"({"schemaVersion":1,"outcome":"complete","written":"-5"})"),
             OutcomeRecord(JobOutcome::Complete));
}

void tst_JobOutcome::textsAreTranslated()
{
    const MarkingTranslator translator;
    for (const ShortfallKind kind : allShortfallKinds())
        QVERIFY(kindText(kind).startsWith(u"<OutcomeRecord>"_s));
    OutcomeRecord record;
    for (int i = 0; i < 4; ++i)
        record.note({ShortfallKind::RoomLeft, QString::number(i)});
    record.setOutcome(JobOutcome::Complete);
    QCOMPARE(record.shortfallLines(),
             QStringList{u"<OutcomeRecord><OutcomeRecord>free space was left that could not be filled: "
                         "0, 1, 2 <OutcomeRecord>and 1 more"_s});
    QCOMPARE(record.summary(), u"<OutcomeRecord>Partly erased: "_s + kindText(ShortfallKind::RoomLeft));
    QVERIFY(OutcomeRecord(JobOutcome::Failed).summary().startsWith(u"<OutcomeRecord>"_s));
    record.addWritten(1);
    QVERIFY(record.writtenText(0).startsWith(u"<OutcomeRecord>"_s));
    QVERIFY(OutcomeRecord(JobOutcome::Cancelled).summary().startsWith(u"<OutcomeRecord>"_s));
}

void tst_JobOutcome::jsonIsAsDocumented()
{
    OutcomeRecord record(JobOutcome::Complete);
    QCOMPARE(record.toJson(),
             R"({"schemaVersion":1,"outcome":"complete","shortfalls":[],"notes":[],"further":[]})");
    record.note({ShortfallKind::OtherNames, u"/x"_s, -1, 2});
    record.note({ShortfallKind::OnlyVolumes, {}, 9007199254740993, -1});
    QCOMPARE(record.toJson(),
             R"({"schemaVersion":1,"outcome":"partial","shortfalls":[{"kind":"only-volumes","place":"",)"
             R"("bytes":"9007199254740993"}],"notes":[{"kind":"other-names","place":"/x","count":"2"}],)"
             R"("further":[]})");

    OutcomeRecord volumes(JobOutcome::Complete);
    volumes.addVolume(u"E:"_s);
    volumes.addVolume(u"/media/ä"_s);
    volumes.addVolume(u"E:"_s);
    QCOMPARE(volumes.toJson(), R"({"schemaVersion":1,"outcome":"complete","volumes":["E:","/media/ä"],)"
                               R"("shortfalls":[],"notes":[],"further":[]})");
    QCOMPARE(OutcomeRecord::fromJson(volumes.toJson()), volumes);
    QCOMPARE(volumes.volumes(), (QStringList{u"E:"_s, u"/media/ä"_s}));
}

void tst_JobOutcome::jsonComesBack()
{
    for (const JobOutcome outcome :
         {JobOutcome::Complete, JobOutcome::Partial, JobOutcome::Failed, JobOutcome::Cancelled}) {
        OutcomeRecord record(outcome);
        QCOMPARE(OutcomeRecord::fromJson(record.toJson()), record);
        for (const ShortfallKind kind : allShortfallKinds())
            record.note({kind, kindName(kind) + u" ä"_s, static_cast<int>(kind), -1});
        for (int i = 0; i < OutcomeRecord::MostPlaces + 5; ++i)
            record.note({ShortfallKind::EntryGrew, QString::number(i), 4, i});
        QCOMPARE(OutcomeRecord::fromJson(record.toJson()), record);
    }
}

void tst_JobOutcome::strangeTextIsNoOutcome()
{
    for (const char *text :
         {"", "null", "[]", "{}", "{", R"({"outcome":"complete"})",
          R"({"schemaVersion":0,"outcome":"complete"})", R"({"schemaVersion":1})",
          R"({"schemaVersion":1,"outcome":"Complete"})", R"({"schemaVersion":"1","outcome":"complete"})",
          R"({"schemaVersion":1,"outcome":1})"})
        QVERIFY2(!OutcomeRecord::fromJson(text), text);
}

void tst_JobOutcome::aLaterVersionIsReadAsFarAsItIsKnown()
{
    const auto record = OutcomeRecord::fromJson(
        R"({"schemaVersion":2,"outcome":"partial","shortfalls":[{"kind":"moon"},{"kind":"room-left","bytes":"-4",)"
        R"("count":7},"x",[1],null],"notes":7,"further":[{"kind":"room-left","places":"2"},{"kind":"moon",)"
        R"("places":"2"},{"kind":"only-volumes","places":"2"},{"kind":"room-left","places":"-2"}],"new":{}})");
    QVERIFY(record);
    QCOMPARE(record->outcome(), JobOutcome::Partial);
    QCOMPARE(record->shortfalls(), QList{Shortfall{ShortfallKind::RoomLeft}});
    QCOMPARE(record->further(ShortfallKind::RoomLeft), (OutcomeRecord::Further{2, -1}));
    QCOMPARE(record->further(ShortfallKind::OnlyVolumes), OutcomeRecord::Further());
}

void tst_JobOutcome::aForgedCompletenessIsPartial()
{
    const auto record =
        OutcomeRecord::fromJson(R"({"schemaVersion":1,"outcome":"complete","notes":[{"kind":"room-left"}]})");
    QVERIFY(record);
    QCOMPARE(record->outcome(), JobOutcome::Partial);
}

void tst_JobOutcome::anyTextIsRead()
{
    // Random bytes of a written record are changed. Whatever can still be read must survive writing and
    // reading again.
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    OutcomeRecord record;
    for (const ShortfallKind kind : allShortfallKinds())
        record.note({kind, u"/home/ä"_s, 1024, 3});
    for (int i = 0; i < OutcomeRecord::MostPlaces + 5; ++i)
        record.note({ShortfallKind::EntryGrew, QString::number(i), 4, i});
    const QByteArray text = record.toJson();
    int read = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray changed = text;
        for (int i = 0; i <= random.bounded(4); ++i)
            changed[random.bounded(changed.size())] = static_cast<char>(random.bounded(256));
        if (random.bounded(8) == 0)
            changed.truncate(random.bounded(changed.size()));
        const auto back = OutcomeRecord::fromJson(changed);
        if (!back)
            continue;
        ++read;
        QCOMPARE(OutcomeRecord::fromJson(back->toJson()), back);
        QVERIFY(back->outcome() != JobOutcome::Complete || !back->hasShortfalls());
    }
    QVERIFY(read > 0);
}

void tst_JobOutcome::taskKeepsIt()
{
    WipeTask task;
    task.noteShortfall({ShortfallKind::VolumeInUse, u"E:"_s});
    task.setOutcome(JobOutcome::Complete);
    QCOMPARE(task.outcome().outcome(), JobOutcome::Partial);
    QCOMPARE(task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::VolumeInUse, u"E:"_s}}));
    QCOMPARE(task.written(), 0);
    task.noteWritten(4096);
    task.noteWritten(4096);
    QCOMPARE(task.written(), 8192);
    QCOMPARE(task.outcome().written(), 8192);
    task.clearOutcome();
    OutcomeRecord fresh;
    fresh.addWritten(0);
    QCOMPARE(task.outcome(), fresh);
}

void tst_JobOutcome::whatATaskLeavesOutMakesItPartial()
{
    const QList<Shortfall> omissions{{ShortfallKind::BinNotEntered, u"/media/stick/.Trash-1000"_s}};
    WipeTask task;
    task.setOmissions(omissions);
    task.clearOutcome();
    QCOMPARE(task.outcome().shortfalls(), omissions);
    task.setOutcome(JobOutcome::Complete);
    QCOMPARE(task.outcome().outcome(), JobOutcome::Partial);
}

void tst_JobOutcome::taskIsSafeAcrossThreads()
{
    // Every place is different, so that all but the first are only counted. Without the lock some would be
    // lost.
    constexpr int writers = 4;
    constexpr int places = 150000;
    WipeTask task;
    std::atomic<bool> go = false;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < writers; ++i) {
        threads.emplace_back(QThread::create([&task, &go, i] {
            go.wait(false);
            for (int place = 0; place < places; ++place)
                task.noteShortfall({ShortfallKind::EntryVanished, u"%1/%2"_s.arg(i).arg(place), 1});
        }));
        threads.back()->start();
    }
    go = true;
    go.notify_all();
    qint64 last = 0;
    int wrong = 0;
    while (last < writers * places - OutcomeRecord::MostPlaces) {
        const OutcomeRecord seen = task.outcome();
        const OutcomeRecord::Further further = seen.further(ShortfallKind::EntryVanished);
        wrong += seen.shortfalls().size() > OutcomeRecord::MostPlaces || further.places < last;
        last = further.places;
        if (std::ranges::all_of(threads, [](const auto &thread) { return thread->isFinished(); }))
            break;
    }
    for (const auto &thread : threads)
        thread->wait();
    QCOMPARE(wrong, 0);
    QCOMPARE(task.outcome().shortfalls().size(), OutcomeRecord::MostPlaces);
    const OutcomeRecord::Further all{writers * places - OutcomeRecord::MostPlaces,
                                     writers * places - OutcomeRecord::MostPlaces};
    QCOMPARE(task.outcome().further(ShortfallKind::EntryVanished), all);
}

void tst_JobOutcome::aSummaryOfSomeKindsTellsHowManyMore()
{
    OutcomeRecord record(JobOutcome::Complete);
    record.note({ShortfallKind::RoomLeft});
    record.note({ShortfallKind::LargeReserve});
    record.note({ShortfallKind::LinkTarget});
    record.note({ShortfallKind::NotReadBack}); // a note, which is not counted
    const QString first = u"Partly erased: "_s + kindText(ShortfallKind::RoomLeft);
    const QString second = u"; "_s + kindText(ShortfallKind::LargeReserve);
    QCOMPARE(record.summary(1), first + u"; and 2 more"_s);
    QCOMPARE(record.summary(2), first + second + u"; and 1 more"_s);
    QCOMPARE(record.summary(3), record.summary());
    QCOMPARE(record.summary(100), record.summary());
    QCOMPARE(record.summary(-1), u"Partly erased: and 3 more"_s);
    QCOMPARE(OutcomeRecord(JobOutcome::Failed).summary(1), OutcomeRecord(JobOutcome::Failed).summary());
}

QUORVEX_SUITE(tst_JobOutcome, QCoreApplication)
#include "tst_joboutcome.moc"
