// What an application does besides answering its user, over and over at a timer's pace.
#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

#include <memory>
#include <vector>

/// Lies over a corner of the host's frame and at each tick makes and drops one kind of thing.
class CChurnWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CChurnWnd)

    BOOL CreateInFrame();
    void OnTimer(UINT_PTR nIDEvent);
    void OnPaint();
    LRESULT OnCount(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP_E()

private:
    void MakeControls();
    void UseControls();
    void WrapAll();
    void OpenDialog();
    void CloseDialog();
    void StartTimers();
    void StopTimers();
    void Draw();
    void SendAndPost();
    void UseRegistry();
    void MeetThread();

    std::vector<std::unique_ptr<CWnd_E>> m_controls;
    std::unique_ptr<CDialog_E> m_pDialog;
    unsigned m_nTicks = 0;
    WPARAM m_nCounted = 0;
};
