// What image lists do not do.
#include <VxMFCEmu/gdi/imagelist.h>

int CImageList_E::Add(HICON) { return 0; }

int CImageList_E::Replace(int, HICON) { return 0; }

HICON CImageList_E::ExtractIcon(int) { return nullptr; }

BOOL CImageList_E::SetOverlayImage(int, int) { return FALSE; }

BOOL CImageList_E::Draw(CDC_E*, int, tagPOINT, UINT) { return FALSE; }

BOOL CImageList_E::DrawEx(CDC_E*, int, tagPOINT, tagSIZE, COLORREF, COLORREF, UINT)
{
    return FALSE;
}

BOOL CImageList_E::DrawIndirect(tagIMAGELISTDRAWPARAMS*) { return FALSE; }

BOOL CImageList_E::Read(CArchive_E*) { return FALSE; }

BOOL CImageList_E::Write(CArchive_E*) { return FALSE; }

BOOL CImageList_E::BeginDrag(int, tagPOINT) { return FALSE; }

void CImageList_E::EndDrag() {}

BOOL CImageList_E::DragMove(tagPOINT) { return FALSE; }

BOOL CImageList_E::DragEnter(CWnd_E*, tagPOINT) { return FALSE; }

BOOL CImageList_E::DragLeave(CWnd_E*) { return FALSE; }

BOOL CImageList_E::DragShowNolock(BOOL) { return FALSE; }

BOOL CImageList_E::SetDragCursorImage(int, tagPOINT) { return FALSE; }

CImageList_E* CImageList_E::GetDragImage(tagPOINT*, tagPOINT*) { return nullptr; }
