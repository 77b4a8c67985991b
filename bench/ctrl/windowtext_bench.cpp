// SetWindowText() of 100 controls, labels, edits, buttons and group boxes, beside Qt's own setters.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <benchmark/benchmark.h>

#include <array>

namespace {

constexpr std::size_t kOfEach = 25;

template <typename Label, typename Edit, typename Button, typename Group>
struct Controls
{
    std::array<Label, kOfEach> labels;
    std::array<Edit, kOfEach> edits;
    std::array<Button, kOfEach> buttons;
    std::array<Group, kOfEach> groups;
};

void SetWindowText(benchmark::State& state)
{
    QWidget parent;
    Controls<CStatic_E, CEdit_E, CButton_E, CButton_E> controls;
    for (std::size_t i = 0; i < kOfEach; ++i) {
        controls.labels[i].Create(L"", SS_LEFTNOWORDWRAP, {0, 0, 100, 20}, &parent);
        controls.edits[i].Create(0, {0, 0, 100, 20}, &parent);
        controls.buttons[i].Create(L"", BS_PUSHBUTTON, {0, 0, 100, 20}, &parent);
        controls.groups[i].Create(L"", BS_GROUPBOX, {0, 0, 100, 20}, &parent);
    }
    bool odd = false;
    for (auto _ : state) {
        const wchar_t* const pszText = (odd = !odd) ? L"Left margin" : L"Right margin";
        for (std::size_t i = 0; i < kOfEach; ++i) {
            controls.labels[i].SetWindowText(pszText);
            controls.edits[i].SetWindowText(pszText);
            controls.buttons[i].SetWindowText(pszText);
            controls.groups[i].SetWindowText(pszText);
        }
    }
    if (controls.groups[7].GetWindowTextLength() != (odd ? 11 : 12))
        state.SkipWithError("the text is another one");
}
BENCHMARK(SetWindowText);

template <typename Widget>
void makeAll(std::array<Widget*, kOfEach>& widgets, QWidget* pParent)
{
    for (Widget*& pWidget : widgets)
        pWidget = new Widget(pParent);
}

void SetWindowText_raw(benchmark::State& state)
{
    QWidget parent;
    Controls<QLabel*, QLineEdit*, QPushButton*, QGroupBox*> controls;
    makeAll(controls.labels, &parent);
    makeAll(controls.edits, &parent);
    makeAll(controls.buttons, &parent);
    makeAll(controls.groups, &parent);
    bool odd = false;
    for (auto _ : state) {
        const QString text =
            (odd = !odd) ? QStringLiteral("Left margin") : QStringLiteral("Right margin");
        for (std::size_t i = 0; i < kOfEach; ++i) {
            controls.labels[i]->setText(text);
            controls.edits[i]->setText(text);
            controls.buttons[i]->setText(text);
            controls.groups[i]->setTitle(text);
        }
    }
    if (controls.groups[7]->title().size() != (odd ? 11 : 12))
        state.SkipWithError("the text is another one");
}
BENCHMARK(SetWindowText_raw);

} // namespace
