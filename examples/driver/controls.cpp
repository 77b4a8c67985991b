#include "controls.h"

#include "support/xinput.h"
#include "user.h"

#include <X11/keysym.h>

namespace {

constexpr char kStandard[] =
    "Gearbox housing, A2, portrait 0, frame 1, Front, copies 2, weight 35, "
    "2024-03-14; hidden 2, Continuous, 1:2.50, layers 1100, 2 lines, "
    "pan 40, progress %1";
constexpr char kUsed[] = "Gearbox housing b, A1, portrait 1, frame 0, Top, copies 3, weight 46, "
                         "2024-03-15; hidden 1, Hidden, 1:3.50, layers 0100, 3 lines, pan 41, "
                         "progress 25";

/// Where to click in a control.
class Places
{
public:
    explicit Places(const Report& report) : m_report(report) {}

    QPoint centre(const char* name) const { return m_report.geometryOf(name).center(); }
    /// On the box of a button with text, and in the first character of others.
    QPoint left(const char* name) const { return at(name, 0.5, 10); }
    /// At this part of the height, so far from the left or, below 0, from the right edge.
    QPoint at(const char* name, double height, int x) const
    {
        const QRect rect = m_report.geometryOf(name);
        return {x < 0 ? rect.right() + x : rect.left() + x,
                rect.top() + static_cast<int>(rect.height() * height)};
    }
    QPoint firstItem(const char* name) const
    {
        return m_report.geometryOf(name).topLeft() + QPoint(12, 10);
    }

private:
    const Report& m_report;
};

void clickAndType(QPoint place, std::initializer_list<unsigned long> keysyms)
{
    click(place);
    typeKeys(keysyms);
}

bool useSheet(Report& report, const Places& places)
{
    const auto typeName = [&] {
        clickAndType(places.centre("nameEdit"), {XK_End});
        typeText(" b");
    };
    return perform(
        report,
        {{typeName, QStringLiteral("EN_CHANGE name 'Gearbox housing b'")},
         {[&] {
              clickAndType(places.centre("sizeCombo"), {XK_Down, XK_Return});
          },
          QStringLiteral("CBN_SELCHANGE size A1")},
         {[&] { click(places.left("portraitRadio")); }, QStringLiteral("BN_CLICKED portrait")},
         {[&] { click(places.left("frameCheck")); }, QStringLiteral("BN_CLICKED frame 0")},
         {[&] { clickAndType(places.firstItem("viewList"), {XK_Down}); },
          QStringLiteral("LBN_SELCHANGE view Top")},
         {[&] { click(places.at("copiesSpin", 0.25, -8)); },
          QStringLiteral("UDN_DELTAPOS copies 3")},
         {[&] { click(places.at("weightSlider", 0.4, -4)); },
          QStringLiteral("WM_HSCROLL weight 45")},
         {[] { vxtest::typeKey(XK_Right); }, QStringLiteral("WM_HSCROLL weight 46")},
         {[&] {
              clickAndType(places.at("dateEdit", 0.5, -8), {XK_Right, XK_Return});
          },
          QStringLiteral("DTN_DATETIMECHANGE 2024-03-15")}});
}

bool useOutput(Report& report, const Places& places)
{
    const auto typeNotes = [&] {
        click(places.centre("notesEdit"));
        vxtest::setKey(XK_Control_L, true);
        vxtest::typeKey(XK_End);
        vxtest::setKey(XK_Control_L, false);
        typeKeys({XK_Return, XK_c});
    };
    return perform(
        report,
        {{[&] { click(places.left("hiddenCheck")); }, QStringLiteral("BN_CLICKED hidden 1")},
         {[&] {
              clickAndType(places.centre("lineTypeCombo"), {XK_Down, XK_Return});
          },
          QStringLiteral("CBN_SELCHANGE line type Hidden")},
         {[&] { clickAndType(places.left("scaleSpin"), {XK_Up}); },
          QStringLiteral("UDN_DELTAPOS scale 3.50")},
         {[&] { click(places.firstItem("layerList")); },
          QStringLiteral("CLBN_CHKCHANGE layer 0 is 0")},
         {typeNotes, QStringLiteral("EN_CHANGE notes, 37 characters")},
         {[&] { click(places.at("panBar", 0.5, -6)); }, QStringLiteral("WM_HSCROLL pan 41")}});
}

} // namespace

bool useControls(Report& report, unsigned long window, const QString& picture)
{
    const Places places(report);
    const QPoint open = places.centre("controls");
    const QString shown = QStringLiteral("controls shown");
    const QString closed = QStringLiteral("controls closed");
    const QString standard = QLatin1String(kStandard);
    const QString filled = QStringLiteral("filled: ") + standard.arg(0);
    const QString plotting = QStringLiteral("plotting: ");

    if (!perform(report, {{[&] { click(open); }, shown}}))
        return false;
    const unsigned long page = waitForWindowOver(window);
    const auto clickFill = [fill = places.centre("fillButton")] { click(fill); };
    const auto clickPlot = [plot = places.centre("plotButton")] { click(plot); };
    const bool silent =
        check(page, "the controls are over the window") && useSheet(report, places) &&
        useOutput(report, places) &&
        perform(report, {{clickPlot, QStringLiteral("BN_CLICKED plot")},
                         {nullptr, plotting + QLatin1String(kUsed)},
                         {clickFill, filled}}) &&
        check(report.lineCount() == 1, "filling in the controls notifies of nothing");
    if (!silent || !perform(report, {{clickPlot, plotting + standard.arg(25)}}))
        return false;
    savePicture(picture, report.geometryOf("controlsDialog"));

    // Escape ends the dialog and its controls; it can be made again.
    const bool again = perform(
        report, {{[] { vxtest::typeKey(XK_Escape); }, closed}, {[&] { click(open); }, shown}});
    if (!again || !check(waitForWindowOver(window), "the controls are back"))
        return false;
    const bool ended =
        perform(report, {{clickFill, filled}, {[&] { click(places.centre("Cancel")); }, closed}});
    vxtest::focusWindow(window);
    return ended;
}
