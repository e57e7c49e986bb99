#include "cli/command.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/io/table.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/jsonwriter.h"
#include "model/version.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/diagnosis.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Describes a file without opening it, because opening a database may repair it.
diagnosis::Answer aboutFile(const QString &question, const QString &path)
{
    const auto info = platform::Platform::current().files().info(path);
    const QString text = info ? u"%1, %2 bytes"_s.arg(path).arg(info.value().size) : QString();
    return {question, text, info.status()};
}

diagnosis::Section aboutProgram(const CommandContext &context)
{
    const DataFolder data = dataFolder(context.options);
    diagnosis::Section section{u"program"_s};
    section.answers = {{u"version"_s, programTitle()},
                       {u"path"_s, QCoreApplication::applicationFilePath()},
                       {u"data folder"_s, data.path},
                       aboutFile(u"database"_s, data.database()),
                       aboutFile(u"log"_s, data.log())};
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys()) {
        if (name.startsWith(u"QUORVEX_"_s))
            section.answers.append({name, environment.value(name)});
    }
    return section;
}

QString failureText(const platform::Status &failure)
{
    QString text = u"error %1"_s.arg(failure.code);
    if (failure.native != 0)
        text += u" (system error %1: %2)"_s.arg(failure.native).arg(failure.systemText().trimmed());
    const QLatin1String call(failure.operation);
    return call.isEmpty() ? text : text + u", "_s + call;
}

QString sectionText(const diagnosis::Section &section)
{
    Table table;
    for (const diagnosis::Answer &answer : section.answers) {
        table.addRow({displayText(answer.question),
                      answer.failure ? displayText(answer.text) : failureText(answer.failure)});
    }
    return displayText(section.subject) + u'\n' + table.text(2);
}

void writeAnswer(JsonWriter &writer, const diagnosis::Answer &answer)
{
    writer.beginObject().member(u"question", answer.question);
    if (answer.failure) {
        writer.member(u"answer", answer.text);
    } else {
        writer.decimalMember(u"code", answer.failure.code)
            .decimalMember(u"systemError", answer.failure.native)
            .member(u"systemText", answer.failure.systemText().trimmed())
            .member(u"call", QLatin1String(answer.failure.operation));
    }
    writer.endObject();
}

QByteArray jsonText(const QList<diagnosis::Section> &sections)
{
    JsonWriter writer(JsonWriter::Layout::Compact);
    writer.beginArray();
    for (const diagnosis::Section &section : sections) {
        writer.beginObject().member(u"subject", section.subject).key(u"answers").beginArray();
        for (const diagnosis::Answer &answer : section.answers)
            writeAnswer(writer, answer);
        writer.endArray().endObject();
    }
    return writer.endArray().text();
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const QList<diagnosis::Section> sections =
        QList{aboutProgram(context), diagnosis::system()} + diagnosis::devices();
    if (wantsJson(context.options)) {
        context.io.printLine(jsonText(sections));
        return Done;
    }
    for (const diagnosis::Section &section : sections)
        context.io.print(sectionText(section));
    return Done;
}

} // namespace

Command doctorCommand()
{
    Command command;
    command.words = QStringList{u"doctor"_s};
    command.summary = Cli::tr("Tells what drives and volumes answer, for whoever helps from afar");
    command.details = Cli::tr("Nothing is written. The answers are in English in every language and have "
                              "serial numbers and paths in them: look through them before you send them on.");
    command.example = u"doctor --json"_s;
    command.run = run;
    return command;
}

} // namespace cli
