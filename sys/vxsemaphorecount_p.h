// The count that is kept beside a POSIX semaphore.
#pragma once

#include <atomic>

namespace vx::detail {

/// A count that costs the first threads to change it no locked instruction: each counts on a page
/// of its own, which nobody else writes; all others share the last page.
///
/// Ups and downs are counted apart and only grow, so that a reader who comes between two changes
/// can choose in which direction to be wrong.
class SemaphoreCount
{
public:
    explicit SemaphoreCount(long nInitial) : m_nInitial(nInitial) {}

    void up() { add(&Page::nUps); }
    void down() { add(&Page::nDowns); }

    /// Never more than the count, in the face of concurrent changes.
    long atLeast() const
    {
        const long nUps = sum(&Page::nUps);
        return m_nInitial + nUps - sum(&Page::nDowns);
    }
    /// Never less than the count, in the face of concurrent changes.
    long atMost() const
    {
        const long nDowns = sum(&Page::nDowns);
        return m_nInitial + sum(&Page::nUps) - nDowns;
    }

private:
    struct Page
    {
        std::atomic<const char*> pOwner{nullptr};
        std::atomic<long> nUps{0};
        std::atomic<long> nDowns{0};
    };
    using Tally = std::atomic<long> Page::*;

    void add(Tally tally)
    {
        for (Page& page : m_pages) {
            if (page.pOwner.load(std::memory_order_relaxed) != &s_here)
                continue;
            std::atomic<long>& own = page.*tally;
            own.store(own.load(std::memory_order_relaxed) + 1, std::memory_order_release);
            return;
        }
        (m_pages[takePage()].*tally).fetch_add(1, std::memory_order_acq_rel);
    }

    /// A page for a thread that has none yet, the shared one when all are given away.
    [[gnu::noinline]] int takePage()
    {
        int nPage = 0;
        const char* pNobody = nullptr;
        while (nPage < kShared &&
               !m_pages[nPage].pOwner.compare_exchange_strong(pNobody, &s_here)) {
            pNobody = nullptr;
            ++nPage;
        }
        int nUsed = m_nUsed.load();
        while (nUsed <= nPage && !m_nUsed.compare_exchange_weak(nUsed, nPage + 1)) {
        }
        return nPage;
    }

    long sum(Tally tally) const
    {
        const int nUsed = m_nUsed.load(std::memory_order_acquire);
        long nSum = (m_pages[0].*tally).load(std::memory_order_acquire);
        for (int i = 1; i < nUsed; ++i)
            nSum += (m_pages[i].*tally).load(std::memory_order_acquire);
        return nSum;
    }

    // Its address tells threads apart, for less than the call that asks for the thread's number.
    [[gnu::tls_model("initial-exec")]] static inline thread_local char s_here = 0;

    const long m_nInitial;
    static constexpr int kShared = 4;
    Page m_pages[kShared + 1];
    std::atomic<int> m_nUsed{0};
};

} // namespace vx::detail
