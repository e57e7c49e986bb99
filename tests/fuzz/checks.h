#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program with the failed condition's text, which counts as a finding.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
