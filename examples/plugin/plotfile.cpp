#include "plotfile.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace {

constexpr double kUnitsPerCm = 400;
constexpr double kDegree = 3.14159265358979323846 / 180;
constexpr char kEndOfLabel = '\3';

class Interpreter
{
public:
    explicit Interpreter(std::string_view program) : m_rest(program) {}

    std::vector<PlotItem> Run()
    {
        while (const int name = NextInstruction())
            Perform(name);
        FlushLine();
        return std::move(m_items);
    }

private:
    static constexpr int Name(char first, char second) { return first << 8 | second; }

    int NextInstruction()
    {
        while (!m_rest.empty() && !std::isalpha(static_cast<unsigned char>(m_rest.front())))
            m_rest.remove_prefix(1);
        if (m_rest.size() < 2)
            return 0;
        const int name = Name(m_rest[0], m_rest[1]);
        m_rest.remove_prefix(2);
        return name;
    }

    std::vector<double> Numbers()
    {
        const std::size_t end = std::min(m_rest.find(';'), m_rest.size());
        const std::string text(m_rest.substr(0, end));
        m_rest.remove_prefix(end);
        std::vector<double> numbers;
        const char* p = text.c_str();
        for (char* after = nullptr; *p; p = after) {
            const double number = std::strtod(p, &after);
            if (after == p)
                ++after;
            else
                numbers.push_back(number);
        }
        return numbers;
    }

    void Perform(int name)
    {
        if (name == Name('L', 'B')) {
            AddLabel();
            return;
        }
        const std::vector<double> numbers = Numbers();
        const double first = numbers.empty() ? 0 : numbers.front();
        switch (name) {
        case Name('S', 'P'):
            FlushLine();
            m_pen = static_cast<int>(first);
            break;
        case Name('L', 'T'):
            FlushLine();
            m_lineType = numbers.empty() ? -1 : static_cast<int>(first);
            break;
        case Name('P', 'U'):
        case Name('P', 'D'):
            SetDown(name == Name('P', 'D'));
            MoveThrough(numbers);
            break;
        case Name('P', 'A'):
        case Name('P', 'R'):
            m_relative = name == Name('P', 'R');
            MoveThrough(numbers);
            break;
        case Name('C', 'I'):
            AddArc({m_x, m_y}, first, 0, 360);
            break;
        case Name('A', 'A'):
        case Name('A', 'R'):
            TurnAround(numbers, name == Name('A', 'R'));
            break;
        case Name('S', 'I'):
            m_height = (numbers.size() > 1 ? numbers[1] : 0.3) * kUnitsPerCm;
            break;
        case Name('F', 'T'):
            m_hatch = numbers.size() > 2 && numbers[2] < 0 ? HS_FDIAGONAL : HS_BDIAGONAL;
            break;
        case Name('P', 'M'):
            SetPolygonMode(static_cast<int>(first));
            break;
        case Name('F', 'P'):
            AddOutline(PlotItem::Kind::Region);
            break;
        case Name('E', 'P'):
            AddOutline(PlotItem::Kind::Line);
            break;
        case Name('R', 'A'):
            AddRectangle(numbers);
            break;
        default:
            break;
        }
    }

    CPoint_E Here() const { return Rounded(m_x, m_y); }
    static CPoint_E Rounded(double x, double y)
    {
        return {static_cast<LONG>(std::lround(x)), static_cast<LONG>(std::lround(y))};
    }

    PlotItem& Add(PlotItem::Kind kind, std::vector<CPoint_E> points)
    {
        PlotItem item;
        item.kind = kind;
        item.pen = m_pen;
        item.lineType = m_lineType;
        item.points = std::move(points);
        m_items.push_back(std::move(item));
        return m_items.back();
    }

    void SetDown(bool down)
    {
        if (!down)
            FlushLine();
        m_down = down;
    }

    void MoveThrough(const std::vector<double>& numbers)
    {
        for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
            if (m_down && m_line.empty())
                m_line.push_back(Here());
            m_x = numbers[i] + (m_relative ? m_x : 0);
            m_y = numbers[i + 1] + (m_relative ? m_y : 0);
            if (m_polygonMode)
                m_polygon.push_back(Here());
            else if (m_down)
                m_line.push_back(Here());
        }
    }

    void FlushLine()
    {
        if (m_line.size() > 1 && !m_polygonMode)
            Add(PlotItem::Kind::Line, m_line);
        m_line.clear();
    }

    void SetPolygonMode(int mode)
    {
        FlushLine();
        m_polygonMode = mode == 0 || mode == 1;
        if (mode == 0)
            m_polygon = {Here()};
    }

    void AddOutline(PlotItem::Kind kind)
    {
        if (m_polygon.size() < 3)
            return;
        std::vector<CPoint_E> points = m_polygon;
        points.push_back(points.front());
        Add(kind, std::move(points)).hatch = m_hatch;
    }

    void AddRectangle(const std::vector<double>& numbers)
    {
        if (numbers.size() < 2)
            return;
        m_polygon = {Here(), Rounded(numbers[0], m_y), Rounded(numbers[0], numbers[1]),
                     Rounded(m_x, numbers[1])};
        AddOutline(PlotItem::Kind::Region);
    }

    void AddArc(QPointF centre, double radius, double start, double sweep)
    {
        FlushLine();
        PlotItem& item = Add(PlotItem::Kind::Arc, {Rounded(centre.x(), centre.y())});
        item.radius = radius;
        item.start = start;
        item.sweep = sweep;
    }

    void TurnAround(const std::vector<double>& numbers, bool relative)
    {
        if (numbers.size() < 3)
            return;
        const QPointF centre(numbers[0] + (relative ? m_x : 0), numbers[1] + (relative ? m_y : 0));
        const double radius = std::hypot(m_x - centre.x(), m_y - centre.y());
        const double start = std::atan2(m_y - centre.y(), m_x - centre.x()) / kDegree;
        if (m_down)
            AddArc(centre, radius, start, numbers[2]);
        m_x = centre.x() + radius * std::cos((start + numbers[2]) * kDegree);
        m_y = centre.y() + radius * std::sin((start + numbers[2]) * kDegree);
    }

    void AddLabel()
    {
        FlushLine();
        const std::size_t end = std::min(m_rest.find(kEndOfLabel), m_rest.size());
        PlotItem& item = Add(PlotItem::Kind::Text, {Here()});
        item.height = m_height;
        item.text = QString::fromLatin1(m_rest.data(), static_cast<int>(end));
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
    }

    std::string_view m_rest;
    std::vector<PlotItem> m_items;
    std::vector<CPoint_E> m_line;
    std::vector<CPoint_E> m_polygon;
    double m_x = 0;
    double m_y = 0;
    double m_height = 0.3 * kUnitsPerCm;
    int m_pen = 1;
    int m_lineType = -1;
    int m_hatch = HS_BDIAGONAL;
    bool m_down = false;
    bool m_relative = false;
    bool m_polygonMode = false;
};

} // namespace

bool CPlotFile::Load(const wchar_t* lpszPath)
{
    m_items.clear();
    CFile_E file;
    if (!file.Open(lpszPath, CFile_E::modeRead))
        return false;
    std::string program(static_cast<std::size_t>(file.GetLength()), '\0');
    program.resize(file.Read(program.data(), static_cast<UINT>(program.size())));
    m_items = Interpreter(program).Run();
    return true;
}

CRect_E CPlotFile::Bounds() const
{
    CRect_E bounds(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
    for (const PlotItem& item : m_items) {
        const auto margin = static_cast<LONG>(item.radius);
        for (const CPoint_E& point : item.points) {
            bounds.left = std::min(bounds.left, point.x - margin);
            bounds.top = std::min(bounds.top, point.y - margin);
            bounds.right = std::max(bounds.right, point.x + margin);
            bounds.bottom = std::max(bounds.bottom, point.y + margin);
        }
    }
    return m_items.empty() ? CRect_E() : bounds;
}
