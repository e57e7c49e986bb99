#include "platform/windowframe.h"

namespace platform {

class WindowFrame::Private
{};

WindowFrame::WindowFrame(quintptr, Owner &)
{}

WindowFrame::~WindowFrame() = default;

} // namespace platform
