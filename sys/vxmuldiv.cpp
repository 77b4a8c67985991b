#include <VxMFCEmu/sys/muldiv.h>

int MulDiv_E(int nNumber, int nNumerator, int nDenominator)
{
    const LONGLONG quotient = LONGLONG{nNumber} * nNumerator / nDenominator;
    return quotient > 0x7FFFFFFF ? -1 : static_cast<int>(quotient);
}
