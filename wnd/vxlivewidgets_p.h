// Private: which addresses are widgets, for handles that may outlive their widget.
#pragma once

#include <QtCore/QObject>

class QWidget;

namespace vx::detail {

/// The live widget at @p address, which is compared, never followed; null when there is none.
QWidget* liveWidgetAt(const void* address);

} // namespace vx::detail
