#include <VxMFCEmu/ctrl/static.h>

#include "ctrl/vxcontroltable_p.h"
#include "ctrl/vximagehandle_p.h"

#include <QtWidgets/QLabel>

IMPLEMENT_DYNCREATE_E(CStatic_E, CWnd_E, QLabel)

namespace {

using namespace vx::detail;

using Row = ControlMessage<CStatic_E>;

/// How a type in a style word looks.
struct StyleRow
{
    DWORD type;
    Qt::AlignmentFlag alignment;
    bool bWrap;
    QFrame::Shape shape;
};

// clang-format off
constexpr StyleRow kStyles[] = {
    {SS_LEFT,           Qt::AlignLeft,    true,  QFrame::NoFrame},
    {SS_CENTER,         Qt::AlignHCenter, true,  QFrame::NoFrame},
    {SS_RIGHT,          Qt::AlignRight,   true,  QFrame::NoFrame},
    {SS_SIMPLE,         Qt::AlignLeft,    false, QFrame::NoFrame},
    {SS_LEFTNOWORDWRAP, Qt::AlignLeft,    false, QFrame::NoFrame},
    {SS_BLACKFRAME,     Qt::AlignLeft,    false, QFrame::Box},
    {SS_GRAYFRAME,      Qt::AlignLeft,    false, QFrame::Box},
    {SS_WHITEFRAME,     Qt::AlignLeft,    false, QFrame::Box},
    {SS_ETCHEDHORZ,     Qt::AlignLeft,    false, QFrame::HLine},
    {SS_ETCHEDVERT,     Qt::AlignLeft,    false, QFrame::VLine},
    {SS_ETCHEDFRAME,    Qt::AlignLeft,    false, QFrame::Box},
};
// clang-format on

bool isEtched(DWORD type)
{
    return type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT || type == SS_ETCHEDFRAME;
}

void applyStyle(QLabel& label, DWORD dwStyle)
{
    const DWORD type = dwStyle & SS_TYPEMASK;
    const auto* const pRow = std::find_if(std::begin(kStyles), std::end(kStyles),
                                          [type](const StyleRow& row) { return row.type == type; });
    if (pRow != std::end(kStyles)) {
        label.setAlignment(pRow->alignment |
                           (dwStyle & SS_CENTERIMAGE ? Qt::AlignVCenter : Qt::AlignTop));
        label.setWordWrap(pRow->bWrap);
        label.setFrameShape(pRow->shape);
    } else if (dwStyle & SS_CENTERIMAGE) { // images
        label.setAlignment(Qt::AlignCenter);
    }
    if (dwStyle & SS_SUNKEN)
        label.setFrameStyle(static_cast<int>(QFrame::Panel) | QFrame::Sunken);
    else if (isEtched(type))
        label.setFrameShadow(QFrame::Sunken);
    label.setScaledContents((dwStyle & SS_REALSIZECONTROL) != 0);
}

// clang-format off
constexpr Row kMessages[] = {
    {STM_SETICON,  [](auto& label, WPARAM w, LPARAM) { return setImageHandle(label, IMAGE_ICON, static_cast<LPARAM>(w)); }},
    {STM_GETICON,  [](auto& label, WPARAM, LPARAM) { return imageHandle(label, IMAGE_ICON); }},
    {STM_SETIMAGE, [](auto& label, WPARAM w, LPARAM l) { return setImageHandle(label, w, l); }},
    {STM_GETIMAGE, [](auto& label, WPARAM w, LPARAM) { return imageHandle(label, w); }},
};
// clang-format on

} // namespace

BOOL CStatic_E::AttachDefault(QWidget* pParent)
{
    auto* const pLabel = new QLabel(pParent);
    applyStyle(*pLabel, m_dwStyle);
    return Attach(pLabel, pParent, false);
}

BOOL CStatic_E::Create(LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    return createWithText(*this, lpszText, dwStyle, rect, pParent);
}

BOOL CStatic_E::Create(LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent,
                       UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(lpszText, dwStyle, rect, pWidget); });
}

QPixmap CStatic_E::SetBitmap(const QPixmap& bitmap)
{
    return askWidget<QLabel>(*this, QPixmap(), [&bitmap](auto& label) {
        QPixmap previous = label.pixmap(Qt::ReturnByValue);
        label.setPixmap(bitmap);
        return previous;
    });
}

QPixmap CStatic_E::GetBitmap() const
{
    return askWidget<QLabel>(*this, QPixmap(),
                             [](auto& label) { return label.pixmap(Qt::ReturnByValue); });
}

QIcon CStatic_E::SetIcon(const QIcon& icon)
{
    return askWidget<QLabel>(*this, QIcon(), [&icon](auto& label) {
        QIcon previous = label.windowIcon();
        label.setWindowIcon(icon);
        return previous;
    });
}

QIcon CStatic_E::GetIcon() const
{
    return askWidget<QLabel>(*this, QIcon(), [](auto& label) { return label.windowIcon(); });
}

BOOL CStatic_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
