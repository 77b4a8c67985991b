// Not part of the public interface.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QString>

#include <optional>

namespace vx::detail {

/// The text of @p nID in the calling plug-in's string table; nothing when table or id are missing.
std::optional<QString> findTableString(UINT nID);

} // namespace vx::detail
