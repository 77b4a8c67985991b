// The lines of edit controls and where they lie.
#include <VxMFCEmu/ctrl/edit.h>

#include "ctrl/vxedit_p.h"
#include "wnd/vxgeometryconvert_p.h"
#include "wnd/vxtextbuffer_p.h"

#include <VxMFCEmu/wnd/windowgeometry.h>

#include <QtCore/QtMath>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtWidgets/QScrollBar>

#include <cstring>

using namespace vx::detail;

namespace {

constexpr int kDialogUnitsPerTab = 32;

/// How much wider Qt makes a line's cursor on its left for repainting.
constexpr int kCursorRoom = 5;

/// The document with its lines laid out to the last one, also before the widget is first shown.
const QTextDocument& laidOut(const QTextEdit& text)
{
    QTextDocument& document = *text.document();
    if (document.pageSize().isNull())
        document.setTextWidth(text.viewport()->width());
    document.documentLayout()->documentSize();
    return document;
}

int linesBefore(const QTextDocument& document, const QTextBlock& end)
{
    int nLines = 0;
    for (QTextBlock block = document.begin(); block.isValid() && block != end; block = block.next())
        nLines += block.layout()->lineCount();
    return nLines;
}

int lineOf(const QTextEdit& text, int nPosition)
{
    const QTextDocument& document = laidOut(text);
    const QTextBlock found = document.findBlock(nPosition);
    const QTextBlock block = found.isValid() ? found : document.lastBlock();
    const QTextLine line = block.layout()->lineForTextPosition(nPosition - block.position());
    return linesBefore(document, block) +
           (line.isValid() ? line.lineNumber() : std::max(block.layout()->lineCount() - 1, 0));
}

struct LinePlace
{
    QTextBlock block;
    QTextLine line; ///< not valid where there is none of that number
};

LinePlace placeOf(const QTextEdit& text, int nLine)
{
    const QTextDocument& document = laidOut(text);
    for (QTextBlock block = document.begin(); nLine >= 0 && block.isValid(); block = block.next()) {
        const int nLines = block.layout()->lineCount();
        if (nLine < nLines)
            return {block, block.layout()->lineAt(nLine)};
        nLine -= nLines;
    }
    return {};
}

QString lineText(const QTextEdit& text, int nLine)
{
    const LinePlace place = placeOf(text, nLine);
    return place.line.isValid()
               ? place.block.text().mid(place.line.textStart(), place.line.textLength())
               : QString();
}

/// The position nearest to the middle of a pixel of the viewport.
int positionAt(const QTextEdit& text, const QPoint& pixel)
{
    const QScrollBar& bar = *text.horizontalScrollBar();
    const QPointF scrolled(text.isRightToLeft() ? bar.maximum() - bar.value() : bar.value(),
                           text.verticalScrollBar()->value());
    return laidOut(text).documentLayout()->hitTest(pixel + scrolled + QPointF(0.0, 0.5),
                                                   Qt::FuzzyHit);
}

/// Measured from where the cursor is now, since only that is known.
QPoint placeInLine(const QLineEdit& line, int nPosition)
{
    QTextLayout layout(line.displayText(), line.font());
    layout.beginLayout();
    const QTextLine laid = layout.createLine();
    layout.endLayout();
    const QRect cursor = line.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const qreal distance = laid.cursorToX(nPosition) - laid.cursorToX(line.cursorPosition());
    return cursor.topLeft() + QPoint(kCursorRoom + qRound(distance), 0);
}

void scrollToLine(QTextEdit& text, qint64 nLine)
{
    const int nLast = linesBefore(laidOut(text), QTextBlock()) - 1;
    const LinePlace place = placeOf(text, static_cast<int>(std::clamp<qint64>(nLine, 0, nLast)));
    const qreal top = text.document()->documentLayout()->blockBoundingRect(place.block).top();
    // The margin above the first line shows with it.
    text.verticalScrollBar()->setValue(nLine <= 0 ? 0 : qCeil(top + place.line.y()));
}

void scrollSideways(QTextEdit& text, int nChars)
{
    QScrollBar& bar = *text.horizontalScrollBar();
    const qint64 value = bar.value() + qint64{nChars} * text.fontMetrics().averageCharWidth();
    bar.setValue(static_cast<int>(std::clamp<qint64>(value, bar.minimum(), bar.maximum())));
}

/// Opens up what scroll areas keep to their heirs.
struct Margins : QAbstractScrollArea
{
    static QMargins of(const QAbstractScrollArea& area)
    {
        return (area.*&Margins::viewportMargins)();
    }
    static void set(QAbstractScrollArea& area, const QMargins& margins)
    {
        using Set = void (QAbstractScrollArea::*)(const QMargins&);
        (area.*static_cast<Set>(&Margins::setViewportMargins))(margins);
    }
};

/// The bars of the window, which lie upon its widget; the widget's own are further down.
QList<QScrollBar*> windowBars(const QTextEdit& text)
{
    return text.findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
}

QMargins roomOfBars(const QTextEdit& text)
{
    QMargins room;
    for (const QScrollBar* const pBar : windowBars(text)) {
        if (pBar->orientation() == Qt::Vertical)
            room.setRight(pBar->sizeHint().width());
        else
            room.setBottom(pBar->sizeHint().height());
    }
    return room;
}

void joinBar(QScrollBar& inner, QScrollBar& shown)
{
    const auto follow = [&inner, &shown] {
        shown.setRange(inner.minimum(), inner.maximum());
        shown.setPageStep(inner.pageStep());
        shown.setSingleStep(inner.singleStep());
        shown.setValue(inner.value());
    };
    QObject::connect(&inner, &QScrollBar::rangeChanged, &shown, follow);
    QObject::connect(&inner, &QScrollBar::valueChanged, &shown, &QScrollBar::setValue);
    QObject::connect(&shown, &QScrollBar::valueChanged, &inner, &QScrollBar::setValue);
    follow();
}

int toMargin(UINT nMargin, const QWidget& widget)
{
    return nMargin == EC_USEFONTINFO ? widget.fontMetrics().averageCharWidth()
                                     : static_cast<int>(std::min(nMargin, 0xFFFFU));
}

int tabWidth(QTextEdit& text, int nDialogUnits)
{
    tagRECT rect{nDialogUnits, 0, 0, 0};
    MapDialogRect_E(&text, &rect);
    return std::max(rect.left, 0);
}

} // namespace

void vx::detail::joinScrollBars(QTextEdit& text)
{
    const auto bars = windowBars(text);
    for (QScrollBar* const pBar : bars) {
        joinBar(pBar->orientation() == Qt::Vertical ? *text.verticalScrollBar()
                                                    : *text.horizontalScrollBar(),
                *pBar);
    }
    Margins::set(text, Margins::of(text) + roomOfBars(text));
}

int CEdit_E::GetLineCount() const
{
    return askEdit(
        *this, 0, [](auto&) { return 1; },
        [](auto& text) { return linesBefore(laidOut(text), QTextBlock()); });
}

int CEdit_E::LineLength(int) const
{
    return askEdit(
        *this, -1, [](auto& line) { return line.text().size(); },
        [](auto& text) { return lengthOf(text); });
}

int CEdit_E::LineFromChar(int nIndex) const
{
    return askWidget<QTextEdit>(*this, 0, [nIndex](auto& text) {
        return lineOf(text, nIndex < 0 ? text.textCursor().selectionStart() : nIndex);
    });
}

int CEdit_E::LineIndex(int nLine) const
{
    return askEdit(
        *this, -1, [nLine](auto&) { return nLine == 0 || nLine == -1 ? 0 : -1; },
        [nLine](auto& text) {
            const LinePlace place =
                placeOf(text, nLine == -1 ? lineOf(text, text.textCursor().position()) : nLine);
            return place.line.isValid() ? place.block.position() + place.line.textStart() : -1;
        });
}

int CEdit_E::GetLine(int nIndex, LPWSTR lpszBuffer, int nMaxLength) const
{
    if (!lpszBuffer || nMaxLength <= 0)
        return 0;
    const CString_E strLine = askEdit(
        *this, QString(), [](auto& line) { return line.text(); },
        [nIndex](auto& text) { return lineText(text, nIndex); });
    if (strLine.GetLength() < nMaxLength)
        return copyTerminated(strLine, lpszBuffer, nMaxLength);
    std::copy_n(strLine.GetString(), nMaxLength, lpszBuffer);
    return nMaxLength;
}

int CEdit_E::GetLine(int nIndex, LPWSTR lpszBuffer) const
{
    WORD nRoom = 0;
    if (lpszBuffer)
        std::memcpy(&nRoom, lpszBuffer, sizeof(nRoom));
    return GetLine(nIndex, lpszBuffer, nRoom);
}

int CEdit_E::GetFirstVisibleLine() const
{
    return askEdit(
        *this, 0, [](auto& line) { return line.cursorPositionAt(QPoint(0, line.height() / 2)); },
        [](auto& text) { return lineOf(text, positionAt(text, QPoint(0, 0))); });
}

void CEdit_E::LineScroll(int nLines, int nChars)
{
    if (auto* const pText = widgetOf<QTextEdit>(*this)) {
        if (nLines != 0)
            scrollToLine(*pText, qint64{GetFirstVisibleLine()} + nLines);
        scrollSideways(*pText, nChars);
    }
}

BOOL CEdit_E::FmtLines(BOOL bAddEOL) { return widgetOf<QTextEdit>(*this) ? bAddEOL : FALSE; }

int CEdit_E::CharFromPos(CPoint_E pt) const
{
    return askEdit(
        *this, -1, [&pt](auto& line) { return line.cursorPositionAt(fromPoint(pt)); },
        [&pt](auto& text) {
            const int nPosition = positionAt(text, text.viewport()->mapFromParent(fromPoint(pt)));
            return MAKELONG(nPosition, lineOf(text, nPosition));
        });
}

CPoint_E CEdit_E::PosFromChar(UINT nChar) const
{
    const int nLength = LineLength();
    if (nLength < 0 || nChar >= static_cast<UINT>(nLength))
        return {-1, -1};
    const int nPosition = static_cast<int>(nChar);
    return toPoint(askEdit(
        *this, QPoint(), [=](auto& line) { return placeInLine(line, nPosition); },
        [=](auto& text) {
            laidOut(text);
            QTextCursor cursor(text.document());
            cursor.setPosition(nPosition);
            return text.viewport()->mapToParent(text.cursorRect(cursor).topLeft());
        }));
}

void CEdit_E::GetRect(tagRECT* pRect) const { GetClientRect(pRect); }

void CEdit_E::SetRect(const tagRECT* pRect) { MoveWindow(pRect); }

void CEdit_E::SetMargins(UINT nLeft, UINT nRight)
{
    if (auto* const pLine = widgetOf<QLineEdit>(*this)) {
        const QMargins old = pLine->textMargins();
        pLine->setTextMargins(toMargin(nLeft, *pLine), old.top(), toMargin(nRight, *pLine),
                              old.bottom());
    } else if (auto* const pText = widgetOf<QTextEdit>(*this)) {
        Margins::set(*pText, roomOfBars(*pText) +
                                 QMargins(toMargin(nLeft, *pText), 0, toMargin(nRight, *pText), 0));
    }
}

DWORD CEdit_E::GetMargins() const
{
    const QMargins margins = askEdit(
        *this, QMargins(), [](auto& line) { return line.textMargins(); },
        [](auto& text) { return Margins::of(text) - roomOfBars(text); });
    return MAKELONG(margins.left(), margins.right());
}

void CEdit_E::SetTabStops() { SetTabStops(kDialogUnitsPerTab); }

BOOL CEdit_E::SetTabStops(const int& cxEachStop) { return SetTabStops(1, &cxEachStop); }

BOOL CEdit_E::SetTabStops(int nTabStops, const int* rgTabStops)
{
    auto* const pText = widgetOf<QTextEdit>(*this);
    if (!pText || nTabStops < 0 || (nTabStops > 0 && !rgTabStops))
        return FALSE;
    QTextOption option = pText->document()->defaultTextOption();
    QList<QTextOption::Tab> tabs;
    if (nTabStops > 1) {
        std::transform(rgTabStops, rgTabStops + nTabStops, std::back_inserter(tabs),
                       [&](int nStop) {
                           return QTextOption::Tab(tabWidth(*pText, nStop), QTextOption::LeftTab);
                       });
    } else {
        option.setTabStopDistance(tabWidth(*pText, nTabStops ? *rgTabStops : kDialogUnitsPerTab));
    }
    option.setTabs(tabs);
    pText->document()->setDefaultTextOption(option);
    return TRUE;
}
