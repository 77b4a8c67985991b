#include "wnd/vxlivewidgets_p.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vx::detail {

QWidget* liveWidgetAt(const void* address)
{
    if (!address || !qApp)
        return nullptr;
    // The list of all widgets is copied for each question. A guarded pointer that was once found
    // there answers the next question about the same widget, and clears itself when it dies.
    static std::array<QPointer<QWidget>, 64> known;
    const auto number = reinterpret_cast<std::uintptr_t>(address);
    QPointer<QWidget>& seen = known[(number / alignof(std::max_align_t)) % known.size()];
    if (seen.data() == address)
        return seen;
    const QWidgetList widgets = QApplication::allWidgets();
    const auto it = std::find(widgets.begin(), widgets.end(), address);
    if (it == widgets.end())
        return nullptr;
    seen = *it;
    return seen;
}

} // namespace vx::detail
