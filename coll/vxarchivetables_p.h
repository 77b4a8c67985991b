// Not part of the public interface. What an archive knows of the objects and classes in it.
#pragma once

#include <VxMFCEmu/core/object.h>

#include <vector>

namespace vx::detail {

/// Numbers of objects and classes by their addresses: a hash table with open addressing.
class PointerNumbers
{
public:
    /// The number of @p pKey, which is not null; 0 when there is none.
    DWORD find(const void* pKey) const
    {
        return m_slots.empty() ? 0 : m_slots[slotOf(pKey)].number;
    }
    /// @p number is not 0.
    void set(const void* pKey, DWORD number)
    {
        if (m_used >= m_slots.size() / 2)
            grow(m_slots.size() * 2);
        Slot& slot = m_slots[slotOf(pKey)];
        m_used += slot.number == 0 ? 1 : 0;
        slot = {pKey, number};
    }
    void reserve(std::size_t count) { grow(count * 2); }

private:
    struct Slot
    {
        const void* pKey;
        DWORD number; // 0: free
    };

    std::size_t slotOf(const void* pKey) const
    {
        // The high bits of the product are the well mixed ones.
        std::size_t i = (reinterpret_cast<std::uintptr_t>(pKey) * 0x9E3779B97F4A7C15U) >> m_shift;
        while (m_slots[i].number != 0 && m_slots[i].pKey != pKey)
            i = (i + 1) & (m_slots.size() - 1);
        return i;
    }
    void grow(std::size_t wanted)
    {
        unsigned bits = 6;
        while ((std::size_t{1} << bits) < wanted)
            ++bits;
        if (std::size_t{1} << bits <= m_slots.size())
            return;
        std::vector<Slot> old(std::size_t{1} << bits, Slot{nullptr, 0});
        m_slots.swap(old);
        m_shift = 64 - bits;
        for (const Slot& slot : old) {
            if (slot.number != 0)
                m_slots[slotOf(slot.pKey)] = slot;
        }
    }

    std::vector<Slot> m_slots; // a power of two of them
    std::size_t m_used = 0;
    unsigned m_shift = 0;
};

class ArchiveTables
{
public:
    enum class Kind : UINT
    {
        object,
        classRecord,
        failed ///< its reading threw: nothing may refer to it
    };
    struct Loaded
    {
        void* p;
        UINT nSchema; // of a class
        Kind kind;
    };

    /// Nothing may refer to the objects from number @p first on any more.
    void fail(std::size_t first)
    {
        // Objects in objects fail one after the other, the inner ones first: what is done already
        // is not looked at again.
        const bool bAround = first <= m_failedFirst && m_failedLast <= loaded.size();
        failRange(first, bAround ? m_failedFirst : loaded.size());
        if (bAround)
            failRange(m_failedLast, loaded.size());
        m_failedFirst = first;
        m_failedLast = loaded.size();
    }

    /// Storing. Objects and classes are counted together, from 1.
    PointerNumbers numbers;
    DWORD nNext = 1;
    std::size_t depth = 0;                       // of the object that is being written
    std::size_t stackAtFirst = 0;                // what was left of the stack for the outermost one
    const CRuntimeClass_E* pLastClass = nullptr; // mostly the next one too
    DWORD nLastClass = 0;

    /// Loading: by number; 0 is null.
    std::vector<Loaded> loaded = {{nullptr, 0, Kind::object}};
    const CRuntimeClass_E* pLastRequested = nullptr;
    const AFX_CLASSINIT_E* pLastEntry = nullptr;

private:
    void failRange(std::size_t first, std::size_t last)
    {
        for (; first < last; ++first) {
            if (loaded[first].kind == Kind::object)
                loaded[first].kind = Kind::failed;
        }
    }

    std::size_t m_failedFirst = 0; // the last range that failed
    std::size_t m_failedLast = 0;
};

} // namespace vx::detail
