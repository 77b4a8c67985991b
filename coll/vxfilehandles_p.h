// The handles of files that there are.
#pragma once

#include <VxMFCEmu/types.h>

class CFile_E;

namespace vx::detail {

/// Makes the file's address a handle; closing it deletes the file with @p bOwned.
void rememberFileHandle(CFile_E* pFile, bool bOwned);
void forgetFileHandle(CFile_E* pFile);
/// The file behind a handle; null for what is none.
CFile_E* fileOfHandle(HANDLE hFile);
/// The same, and whether closing deletes it.
CFile_E* fileOfHandle(HANDLE hFile, bool& bOwned);

} // namespace vx::detail
