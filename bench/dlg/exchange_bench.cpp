// UpdateData() of a dialog with 50 controls, there and back, beside the same written with Qt.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <benchmark/benchmark.h>

#include <array>

namespace {

constexpr int kOfEach = 10; // texts, numbers, checks, entries, positions

QString nameOf(int i) { return QStringLiteral("control%1").arg(i); }

template <typename Text>
struct Values
{
    std::array<Text, kOfEach> texts;
    std::array<int, kOfEach> numbers{}, checks{}, entries{}, positions{};
};

struct Controls
{
    explicit Controls(QWidget* pParent)
    {
        for (int i = 0; i < kOfEach; ++i) {
            const auto at = static_cast<std::size_t>(i);
            make(texts[at], pParent, i);
            make(numbers[at], pParent, kOfEach + i);
            make(checks[at], pParent, 2 * kOfEach + i);
            make(entries[at], pParent, 3 * kOfEach + i);
            make(positions[at], pParent, 4 * kOfEach + i);
            entries[at]->addItems({QStringLiteral("a"), QStringLiteral("b")});
        }
    }
    template <typename Widget>
    static void make(Widget*& pWidget, QWidget* pParent, int i)
    {
        pWidget = new Widget(pParent);
        pWidget->setObjectName(nameOf(i));
    }
    std::array<QLineEdit*, kOfEach> texts, numbers;
    std::array<QCheckBox*, kOfEach> checks;
    std::array<QComboBox*, kOfEach> entries;
    std::array<QSlider*, kOfEach> positions;
};

// Every other run shows other values, so that half of the loads change the controls.
template <typename Text>
void change(Values<Text>& values, bool odd)
{
    for (std::size_t i = 0; i < kOfEach; ++i) {
        values.texts[i] = odd ? QStringLiteral("Left margin") : QStringLiteral("Right margin");
        values.numbers[i] = odd ? 1024 : 768;
        values.checks[i] = values.entries[i] = odd;
        values.positions[i] = odd ? 10 : 20;
    }
}

enum class By
{
    Pointer,
    Name,
    Id
};

// Attaching loads the controls, which the class below makes only afterwards.
class AttachedDlg : public CDialog_E
{
public:
    AttachedDlg() { AttachDefault(static_cast<QWidget*>(nullptr)); }
};

template <By by>
class ExchangingDlg : public AttachedDlg
{
public:
    void DoDataExchange(CDataExchange_E* pDX) override
    {
        for (int i = 0; i < kOfEach; ++i) {
            const auto at = static_cast<std::size_t>(i);
            DDX_Text(pDX, control(m_controls.texts[at], i), m_values.texts[at]);
            DDX_Text(pDX, control(m_controls.numbers[at], kOfEach + i), m_values.numbers[at]);
            DDX_Check(pDX, control(m_controls.checks[at], 2 * kOfEach + i), m_values.checks[at]);
            DDX_CBIndex(pDX, control(m_controls.entries[at], 3 * kOfEach + i),
                        m_values.entries[at]);
            DDX_Slider(pDX, control(m_controls.positions[at], 4 * kOfEach + i),
                       m_values.positions[at]);
        }
    }
    template <typename Widget>
    auto control(Widget* pWidget, int i)
    {
        if constexpr (by == By::Pointer)
            return pWidget;
        else if constexpr (by == By::Name)
            return m_names[static_cast<std::size_t>(i)].constData();
        else
            return 1000 + i;
    }

    Values<CString_E> m_values;
    std::array<QByteArray, std::size_t{5}* kOfEach> m_names = [] {
        std::array<QByteArray, std::size_t{5} * kOfEach> names;
        for (int i = 0; i < 5 * kOfEach; ++i)
            names[static_cast<std::size_t>(i)] = nameOf(i).toLatin1();
        return names;
    }();
    Controls m_controls{GetSafeHwnd()};
};

template <By by>
void UpdateData(benchmark::State& state)
{
    ExchangingDlg<by> dialog;
    bool odd = false;
    for (auto _ : state) {
        change(dialog.m_values, odd = !odd);
        if (!dialog.UpdateData(FALSE) || !dialog.UpdateData(TRUE))
            state.SkipWithError("the exchange failed");
    }
    if (dialog.m_controls.numbers[9]->text().toInt() != dialog.m_values.numbers[9])
        state.SkipWithError("control and variable differ");
}
BENCHMARK_TEMPLATE(UpdateData, By::Pointer)->Name("UpdateDataByPointer");
BENCHMARK_TEMPLATE(UpdateData, By::Name)->Name("UpdateDataByName");
BENCHMARK_TEMPLATE(UpdateData, By::Id)->Name("UpdateDataById");

template <typename Find>
void load(Find find, const Values<QString>& values)
{
    for (int i = 0; i < kOfEach; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* const pText = find.template operator()<QLineEdit>(&Controls::texts, i, 0);
        if (pText->text() != values.texts[at])
            pText->setText(values.texts[at]);
        auto* const pNumber = find.template operator()<QLineEdit>(&Controls::numbers, i, 1);
        const QString number = QString::number(values.numbers[at]);
        if (pNumber->text() != number)
            pNumber->setText(number);
        find.template operator()<QCheckBox>(&Controls::checks, i, 2)->setChecked(values.checks[at]);
        auto* const pCombo = find.template operator()<QComboBox>(&Controls::entries, i, 3);
        const QSignalBlocker quiet(pCombo);
        pCombo->setCurrentIndex(values.entries[at]);
        find.template operator()<QSlider>(&Controls::positions, i, 4)
            ->setValue(values.positions[at]);
    }
}

template <typename Find>
void save(Find find, Values<QString>& values)
{
    for (int i = 0; i < kOfEach; ++i) {
        const auto at = static_cast<std::size_t>(i);
        values.texts[at] = find.template operator()<QLineEdit>(&Controls::texts, i, 0)->text();
        values.numbers[at] =
            find.template operator()<QLineEdit>(&Controls::numbers, i, 1)->text().toInt();
        values.checks[at] =
            find.template operator()<QCheckBox>(&Controls::checks, i, 2)->isChecked();
        values.entries[at] =
            find.template operator()<QComboBox>(&Controls::entries, i, 3)->currentIndex();
        values.positions[at] =
            find.template operator()<QSlider>(&Controls::positions, i, 4)->value();
    }
}

struct FindByPointer
{
    template <typename Widget, typename Member>
    Widget* operator()(Member member, int i, int) const
    {
        return (controls.*member)[static_cast<std::size_t>(i)];
    }
    const Controls& controls;
};

struct FindByName
{
    template <typename Widget, typename Member>
    Widget* operator()(Member, int i, int kind) const
    {
        return parent.findChild<Widget*>(names[static_cast<std::size_t>(kind * kOfEach + i)]);
    }
    const QWidget& parent;
    const std::vector<QString>& names;
};

template <typename Find>
void run(benchmark::State& state, Find find, const Controls& controls)
{
    Values<QString> values;
    bool odd = false;
    for (auto _ : state) {
        change(values, odd = !odd);
        load(find, values);
        save(find, values);
    }
    if (controls.numbers[9]->text().toInt() != values.numbers[9])
        state.SkipWithError("control and variable differ");
}

void UpdateDataByPointer_raw(benchmark::State& state)
{
    QDialog dialog;
    const Controls controls(&dialog);
    run(state, FindByPointer{controls}, controls);
}
BENCHMARK(UpdateDataByPointer_raw);

void byName_raw(benchmark::State& state)
{
    QDialog dialog;
    const Controls controls(&dialog);
    std::vector<QString> names;
    for (int i = 0; i < 5 * kOfEach; ++i)
        names.push_back(nameOf(i));
    run(state, FindByName{dialog, names}, controls);
}
BENCHMARK(byName_raw)->Name("UpdateDataByName_raw");
BENCHMARK(byName_raw)->Name("UpdateDataById_raw");

} // namespace
