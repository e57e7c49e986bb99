#include "cli/commandline.h"
#include "fuzz/checks.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>
#include <cstdint>

// Arguments come from scripts and from names of files; in the input a line is one argument.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static std::array<char, 8> name{"quorvex"};
    static std::array<char *, 2> words{name.data(), nullptr};
    static int count = 1;
    static const QCoreApplication program(count, words.data());

    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QStringList arguments = QString::fromUtf8(text).split(u'\n');
    static_cast<void>(cli::languageFor(arguments, QStringLiteral("de_DE")));
    const cli::Outcome<cli::CommandLine> parsed = cli::parseCommandLine(arguments);
    if (!parsed) {
        require(!parsed.refusal().message.isEmpty(), "a refusal says why");
        require(parsed.refusal().code == cli::WrongCommandLine,
                "a wrong command line has the exit code for it");
        return 0;
    }
    if (parsed->wish != cli::CommandLine::Wish::Run)
        return 0;
    require(parsed->command.run != nullptr, "what is to run can run");
    require(parsed->arguments.size() >= parsed->command.minimumArguments, "no argument is missing");
    require(parsed->command.maximumArguments < 0 ||
                parsed->arguments.size() <= parsed->command.maximumArguments,
            "no argument is too many");
    for (const QString &argument : parsed->arguments)
        require(arguments.contains(argument), "an argument is one of those given");
    return 0;
}
