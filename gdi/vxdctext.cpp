// Text: measuring and drawing it.
#include "gdi/vxdc_p.h"

#include <VxMFCEmu/gdi/drawtext.h>
#include <VxMFCEmu/gdi/textmetrics.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtGui/QFontInfo>
#include <QtGui/QFontMetrics>

#include <climits>
#include <cwchar>
#include <numeric>

using namespace vx::detail;

namespace {

/// The first @p nCount characters; all of them when that is negative or more than there are.
QString textOf(const wchar_t* lpszString, int nCount)
{
    if (!lpszString || nCount < 0)
        return VxQString(lpszString);
    const std::size_t length = wcsnlen(lpszString, static_cast<std::size_t>(nCount));
    return VxQString(CString_E(lpszString, static_cast<int>(length)));
}

/// What `QPen(color)` is.
bool isPlain(const QPen& pen) { return pen == QPen(pen.color()); }

int lineHeight(const QPainter& painter) { return QFontMetrics(painter.font()).height(); }

} // namespace

CSize_E CDC_E::GetOutputTextExtent(const CString_E& str) const
{
    const QFontMetrics metrics(m_painter.font());
    return {metrics.horizontalAdvance(VxQString(str)), metrics.height()};
}

CSize_E CDC_E::GetOutputTextExtent(const wchar_t* lpszString, int nCount) const
{
    const QFontMetrics metrics(m_painter.font());
    return {metrics.horizontalAdvance(textOf(lpszString, nCount)), metrics.height()};
}

BOOL CDC_E::GetTextMetrics(tagTEXTMETRICW* pMetrics) const
{
    if (!pMetrics)
        return FALSE;
    const QFont& font = m_painter.font();
    const QFontMetrics metrics(font);
    const QFontInfo info(font);
    *pMetrics = {};
    pMetrics->tmHeight = metrics.ascent() + metrics.descent();
    pMetrics->tmAscent = metrics.ascent();
    pMetrics->tmDescent = metrics.descent();
    pMetrics->tmInternalLeading = qMax(0, pMetrics->tmHeight - info.pixelSize());
    pMetrics->tmExternalLeading = qMax(0, metrics.leading());
    pMetrics->tmAveCharWidth = metrics.averageCharWidth();
    pMetrics->tmMaxCharWidth = metrics.maxWidth();
    pMetrics->tmWeight = info.bold() ? 700 : 400;
    pMetrics->tmDigitizedAspectX = GetDeviceCaps(LOGPIXELSX);
    pMetrics->tmDigitizedAspectY = GetDeviceCaps(LOGPIXELSY);
    pMetrics->tmFirstChar = L' ';
    pMetrics->tmLastChar = static_cast<WCHAR>(QChar::LastValidCodePoint);
    pMetrics->tmDefaultChar = static_cast<WCHAR>(QChar::ReplacementCharacter);
    pMetrics->tmBreakChar = L' ';
    pMetrics->tmItalic = info.italic();
    pMetrics->tmUnderlined = font.underline();
    pMetrics->tmStruckOut = font.strikeOut();
    pMetrics->tmPitchAndFamily = info.fixedPitch() ? BYTE{0} : TMPF_FIXED_PITCH;
    pMetrics->tmCharSet = 1;
    return TRUE;
}

int CDC_E::DrawTextInRect(const QString& str, const tagRECT* pRect, int nFormat)
{
    const QPen pen = m_painter.pen();
    // A pen of that very colour may still be none at all, or a translucent one.
    const bool colored =
        m_textColor != CLR_NONE && (!isPlain(pen) || pen.color() != QColor(toQColor(m_textColor)));
    if (colored)
        m_painter.setPen(toQColor(m_textColor));
    if (pRect) {
        const UprightScope upright(m_painter);
        m_painter.drawText(fromRect(upright.rect(*pRect)), nFormat, str);
    }
    // Intended: width and style of the pen are lost.
    if (!isPlain(pen))
        m_painter.setPen(QPen(pen.color()));
    else if (colored)
        m_painter.setPen(pen);
    return lineHeight(m_painter);
}

int CDC_E::DrawText(const CString_E& str, tagRECT* pRect, int nFormat)
{
    return DrawTextInRect(VxQString(str), pRect, nFormat);
}

int CDC_E::DrawText(const wchar_t* lpszString, int nCount, tagRECT* pRect, int nFormat)
{
    return DrawTextInRect(textOf(lpszString, nCount), pRect, nFormat);
}

BOOL CDC_E::TextOutAt(int x, int y, const QString& str, const int* pDxWidths)
{
    if (!m_painter.isActive())
        return FALSE;
    const UINT align = m_modes.textAlign;
    const QFontMetrics metrics(m_painter.font());
    const auto characters = str.toUcs4();
    int width = 0;
    if (pDxWidths)
        width = std::accumulate(pDxWidths, pDxWidths + characters.size(), 0, &wrappingAdd);
    else if (align & (TA_UPDATECP | TA_CENTER))
        width = metrics.horizontalAdvance(str);
    const bool fromCurrent = (align & TA_UPDATECP) != 0;
    const UprightScope upright(m_painter);
    QPoint at(upright.x(fromCurrent ? m_x : x), upright.y(fromCurrent ? m_y : y));
    if ((align & TA_CENTER) == TA_CENTER)
        at.rx() = wrappingSub(at.x(), width / 2);
    else if (align & TA_RIGHT)
        at.rx() = wrappingSub(at.x(), width);
    if ((align & TA_BASELINE) != TA_BASELINE)
        at.ry() = wrappingAdd(at.y(), align & TA_BOTTOM ? -metrics.descent() : metrics.ascent());

    const QPen pen = m_painter.pen();
    m_painter.setPen(GetTextColor());
    if (pDxWidths) {
        QPoint place = at;
        for (int i = 0; i < characters.size(); ++i) {
            m_painter.drawText(place, QString::fromUcs4(&characters[i], 1));
            place.rx() = wrappingAdd(place.x(), pDxWidths[i]);
        }
    } else {
        m_painter.drawText(at, str);
    }
    m_painter.setPen(pen);
    if (fromCurrent && (align & TA_CENTER) != TA_CENTER)
        m_x = wrappingAdd(m_x, upright.x(align & TA_RIGHT ? wrappingSub(0, width) : width));
    return TRUE;
}

BOOL CDC_E::TextOut(int x, int y, const CString_E& str)
{
    return TextOutAt(x, y, VxQString(str), nullptr);
}

BOOL CDC_E::TextOut(int x, int y, const wchar_t* lpszString, int nCount)
{
    return TextOutAt(x, y, textOf(lpszString, nCount), nullptr);
}

BOOL CDC_E::ExtTextOut(int x, int y, UINT nOptions, const tagRECT* pRect, const wchar_t* lpszString,
                       UINT nCount, const int* pDxWidths)
{
    if (!m_painter.isActive())
        return FALSE;
    const PainterState state(m_painter);
    if (pRect) {
        const UprightScope upright(m_painter);
        const QRect rect = fromRect(upright.rect(*pRect));
        if (nOptions & ETO_OPAQUE)
            m_painter.fillRect(rect, m_painter.background());
        if (nOptions & ETO_CLIPPED)
            m_painter.setClipRect(rect, Qt::IntersectClip);
    }
    return TextOutAt(x, y, textOf(lpszString, static_cast<int>(qMin<UINT>(nCount, INT_MAX))),
                     pDxWidths);
}

BOOL CDC_E::ExtTextOut(int x, int y, UINT nOptions, const tagRECT* pRect, const CString_E& str,
                       const int* pDxWidths)
{
    return ExtTextOut(x, y, nOptions, pRect, str.GetString(), static_cast<UINT>(str.GetLength()),
                      pDxWidths);
}

int DrawTextA(CDC_E* pDC, const wchar_t* lpszString, int nCount, tagRECT* pRect, UINT nFormat)
{
    if (!pDC)
        return 0;
    QPainter& painter = pDC->m_painter;
    const QColor color = painter.pen().color();
    painter.setPen(pDC->GetTextColor());
    const int height = pDC->DrawText(lpszString, nCount, pRect, static_cast<int>(nFormat));
    painter.setPen(color);
    return height;
}

int DrawTextW(CDC_E* pDC, const wchar_t* lpszString, int, tagRECT* pRect, UINT nFormat)
{
    return DrawTextA(pDC, lpszString, -1, pRect, nFormat);
}

int ToQtTextFlag(UINT nFormat)
{
    int flags = 0;
    if (nFormat & DT_VCENTER)
        flags |= Qt::AlignVCenter;
    if (nFormat & DT_RIGHT)
        flags |= Qt::AlignRight;
    if (nFormat & DT_SINGLELINE)
        flags |= Qt::TextSingleLine;
    if (nFormat & DT_NOPREFIX)
        flags |= Qt::TextHideMnemonic;
    if (nFormat & DT_CENTER)
        flags |= Qt::AlignCenter; // Intended: in both directions.
    if (nFormat & DT_WORDBREAK)
        flags |= Qt::TextWordWrap;
    return flags;
}
