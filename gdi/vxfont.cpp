#include <VxMFCEmu/gdi/font.h>

#include "gdi/vxgdiobject_p.h"

#include <VxMFCEmu/text/vxqstring.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC_E(CFont_E, CGdiObject_E, QObject)

namespace {

using vx::detail::valueOf;

struct WeightRow
{
    int lfWeight;
    int weight;
};

constexpr WeightRow kWeights[] = {
    {FW_THIN, QFont::Thin},     {FW_EXTRALIGHT, QFont::ExtraLight}, {FW_LIGHT, QFont::Light},
    {FW_NORMAL, QFont::Normal}, {FW_MEDIUM, QFont::Medium},         {FW_SEMIBOLD, QFont::DemiBold},
    {FW_BOLD, QFont::Bold},     {FW_EXTRABOLD, QFont::ExtraBold},   {FW_BLACK, QFont::Black},
};

/// The value of one column of the row nearest in another.
int nearest(int WeightRow::*pFrom, int nFrom, int WeightRow::*pTo)
{
    return std::min_element(std::begin(kWeights), std::end(kWeights),
                            [=](const WeightRow& a, const WeightRow& b) {
                                return qAbs(a.*pFrom - nFrom) < qAbs(b.*pFrom - nFrom);
                            })
               ->*pTo;
}

struct FamilyRow
{
    BYTE lfFamily;
    QFont::StyleHint hint;
};

constexpr FamilyRow kFamilies[] = {
    {FF_ROMAN, QFont::Serif},    {FF_SWISS, QFont::SansSerif},       {FF_MODERN, QFont::Monospace},
    {FF_SCRIPT, QFont::Cursive}, {FF_DECORATIVE, QFont::Decorative},
};

QFont::StyleHint styleHint(BYTE nPitchAndFamily)
{
    for (const FamilyRow& row : kFamilies) {
        if (row.lfFamily == (nPitchAndFamily & 0xF0))
            return row.hint;
    }
    return (nPitchAndFamily & 3) == FIXED_PITCH ? QFont::Monospace : QFont::AnyStyle;
}

QFont::StyleStrategy styleStrategy(BYTE nQuality)
{
    switch (nQuality) {
    case NONANTIALIASED_QUALITY:
        return QFont::NoAntialias;
    case ANTIALIASED_QUALITY:
    case CLEARTYPE_QUALITY:
        return QFont::PreferAntialias;
    default:
        return QFont::PreferDefault;
    }
}

/// Gives @p font the largest size of which a line is not higher than @p nHeight pixels.
void setLineHeight(QFont& font, int nHeight)
{
    font.setPixelSize(nHeight);
    // Fonts can be measured in a GUI program only.
    const int nLine = qGuiApp ? QFontMetrics(font).height() : nHeight;
    if (nLine <= 0)
        return;
    font.setPixelSize(qMax(1, static_cast<int>(qint64{nHeight} * nHeight / nLine) + 1));
    while (qGuiApp && font.pixelSize() > 1 && QFontMetrics(font).height() > nHeight)
        font.setPixelSize(font.pixelSize() - 1);
}

void setHeight(QFont& font, int nHeight)
{
    constexpr int kMaxPixels = 1 << 14; // more than any display shows; keeps the arithmetic safe
    if (nHeight > 0)
        setLineHeight(font, qMin(nHeight, kMaxPixels));
    else if (nHeight < 0)
        font.setPixelSize(-qMax(nHeight, -kMaxPixels));
}

void setWidth(QFont& font, int nWidth)
{
    const int nAverage = nWidth > 0 && qGuiApp ? QFontMetrics(font).averageCharWidth() : 0;
    if (nAverage > 0)
        font.setStretch(static_cast<int>(qBound<qint64>(1, qint64{100} * nWidth / nAverage, 4000)));
}

/// Everything but the size.
QFont unsizedFont(const tagLOGFONT& logFont)
{
    QFont font;
    const WCHAR* const pEnd =
        std::find(logFont.lfFaceName, logFont.lfFaceName + LF_FACESIZE, L'\0');
    const QString strFace =
        QString::fromWCharArray(logFont.lfFaceName, static_cast<int>(pEnd - logFont.lfFaceName));
    if (!strFace.isEmpty())
        font.setFamily(strFace);
    font.setStyleHint(styleHint(logFont.lfPitchAndFamily), styleStrategy(logFont.lfQuality));
    font.setWeight(logFont.lfWeight == FW_DONTCARE
                       ? int{QFont::Normal}
                       : nearest(&WeightRow::lfWeight, logFont.lfWeight, &WeightRow::weight));
    font.setItalic(logFont.lfItalic);
    font.setUnderline(logFont.lfUnderline);
    font.setStrikeOut(logFont.lfStrikeOut);
    return font;
}

double dotsPerInch()
{
    const QScreen* const pScreen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
    return pScreen ? pScreen->logicalDotsPerInchY() : 96.0;
}

int characterHeight(const QFont& font)
{
    return font.pixelSize() > 0 ? font.pixelSize()
                                : qRound(font.pointSizeF() * dotsPerInch() / 72.0);
}

void setFaceName(tagLOGFONT& logFont, const QString& strFace)
{
    const QVector<uint> text = strFace.toUcs4();
    WCHAR* pTo = logFont.lfFaceName;
    const int nCount = qMin(text.size(), LF_FACESIZE - 1);
    pTo = std::transform(text.begin(), text.begin() + nCount, pTo,
                         [](uint c) { return static_cast<WCHAR>(c); });
    std::fill(pTo, logFont.lfFaceName + LF_FACESIZE, L'\0');
}

} // namespace

CFont_E* CFont_E::FromHandle(HFONT hFont)
{
    auto* const pFont = vx::detail::gdiObjectFromHandle<CFont_E>(hFont);
    if (pFont && afxMapHGDIOBJ_E(TRUE)->LookupTemporary(hFont) == pFont)
        static_cast<QFont&>(*pFont) = *static_cast<const QFont*>(hFont);
    return pFont;
}

BOOL CFont_E::Attach(HFONT hFont)
{
    if (!CGdiObject_E::Attach(hFont))
        return FALSE;
    static_cast<QFont&>(*this) = *static_cast<const QFont*>(hFont);
    m_logFont = {};
    m_logFont.lfCharSet = DEFAULT_CHARSET;
    m_hasLogFont = false;
    return TRUE;
}

BOOL CFont_E::Create(const tagLOGFONT& logFont, const QFont& font)
{
    const tagLOGFONT kept = logFont; // may be our own
    Attach(new QFont(font));
    m_logFont = kept;
    m_hasLogFont = true;
    return TRUE;
}

BOOL CFont_E::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                         BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                         BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                         BYTE nPitchAndFamily, LPCWSTR lpszFacename)
{
    tagLOGFONT logFont{
        nHeight,    nWidth,   nEscapement,   nOrientation,   nWeight,  bItalic,         bUnderline,
        cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, {}};
    setFaceName(logFont, VxQString(lpszFacename));
    return CreateFontIndirect(&logFont);
}

BOOL CFont_E::CreateFontIndirect(const tagLOGFONT* lpLogFont)
{
    if (!lpLogFont)
        return FALSE;
    QFont font = unsizedFont(*lpLogFont);
    setHeight(font, lpLogFont->lfHeight);
    setWidth(font, lpLogFont->lfWidth);
    return Create(*lpLogFont, font);
}

BOOL CFont_E::CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC_E* pDC)
{
    tagLOGFONT logFont{};
    logFont.lfHeight = nPointSize;
    logFont.lfWeight = FW_NORMAL;
    logFont.lfCharSet = DEFAULT_CHARSET;
    setFaceName(logFont, VxQString(lpszFaceName));
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont_E::CreatePointFontIndirect(const tagLOGFONT* lpLogFont, CDC_E*)
{
    if (!lpLogFont || lpLogFont->lfHeight <= 0)
        return FALSE;
    QFont font = unsizedFont(*lpLogFont);
    font.setPointSizeF(lpLogFont->lfHeight / 10.0);
    setWidth(font, lpLogFont->lfWidth);
    tagLOGFONT logFont = *lpLogFont;
    logFont.lfHeight = -characterHeight(font);
    return Create(logFont, font);
}

int CFont_E::GetLogFont(tagLOGFONT* pLogFont) const
{
    const auto* const pMade = valueOf<const QFont>(this);
    if (!pMade || !pLogFont)
        return 0;
    *pLogFont = m_logFont;
    if (m_hasLogFont && *pMade == static_cast<const QFont&>(*this))
        return 1;
    pLogFont->lfHeight = -characterHeight(*this);
    pLogFont->lfWeight = nearest(&WeightRow::weight, weight(), &WeightRow::lfWeight);
    pLogFont->lfItalic = italic();
    pLogFont->lfUnderline = underline();
    pLogFont->lfStrikeOut = strikeOut();
    setFaceName(*pLogFont, family());
    return 1;
}

CGdiObject_E::FreeHandleFn CFont_E::HandleDeleter() const { return &vx::detail::freeValue<QFont>; }
