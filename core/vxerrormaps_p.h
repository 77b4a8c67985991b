// Not part of the public interface. From error numbers to the causes of file exceptions.
#pragma once

#include <VxMFCEmu/types.h>

#include <array>

namespace vx::detail {

// clang-format off

/// Causes of the C library's numbers 1 to 36.
/// Intended: kept by number, whatever the number means on Linux.
inline constexpr std::array<BYTE, 36> kErrnoCauses = {
//  x1  x2  x3  x4  x5  x6  x7  x8  x9  x0
     5,  2,  1,  1, 10,  1,  1,  1,  6,  1,   //  1 - 10
     1,  1,  5,  1,  1,  1,  1,  1,  1,  1,   // 11 - 20
     1, 10,  2,  4,  1,  1,  1, 13,  1,  1,   // 21 - 30
     1,  1,  1,  1,  1, 11,                   // 31 - 36
};

struct OsErrorCause
{
    WORD osError;
    BYTE cause;
};

/// Causes of the Win32 numbers; a number that is not here has the generic cause.
inline constexpr OsErrorCause kOsErrorCauses[] = {
    // file not found
    {2, 2}, {6, 2}, {18, 2}, {107, 2},
    // bad path
    {3, 3}, {15, 3}, {17, 3}, {34, 3}, {52, 3}, {53, 3}, {55, 3}, {67, 3}, {70, 3}, {85, 3},
    {111, 3}, {123, 3}, {124, 3}, {125, 3}, {144, 3}, {154, 3}, {161, 3}, {206, 3}, {208, 3}, {267, 3},
    // too many open files
    {4, 4}, {36, 4}, {68, 4}, {113, 4},
    // access denied
    {5, 5}, {12, 5}, {19, 5}, {29, 5}, {54, 5}, {58, 5}, {64, 5}, {65, 5}, {71, 5}, {80, 5},
    {82, 5}, {86, 5}, {170, 5}, {183, 5}, {999, 5},
    // invalid file
    {11, 6}, {26, 6}, {60, 6}, {66, 6}, {114, 6}, {182, 6}, {191, 6}, {193, 6},
    // current directory cannot be removed
    {16, 7}, {145, 7},
    // directory full
    {62, 8},
    // bad seek
    {24, 9}, {25, 9}, {27, 9}, {30, 9}, {131, 9}, {132, 9},
    // hard I/O
    {20, 10}, {21, 10}, {22, 10}, {23, 10}, {57, 10}, {59, 10}, {88, 10}, {117, 10}, {995, 10},
    {996, 10}, {997, 10},
    // sharing violation
    {32, 11},
    // lock violation
    {33, 12}, {108, 12}, {167, 12},
    // disk full
    {39, 13}, {112, 13},
    // end of file
    {38, 14},
};
static_assert(std::size(kOsErrorCauses) == 78);

// clang-format on

inline constexpr BYTE kGenericCause = 1;

/// The same by number, 0 to 999.
inline constexpr auto kCauseOfOsError = [] {
    std::array<BYTE, 1000> causes{};
    for (std::size_t i = 1; i < causes.size(); ++i)
        causes[i] = kGenericCause;
    for (const OsErrorCause& row : kOsErrorCauses)
        causes[row.osError] = row.cause;
    return causes;
}();

} // namespace vx::detail
