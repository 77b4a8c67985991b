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

/// The results of some calls, from left to right when it is made in braces.
struct Results
{
    template <typename... Numbers>
    Results(Numbers... numbers)
        : text(QStringList{QString::number(static_cast<LRESULT>(numbers))...}.join(u' '))
    {
    }
    QString text;
};

/// What calls give and how the control is then; null where that is of no interest.
template <typename Control>
struct Step
{
    int line;
    Results (*act)(Control&);
    const char* results;
    const char* state;
};

template <typename Control, std::size_t Count, typename State>
void runSteps(Control& control, const Step<Control> (&steps)[Count], State state)
{
    for (const Step<Control>& step : steps) {
        SCOPED_TRACE("line " + std::to_string(step.line));
        EXPECT_EQ(step.act(control).text, QString::fromUtf8(step.results));
        EXPECT_EQ(step.state ? state() : QString(), QString::fromUtf8(step.state));
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

/// Sends a message with a text, or with any other pointer.
template <typename Control>
LRESULT send(Control& control, UINT message, int w, const void* p = nullptr)
{
    return control.SendMessage(message, static_cast<WPARAM>(w), reinterpret_cast<LPARAM>(p));
}

} // namespace vxtest
