// The colours of controls: asked of the window around them, as WM_CTLCOLOR messages do.
#include "wnd/vxpainting_p.h"

#include <VxMFCEmu/gdi/dc.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtCore/QHash>
#include <QtWidgets/QtWidgets>

#include <algorithm>

namespace {

constexpr UINT kNoControl = CTLCOLOR_MAX;

/// What Win32 takes a widget for. A window text that cannot be edited counts as static.
UINT kindOf(const QWidget* pWidget)
{
    static const struct
    {
        const QMetaObject* pMeta;
        UINT kind;
    } rows[] = {
        {&QLineEdit::staticMetaObject, CTLCOLOR_EDIT},
        {&QTextEdit::staticMetaObject, CTLCOLOR_EDIT},
        {&QPlainTextEdit::staticMetaObject, CTLCOLOR_EDIT},
        {&QAbstractSpinBox::staticMetaObject, CTLCOLOR_EDIT},
        {&QComboBox::staticMetaObject, CTLCOLOR_EDIT},
        {&QAbstractItemView::staticMetaObject, CTLCOLOR_LISTBOX},
        {&QCheckBox::staticMetaObject, CTLCOLOR_STATIC},
        {&QRadioButton::staticMetaObject, CTLCOLOR_STATIC},
        {&QAbstractButton::staticMetaObject, CTLCOLOR_BTN},
        {&QScrollBar::staticMetaObject, CTLCOLOR_SCROLLBAR},
        {&QLabel::staticMetaObject, CTLCOLOR_STATIC},
        {&QGroupBox::staticMetaObject, CTLCOLOR_STATIC},
        {&QDialog::staticMetaObject, CTLCOLOR_DLG},
    };
    const QMetaObject* const pMeta = pWidget->metaObject();
    for (const auto& row : rows) {
        if (!pMeta->inherits(row.pMeta))
            continue;
        const bool fixed = !pWidget->isEnabled() || pWidget->property("readOnly").toBool();
        return row.kind == CTLCOLOR_EDIT && fixed ? CTLCOLOR_STATIC : row.kind;
    }
    return kNoControl;
}

/// The colours that a handler gave; invalid and without a brush for what it left alone.
struct Colors
{
    QColor text;
    QBrush background;
};

Colors askWindow(CWnd_E& window, QWidget& control, const QPalette& original, UINT nKind)
{
    // Begins with the control's own colours each time: those of the last answer are no default.
    CDC_E dc(&control);
    const QColor& text = original.color(control.foregroundRole());
    const QColor& background = original.color(control.backgroundRole());
    dc.m_painter.setPen(text);
    dc.m_painter.setBackground(background);
    LRESULT result = 0;
    window.CallWndMsg(WM_CTLCOLORMSGBOX + nKind, reinterpret_cast<WPARAM>(&dc),
                      reinterpret_cast<LPARAM>(&control), &result);
    Colors colors;
    if (dc.GetTextColor() != text)
        colors.text = dc.GetTextColor();
    if (result != 0)
        colors.background = *reinterpret_cast<const QBrush*>(result);
    else if (dc.GetBkColor() != background)
        colors.background = static_cast<const QColor&>(dc.GetBkColor());
    return colors;
}

constexpr QPalette::ColorRole kTextRoles[] = {QPalette::WindowText, QPalette::Text,
                                              QPalette::ButtonText};
constexpr QPalette::ColorRole kBackgroundRoles[] = {QPalette::Window, QPalette::Base,
                                                    QPalette::Button};

QPalette colored(QPalette palette, const Colors& colors)
{
    if (colors.text.isValid()) {
        for (const auto role : kTextRoles)
            palette.setColor(role, colors.text);
    }
    if (colors.background.style() != Qt::NoBrush) {
        for (const auto role : kBackgroundRoles)
            palette.setBrush(role, colors.background);
    }
    return palette;
}

/// @p palette with the brushes of @p original where it still has those of @p applied.
QPalette withoutOurs(QPalette palette, const QPalette& applied, const QPalette& original)
{
    const auto putBack = [&](QPalette::ColorRole role) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            if (palette.brush(group, role) == applied.brush(group, role) &&
                palette.brush(group, role) != original.brush(group, role))
                palette.setBrush(group, role, original.brush(group, role));
        }
    };
    std::for_each(std::begin(kTextRoles), std::end(kTextRoles), putBack);
    std::for_each(std::begin(kBackgroundRoles), std::end(kBackgroundRoles), putBack);
    return palette;
}

/// Sees the paint events of a window's controls, also of those made later.
class ControlColors : public QObject
{
public:
    ControlColors(CWnd_E& window, QWidget& widget) : QObject(&widget), m_window(&window)
    {
        watch(&widget);
    }

    bool eventFilter(QObject* watched, QEvent* e) override
    {
        if (e->type() == QEvent::ChildPolished)
            watch(qobject_cast<QWidget*>(static_cast<QChildEvent*>(e)->child()));
        else if (e->type() == QEvent::Paint)
            paint(static_cast<QWidget*>(watched));
        return false;
    }

private:
    /// What the application gave a control, and what is shown: with the handler's colours.
    struct Looks
    {
        QPalette original;
        QPalette applied;
        bool originalFill;
        bool appliedFill;
    };

    void watch(QWidget* pWidget)
    {
        if (!pWidget || (pWidget->isWindow() && pWidget != parent()))
            return;
        pWidget->installEventFilter(this); // which is but once there
        for (QWidget* const pChild :
             pWidget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            watch(pChild);
    }

    /// A control belongs to the nearest window around it; a dialog to itself.
    bool isOurs(const QWidget* pWidget) const
    {
        const QWidget* pAncestor = pWidget == parent() ? pWidget : pWidget->parentWidget();
        while (pAncestor && pAncestor != parent() &&
               !CWnd_E::FromHandlePermanent(const_cast<QWidget*>(pAncestor)))
            pAncestor = pAncestor->parentWidget();
        return m_window && pAncestor == m_window->GetSafeHwnd();
    }

    void paint(QWidget* pWidget)
    {
        const UINT nKind = kindOf(pWidget);
        if (nKind == kNoControl || !isOurs(pWidget) ||
            (nKind == CTLCOLOR_DLG) != (pWidget == parent()))
            return;
        const QPointer<QWidget> control(pWidget);
        const QPointer<ControlColors> self(this);
        const QPalette original = looksOf(*pWidget).original;
        const Colors colors = askWindow(*m_window, *pWidget, original, nKind);
        if (self && control)
            apply(*pWidget, colors);
    }

    Looks& looksOf(QWidget& control)
    {
        const QPalette palette = control.palette();
        const bool fill = control.autoFillBackground();
        auto it = m_looks.find(&control);
        if (it == m_looks.end()) {
            it = m_looks.insert(&control, {palette, palette, fill, fill});
            connect(&control, &QObject::destroyed, this,
                    [this](QObject* pControl) { m_looks.remove(pControl); });
        }
        // What the application has set meanwhile is its own.
        if (palette != it->applied) {
            it->original = withoutOurs(palette, it->applied, it->original);
            it->applied = palette;
        }
        if (fill != it->appliedFill)
            it->originalFill = it->appliedFill = fill;
        return *it;
    }

    // Shown from the next painting on, which this schedules.
    void apply(QWidget& control, const Colors& colors)
    {
        Looks& looks = looksOf(control);
        looks.appliedFill = looks.originalFill || colors.background.style() != Qt::NoBrush;
        if (control.autoFillBackground() != looks.appliedFill)
            control.setAutoFillBackground(looks.appliedFill);
        const QPalette palette = colored(looks.original, colors);
        if (palette == looks.applied)
            return;
        looks.applied = palette;
        control.setPalette(palette);
        // Brushes that the control never had of its own may come out as those of its parent.
        if (const auto it = m_looks.find(&control); it != m_looks.end())
            it->applied = control.palette();
    }

    QPointer<CWnd_E> m_window;
    QHash<const QObject*, Looks> m_looks;
};

} // namespace

void vx::detail::colorControls(CWnd_E& window)
{
    if (QWidget* const pWidget = window.GetSafeHwnd())
        new ControlColors(window, *pWidget); // owned by the widget
}
