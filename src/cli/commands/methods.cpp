#include "cli/command.h"
#include "cli/io/amounttext.h"
#include "cli/io/listoutput.h"
#include "cli/records/recordjson.h"
#include "cli/texts.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString patternText(const PassPattern &pass)
{
    switch (pass.type) {
    case PatternType::Zeros:
        return u"0x00"_s;
    case PatternType::Ones:
        return u"0xFF"_s;
    case PatternType::Custom:
        return u"0x%1"_s.arg(QString::number(pass.value, 16).toUpper(), 2, u'0');
    case PatternType::Random:
        return Cli::tr("random");
    case PatternType::Complement:
        break;
    }
    return Cli::tr("complement");
}

// Equal passes in a row share one entry: "4 x random".
QString passesText(const QList<PassPattern> &passes)
{
    QStringList entries;
    for (qsizetype i = 0, next = 0; i < passes.size(); i = next) {
        next = i + 1;
        while (next < passes.size() && passes.at(next) == passes.at(i))
            ++next;
        QString entry = patternText(passes.at(i));
        if (next - i > 1)
            entry = Cli::tr("%1 x %2").arg(next - i).arg(entry);
        entries.append(passes.at(i).verify ? Cli::tr("%1 (verified)").arg(entry) : entry);
    }
    return entries.join(u", ");
}

QString listText(const QList<WipeMethod> &methods)
{
    QString result;
    for (const WipeMethod &method : methods) {
        result += Cli::tr("%1  %2: %3, level %4 (%5)")
                      .arg(QString::number(method.type), method.name, passCountText(method.passCount()),
                           QString::number(method.level), method.levelName()) +
                  u"\n   "_s + method.description + u"\n   "_s + passesText(method.passes) + u'\n';
    }
    return result;
}

Outcome<ExitCode> run(const CommandContext &context)
{
    return printList(context, WipeMethod::allMethods(), writeMethod, listText);
}

} // namespace

Command methodsCommand()
{
    Command command;
    command.words = QStringList{u"methods"_s};
    command.summary = Cli::tr("Lists the erasure standards with their passes");
    command.example = u"methods"_s;
    command.run = run;
    return command;
}

} // namespace cli
