#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// Questions to devices that may never answer: each runs on a thread of its own, and whoever asks waits for a
/// limited time. A device that owes an answer is not asked again before it has given it. The threads that
/// still wait then are joined when they are through, the last of them at the end of the program. Any thread.
namespace limitedquestion {

/// Longer than a drive takes to wake up.
inline constexpr std::chrono::milliseconds DefaultLimit{20'000};
/// For all questions from now on.
void setLimit(std::chrono::milliseconds limit);

/// False when the question was not answered in time, or not asked. What it throws in time is thrown here.
bool ask(const QString &device, const std::function<void()> &question);

/// The same, with what the question answers. It must not refer to anything that whoever asks may take away.
template <typename Answer>
std::optional<Answer> answerOf(const QString &device, std::function<Answer()> question)
{
    const auto answer = std::make_shared<std::optional<Answer>>();
    const bool isAnswered =
        ask(device, [answer, question = std::move(question)] { answer->emplace(question()); });
    return isAnswered ? std::move(*answer) : std::nullopt;
}

} // namespace limitedquestion
