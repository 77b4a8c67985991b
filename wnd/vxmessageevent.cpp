#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/window.h>

#include <QtCore/QCoreApplication>

#include <new>

namespace {

struct FreeBlock
{
    FreeBlock* pNext;
};

constexpr int kMaxFreeBlocks = 128; // a burst of input; more go back to the heap

// Only the thread that loads the library, which is the one with the windows, keeps blocks: the
// lists of other threads would be lost when they end.
struct FreeBlocks
{
    FreeBlock* pFirst;
    int nLeft; // how many more it keeps
};
[[gnu::tls_model("initial-exec")]] thread_local FreeBlocks t_freeBlocks = {nullptr, 0};

// What outlives its use here: kept blocks, and messages that are still posted when the library is
// unloaded, whose destructors go with it.
struct LibraryLifetime
{
    LibraryLifetime() { t_freeBlocks.nLeft = kMaxFreeBlocks; }
    ~LibraryLifetime()
    {
        if (QCoreApplication::instance()) {
            QCoreApplication::removePostedEvents(nullptr, VxWinMsgEvent::EventType);
            QCoreApplication::removePostedEvents(nullptr, VxMsgBoxEvent::EventType);
        }
        t_freeBlocks.nLeft = 0;
        while (FreeBlock* const pBlock = t_freeBlocks.pFirst) {
            t_freeBlocks.pFirst = pBlock->pNext;
            ::operator delete(pBlock);
        }
    }
} libraryLifetime;

} // namespace

VxWinMsgEvent::~VxWinMsgEvent() = default;
VxMsgBoxEvent::VxMsgBoxEvent(const CString_E& strText, const CString_E& strCaption)
    : QEvent(EventType), text(strText), caption(strCaption)
{
}

VxMsgBoxEvent::~VxMsgBoxEvent()
{
    if (m_pPoster)
        m_pPoster->ForgetPending(this); // dropped, or swallowed by another filter
}

void* VxWinMsgEvent::operator new(std::size_t size)
{
    FreeBlock* const pBlock = t_freeBlocks.pFirst;
    if (size != sizeof(VxWinMsgEvent) || !pBlock)
        return ::operator new(size);
    t_freeBlocks.pFirst = pBlock->pNext;
    ++t_freeBlocks.nLeft;
    return pBlock;
}

void VxWinMsgEvent::operator delete(void* pBlock, std::size_t size)
{
    if (!pBlock || size != sizeof(VxWinMsgEvent) || t_freeBlocks.nLeft == 0) {
        ::operator delete(pBlock);
        return;
    }
    t_freeBlocks.pFirst = new (pBlock) FreeBlock{t_freeBlocks.pFirst};
    --t_freeBlocks.nLeft;
}
