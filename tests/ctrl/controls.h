// The same checks for every kind of control: made by the library, found in a form, not bound; and
// for those that are not there.
#pragma once

#include "support/test.h"

namespace vxtest {

constexpr tagRECT kPlace{10, 20, 110, 50};
constexpr UINT kItem = 1001;

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
    EXPECT_EQ(dialog.GetDlgItem(int(kItem)), &made);
    check(made);
    const auto checkFound = [&check](QWidget* pWidget) {
        SCOPED_TRACE(pWidget->metaObject()->className());
        auto* const pControl = qobject_cast<Control*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pControl && pControl->IsTemporary());
        check(*pControl);
        ClearTempObjectPool(); // as the next idle time would
    };
    (checkFound(new Widgets(&form)), ...);
}

/// The items of a combo box or a list box, the selected ones marked, and the text to be edited.
inline QString shownBy(QWidget* pWidget)
{
    if (const auto* const pText = qobject_cast<QTextEdit*>(pWidget))
        return pText->toPlainText();
    QStringList items;
    auto* const pCombo = qobject_cast<QComboBox*>(pWidget);
    for (int i = 0; pCombo && i < pCombo->count(); ++i)
        items += pCombo->itemText(i) + (i == pCombo->currentIndex() ? "*"_q : ""_q);
    const auto* const pList = qobject_cast<QListWidget*>(pWidget);
    for (int i = 0; pList && i < pList->count(); ++i)
        items += pList->item(i)->text() + (pList->item(i)->isSelected() ? "*"_q : ""_q);
    const auto* const pLine = pCombo ? pCombo->lineEdit() : qobject_cast<QLineEdit*>(pWidget);
    return items.join(u',') + (pCombo && pLine ? " @"_q : ""_q) + (pLine ? pLine->text() : ""_q);
}

/// What a control is told, or how it is then.
struct Step
{
    /// A message, its parameters as far as they are not 0, and its result.
    Step(UINT nMessage, LPARAM w, LPARAM l, LRESULT nResult) : expected(qlonglong{nResult})
    {
        ask = [=](const auto& send, QWidget*) { return qlonglong{send(nMessage, w, l)}; };
    }
    Step(UINT nMessage, LPARAM w, LRESULT nResult) : Step(nMessage, w, 0, nResult) {}
    Step(UINT nMessage, LRESULT nResult) : Step(nMessage, 0, 0, nResult) {}
    /// A property of the widget.
    Step(const char* pszName, const QVariant& value) : expected(value)
    {
        ask = [=](const auto&, QWidget* pWidget) { return pWidget->property(pszName); };
    }
    /// What a message has left in a buffer.
    Step(const wchar_t* pszBuffer, const QString& text) : expected(text)
    {
        ask = [=](const auto&, QWidget*) { return QString::fromWCharArray(pszBuffer); };
    }
    /// The items or the text.
    Step(const QString& shown)
        : ask([](const auto&, QWidget* pWidget) { return shownBy(pWidget); }), expected(shown)
    {
    }
    using Send = std::function<LRESULT(UINT, LPARAM, LPARAM)>;
    std::function<QVariant(const Send&, QWidget*)> ask;
    QVariant expected;
};
using Steps = std::vector<Step>;

template <typename T>
LPARAM at(T* p)
{
    return static_cast<LPARAM>(reinterpret_cast<std::intptr_t>(p));
}

inline void runSteps(QWidget* pWidget, const Steps& steps, const Step::Send& send)
{
    for (const Step& step : steps) {
        QVariant got = step.ask(send, pWidget);
        EXPECT_TRUE(got.convert(step.expected.userType()));
        EXPECT_EQ(got.toString(), step.expected.toString()) << "step " << &step - steps.data();
    }
}

/// Walks through @p steps, one after the other.
inline void runSteps(QWidget* pWidget, const Steps& steps)
{
    runSteps(pWidget, steps, [pWidget](UINT message, LPARAM w, LPARAM l) {
        return SendMessage_E(pWidget, message, static_cast<WPARAM>(w), l);
    });
}

/// Walks through @p steps with a made control, with found ones and with form widgets that no window
/// is bound to.
template <typename Control, typename... Widgets>
void runSteps(DWORD style, const Steps& steps)
{
    forMadeAndFound<Control, Widgets...>(
        style, [&](Control& control) { runSteps(control.GetSafeHwnd(), steps); });
    (runSteps(std::make_unique<Widgets>().get(), steps), ...);
}

/// Sends messages that must give their failure to a control that has no widget, to one whose widget
/// is gone, and to one whose widget is of another class; calls @p check with each.
template <typename Control, typename Other = QGroupBox>
void forUnusable(const Steps& failures, const std::function<void(Control&)>& check = {})
{
    Control control;
    Other other;
    for (const int i : {0, 1, 2}) {
        if (QWidget parent; i == 1)
            control.CWnd_E::Create(0, kPlace, &parent);
        if (i == 2)
            control.SetImpQObject(&other);
        runSteps(nullptr, failures, [&control](UINT message, LPARAM w, LPARAM l) {
            LRESULT result = 12345;
            control.OnControlMessage(message, static_cast<WPARAM>(w), l, &result);
            return result;
        });
        if (check)
            check(control);
    }
    control.SetImpQObject(nullptr);
}

/// What setting a selection from one position to another leaves of "123456" where 1 to 1 was
/// selected before, the end and the start in the halves: of a single line, of many, and of the line
/// of a combo box.
constexpr Row<int, int, DWORD, DWORD, DWORD> kSelections[] = {
    {0, -1, 0x60000, 0x60000, 0x60000},      {-1, 2, 0x60006, 0x60006, 0x10001},
    {2, 4, 0x40002, 0x40002, 0x40002},       {2, -1, 0x20000, 0x60002, 0x60002},
    {4, 1, 0x40001, 0x40001, 0x40001},       {INT_MAX, 0, 0x10001, 0x60006, 0x60000},
    {1, INT_MIN, 0x10000, 0x10000, 0x60001},
};

} // namespace vxtest
