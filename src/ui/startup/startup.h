#pragma once

/// Runs the desktop program: identity, log, language, font, window, event loop. Returns the exit code of the
/// loop. argc must outlive the call. The arguments are ignored.
int runDesktopProgram(int &argc, char **argv);
