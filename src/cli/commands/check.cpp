#include "cli/commandline.h"
#include "cli/commands/zerocheck.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/io/paths.h"
#include "cli/records/reportcomparison.h"
#include "cli/records/reportstore.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/jsonwriter.h"
#include "model/units.h"

#include <QFile>
#include <QFileInfo>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Far larger than any report.
constexpr qint64 LargestReport = 64 * MiB;

QStringList words()
{
    return {u"check"_s};
}

Outcome<QByteArray> readReport(const QString &given)
{
    const QString shown = displayText(given);
    QFile file(absolutePath(given));
    // Reading a pipe would block.
    if (!QFileInfo(file).isFile())
        return Refusal{Refused, Cli::tr("%1 is no file").arg(shown)};
    if (!file.open(QIODevice::ReadOnly))
        return Refusal{Refused, Cli::tr("%1 cannot be read: %2").arg(shown, file.errorString())};
    if (file.size() > LargestReport)
        return Refusal{Refused, Cli::tr("%1 is too large for a report").arg(shown)};
    QByteArray json = file.readAll();
    if (file.error() != QFile::NoError)
        return Refusal{Refused, Cli::tr("%1 cannot be read: %2").arg(shown, file.errorString())};
    return json;
}

QString differenceText(const Difference &difference)
{
    if (difference.field.isEmpty())
        return Cli::tr("the fields are alike, but not the text, from byte %1 on").arg(difference.position);
    const QString nothing = Cli::tr("nothing");
    const auto shown = [&nothing](const QString &json) {
        return json.isEmpty() ? nothing : displayText(json);
    };
    return Cli::tr("the first field that differs is %1: %2 in the record, %3 in the file")
        .arg(displayText(difference.field), shown(difference.inRecord), shown(difference.inFile));
}

// Prints the result as one object or one line.
ExitCode tell(const CommandContext &context, const QString &id, const QString &text,
              const std::optional<Difference> &difference, bool isSame)
{
    if (wantsJson(context.options)) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        writer.beginObject().member(u"certificateId", id).member(u"same", isSame);
        if (difference)
            writer.member(u"field", difference->field).decimalMember(u"position", difference->position);
        context.io.printLine(writer.member(u"message", text).endObject().text());
    } else {
        context.io.printLine(text);
    }
    return isSame ? Done : JobFailed;
}

Outcome<ExitCode> checkReport(const CommandContext &context)
{
    const QString &given = context.arguments.constFirst();
    const auto file = readReport(given);
    if (!file)
        return file.refusal();
    const QString id = certificateIdIn(*file);
    const QString shown = displayText(given);
    if (id.isEmpty())
        return tell(context, id, Cli::tr("NOT THE SAME: %1 is no report").arg(shown), {}, false);
    const auto store = ReportStore::open(context.options);
    if (!store)
        return store.refusal();
    const auto record = findStoredReport(**store, id);
    if (!record && record.refusal().code != Refused)
        return record.refusal();
    const QString shownId = displayText(id);
    if (!record) {
        return tell(context, id, Cli::tr("NOT THE SAME: the database has no record of %1").arg(shownId), {},
                    false);
    }
    const auto difference = compareReports(*record, *file);
    if (!difference)
        return tell(context, id, Cli::tr("THE SAME: %1 is the record of %2").arg(shown, shownId), {}, true);
    return tell(context, id, Cli::tr("NOT THE SAME: %1").arg(differenceText(*difference)), difference, false);
}

Outcome<ExitCode> checkForZeros(const CommandContext &context)
{
    const QString &given = context.arguments.constFirst();
    const auto check = checkZeros(given, context.io.stopRequest());
    if (!check)
        return check.refusal();
    const bool isZero = check->firstOther < 0;
    if (wantsJson(context.options)) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        writer.beginObject().member(u"zeros", isZero).decimalMember(u"bytes", check->bytesRead);
        if (!isZero)
            writer.decimalMember(u"offset", check->firstOther).member(u"value", check->otherByte);
        context.io.printLine(writer.endObject().text());
    } else if (isZero) {
        context.io.printLine(Cli::tr("ALL ZERO: every one of the %1 bytes of %2 is 0x00")
                                 .arg(QString::number(check->bytesRead), displayText(given)));
    } else {
        const QString byte = u"0x%1"_s.arg(QString::number(check->otherByte, 16).toUpper(), 2, u'0');
        context.io.printLine(Cli::tr("NOT ZERO: byte %1 of %2 is %3")
                                 .arg(QString::number(check->firstOther), displayText(given), byte));
    }
    return isZero ? Done : JobFailed;
}

Outcome<ExitCode> run(const CommandContext &context)
{
    if (context.arguments.constFirst().isEmpty())
        return wrongCommandLine(Cli::tr("a path is empty"), words());
    return context.options.isSet(u"zeros"_s) ? checkForZeros(context) : checkReport(context);
}

} // namespace

Command checkCommand()
{
    Command command;
    command.words = words();
    command.synopsis = u"FILE"_s;
    command.summary =
        Cli::tr("Compares an exported report with its record, or looks for bytes that are left");
    command.details =
        Cli::tr("FILE is a report as JSON, or with --zeros an image file or a drive, which is only "
                "read.");
    command.example = u"check report.json"_s;
    command.options = {
        {u"zeros"_s, Cli::tr("Read FILE through and say whether every byte is 0x00")},
    };
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace cli
