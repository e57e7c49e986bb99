#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// Runs queries to devices that may never answer. Each query runs on a thread of its own, and the caller
/// waits for a limited time. A device with an unanswered query is not queried again until that query returns.
/// Threads that are still blocked are joined when they finish, at the latest at the end of the program. Any
/// thread.
namespace limitedquestion {

/// Longer than a drive takes to wake up.
inline constexpr std::chrono::milliseconds DefaultLimit{20'000};
/// For all later queries.
void setLimit(std::chrono::milliseconds limit);

/// False when the query was not answered in time or not run. An exception that it throws in time is rethrown
/// here.
bool ask(const QString &device, const std::function<void()> &question);

/// The same with the return value of the query. The query may outlive the call: it must not refer to the
/// caller's objects.
template <typename Answer>
std::optional<Answer> answerOf(const QString &device, std::function<Answer()> question)
{
    const auto answer = std::make_shared<std::optional<Answer>>();
    const bool isAnswered =
        ask(device, [answer, question = std::move(question)] { answer->emplace(question()); });
    return isAnswered ? std::move(*answer) : std::nullopt;
}

} // namespace limitedquestion
