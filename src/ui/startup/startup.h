#pragma once

/// The desktop program from its first to its last step: identity, log, language, font, window, event loop.
/// The exit code of the loop. argc must outlive it; no argument of the command line means anything.
int runDesktopProgram(int &argc, char **argv);
