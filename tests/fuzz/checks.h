#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, which counts as a finding, and says what did not hold.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
