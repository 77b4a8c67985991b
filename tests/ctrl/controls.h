// The same checks for every kind of control: made by the library, found in a form, bound to a plain
// window, not bound; and for those that are not there.
#pragma once

#include "support/test.h"

namespace vxtest {

constexpr tagRECT kPlace{10, 20, 110, 50};
constexpr UINT kItem = 1001;

template <typename Control, typename Widget, typename Check>
void checkFound(const Check& check)
{
    SCOPED_TRACE(Widget::staticMetaObject.className());
    QDialog form;
    (new Widget(&form))->setObjectName("item"_q);
    CWnd_E dialog;
    dialog.SubclassWindow(&form);
    auto* const pControl = qobject_cast<Control*>(dialog.GetDlgItem(int(kItem)));
    ASSERT_TRUE(pControl);
    EXPECT_TRUE(pControl->IsTemporary());
    check(*pControl);
    ClearTempObjectPool(); // as the next idle time would
}

/// Calls @p check with a control made by Create() and with those of the form widgets @p Widgets.
template <typename Control, typename... Widgets, typename Check>
void forMadeAndFound(DWORD style, const Check& check)
{
    QDialog form;
    CWnd_E dialog;
    dialog.SubclassWindow(&form);
    Control made;
    ASSERT_TRUE(made.Create(style | WS_CHILD | WS_VISIBLE, kPlace, &dialog, kItem));
    EXPECT_EQ(made.GetSafeHwnd()->geometry(), QRect(10, 20, 100, 30));
    EXPECT_EQ(made.GetSafeHwnd()->parentWidget(), &form);
    EXPECT_FALSE(made.GetSafeHwnd()->isHidden());
    EXPECT_EQ(dialog.GetDlgItem(int(kItem)), &made);
    check(made);
    (checkFound<Control, Widgets>(check), ...);
}

/// Calls @p check with a control that has no widget, one whose widget is gone, and one whose widget
/// is of another class.
template <typename Control, typename Check>
void forUnusable(const Check& check)
{
    Control control;
    check(control);
    {
        QWidget parent;
        ASSERT_TRUE(control.Create(0, kPlace, &parent));
    }
    check(control);
    QGroupBox other;
    control.SetImpQObject(&other);
    check(control);
    control.SetImpQObject(nullptr);
}

struct Step
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result;
};

template <typename T>
LPARAM at(T* p)
{
    return static_cast<LPARAM>(reinterpret_cast<std::intptr_t>(p));
}

/// Sends the messages of @p steps, one after the other, to a made control, to found ones, to form
/// widgets that no window is bound to and to such that a plain one is bound to.
template <typename Control, typename... Widgets>
void runSteps(DWORD style, const std::vector<Step>& steps)
{
    const auto run = [&](QWidget* pWidget) {
        for (const Step& step : steps)
            EXPECT_EQ(SendMessage_E(pWidget, step.message, step.wParam, step.lParam), step.result)
                << "step " << &step - steps.data() << ", message " << step.message;
    };
    forMadeAndFound<Control, Widgets...>(style,
                                         [&run](Control& control) { run(control.GetSafeHwnd()); });
    const auto runPlain = [&](auto* pWidget, bool bound) {
        SCOPED_TRACE(bound ? "bound to a plain window" : "not bound");
        CWnd_E plain;
        if (bound)
            plain.SubclassWindow(pWidget);
        run(pWidget);
        delete pWidget;
    };
    (runPlain(new Widgets, false), ...);
    (runPlain(new Widgets, true), ...);
}

} // namespace vxtest
