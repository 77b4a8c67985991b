// Combo boxes and list boxes in tests: made or found, and worked step by step.
#pragma once

#include "support/test.h"

namespace vxtest {

/// A control over the widget that it made below a form, or over one that the form has.
template <typename Control, typename Widget>
struct FormWith
{
    FormWith(bool bMade, DWORD dwStyle)
    {
        form.resize(300, 300);
        if (bMade) {
            EXPECT_TRUE(control.Create(dwStyle, {10, 10, 210, 40}, &form));
        } else {
            (new Widget(&form))->setObjectName("control"_q);
            window.SubclassWindow(&form);
            EXPECT_TRUE(control.SubclassDlgItem("control", &window));
        }
        widget = qobject_cast<Widget*>(control.GetSafeHwnd());
    }

    QWidget form;
    CWnd_E window;
    Control control;
    Widget* widget = nullptr;
};

/// What a call gives and how the control is then.
template <typename Control>
struct Step
{
    int line;
    LRESULT (*act)(Control&);
    LRESULT result;
    const char* state;
};

template <typename Control, std::size_t Count, typename State>
void runSteps(Control& control, const Step<Control> (&steps)[Count], State state)
{
    for (const Step<Control>& step : steps) {
        SCOPED_TRACE("line " + std::to_string(step.line));
        EXPECT_EQ(step.act(control), step.result);
        if (step.state) {
            EXPECT_EQ(state(), QString::fromUtf8(step.state));
        }
    }
}

/// Calls that must give their failure, on a control without a widget, with one of another class and
/// with one that has been destroyed.
template <typename Widget, typename Control, std::size_t Count>
void expectFailures(const Step<Control> (&steps)[Count])
{
    Control unbound, wrong, orphan;
    QPushButton button("text"_q);
    wrong.SetImpQObject(&button);
    {
        Widget widget;
        ASSERT_TRUE(orphan.SubclassWindow(&widget));
    }
    for (Control* const pControl : {&unbound, &wrong, &orphan})
        runSteps(*pControl, steps, [] { return QString(); });
    EXPECT_EQ(button.text(), "text"_q);
    wrong.SetImpQObject(nullptr);
}

/// Looks at an item's text by the control's two members and by the message of @p message; returns
/// its length.
template <typename Control, typename Get, typename GetLength>
LRESULT expectText(Control& control, int nIndex, const wchar_t* expected, Get get,
                   GetLength getLength, UINT message)
{
    CString_E text(L"before");
    wchar_t buffer[16] = L"before";
    const int length = get(control, nIndex, text);
    EXPECT_STREQ(text.GetString(), expected);
    EXPECT_EQ(getLength(control, nIndex), length);
    EXPECT_EQ(control.SendMessage(message, WPARAM(nIndex), LPARAM(buffer)), length);
    EXPECT_STREQ(buffer, length < 0 ? L"before" : expected);
    return length;
}

template <typename Control>
LRESULT send(Control& control, UINT message, int w, const wchar_t* text)
{
    return control.SendMessage(message, WPARAM(w), reinterpret_cast<LPARAM>(text));
}

inline LPARAM textParam(const wchar_t* text) { return reinterpret_cast<LPARAM>(text); }

} // namespace vxtest
