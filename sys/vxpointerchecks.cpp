#include <VxMFCEmu/sys/pointerchecks.h>

BOOL IsBadReadPtr_E(LPCVOID lp, UINT_PTR ucb) { return ucb == 0 || !lp; }

BOOL IsBadWritePtr_E(LPVOID lp, UINT_PTR) { return !lp; }

BOOL IsBadStringPtr_E(LPCWSTR lpsz, UINT_PTR ucchMax) { return ucchMax != 0 && !lpsz; }
