#pragma once

#include "cli/outcome.h"

#include <QStringList>

#include <optional>

namespace cli {

class CliIo;

struct ConfirmationOptions
{
    bool skipQuestion = false;
    bool json = false; // standard output is for JSON alone
    bool quiet = false;
};

// Tells what is about to be destroyed and asks for the word ERASE. Nothing when the user has agreed; Refused
// when not, or when there is nobody to ask; Cancelled when a stop was requested meanwhile.
std::optional<Refusal> confirm(const QStringList &summary, const ConfirmationOptions &options, CliIo &io);

} // namespace cli
