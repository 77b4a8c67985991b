// Copying a file.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QByteArray>

namespace vx::detail {

/// Does what CopyFile_E() does and gives the Win32 error number.
LONG copyFile(const QByteArray& from, const QByteArray& to, bool bFailIfExists);

} // namespace vx::detail
