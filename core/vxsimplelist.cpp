#include <VxMFCEmu/core/simplelist.h>

#include <cstring>

void* CSimpleList_E::GetNext(const void* p) const
{
    void* pNext = nullptr;
    if (p)
        std::memcpy(&pNext, static_cast<const char*>(p) + m_nNextOffset, sizeof(pNext));
    return pNext;
}

void CSimpleList_E::AddHead(void* p)
{
    if (!p)
        return;
    SetNext(p, m_pHead);
    m_pHead = p;
}

BOOL CSimpleList_E::Remove(void* p)
{
    void* pBefore = nullptr;
    for (void* pElement = m_pHead; pElement; pElement = GetNext(pElement)) {
        if (pElement == p) {
            void* const pNext = GetNext(p);
            if (pBefore)
                SetNext(pBefore, pNext);
            else
                m_pHead = pNext;
            SetNext(p, nullptr);
            return TRUE;
        }
        pBefore = pElement;
    }
    return FALSE;
}

void CSimpleList_E::SetNext(void* p, void* pNext) const
{
    std::memcpy(static_cast<char*>(p) + m_nNextOffset, &pNext, sizeof(pNext));
}
