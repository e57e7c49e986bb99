#pragma once

#include "cli/outcome.h"

#include <QStringList>

#include <optional>

namespace cli {

class CliIo;

struct ConfirmationOptions
{
    bool skipQuestion = false;
    bool json = false; ///< standard output takes only JSON
    bool quiet = false;
};

/// Prints the summary of what is destroyed and asks for the word ERASE. Nothing when the user has agreed.
/// Refused when the user has not agreed or cannot be asked; Cancelled when a stop was requested meanwhile.
std::optional<Refusal> confirm(const QStringList &summary, const ConfirmationOptions &options, CliIo &io);

} // namespace cli
