// What a fuzz target says when a property does not hold: the engine keeps the input.
#pragma once

#include <cstdio>
#include <cstdlib>

#define VXMFC_REQUIRE(condition)                                                                   \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);    \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
