// Not part of the public interface.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QMap>
#include <QtCore/QString>

namespace vx::detail {

/// The texts of an INI file, or resource, whose keys are numbers; other keys are left out. A text
/// with commas that is not quoted reads as a list, whose parts @p separator joins again. Empty when
/// there is no such file.
QMap<UINT, QString> readIdTable(const QString& fileName, const QString& separator);

} // namespace vx::detail
