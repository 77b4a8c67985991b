// The count that is kept beside a POSIX semaphore.
#pragma once

#include <pthread.h>

#include <atomic>

namespace vx::detail {

/// A count that costs the thread that made it no locked instruction: that thread counts on a page
/// of its own, which nobody else writes, all others share a page.
///
/// Ups and downs are counted apart and only grow, so that a reader who comes between two changes
/// can choose in which direction to be wrong.
class SemaphoreCount
{
public:
    explicit SemaphoreCount(long nInitial) : m_ups(nInitial) {}

    /// @p self is the calling thread, which its caller has at hand: asking for it is a call.
    void up(pthread_t self) { m_ups.add(isHome(self)); }
    void down(pthread_t self) { m_downs.add(isHome(self)); }

    /// Never more than the count, in the face of concurrent changes.
    long atLeast() const
    {
        const long nUps = m_ups.sum();
        return nUps - m_downs.sum();
    }
    /// Never less than the count, in the face of concurrent changes.
    long atMost() const
    {
        const long nDowns = m_downs.sum();
        return m_ups.sum() - nDowns;
    }

private:
    class Tally
    {
    public:
        explicit Tally(long nInitial = 0) : m_nHome(nInitial) {}

        void add(bool bHome)
        {
            if (bHome)
                m_nHome.store(m_nHome.load(std::memory_order_relaxed) + 1,
                              std::memory_order_release);
            else
                m_nOthers.fetch_add(1, std::memory_order_acq_rel);
        }
        long sum() const
        {
            return m_nHome.load(std::memory_order_acquire) +
                   m_nOthers.load(std::memory_order_acquire);
        }

    private:
        std::atomic<long> m_nHome;
        std::atomic<long> m_nOthers{0};
    };

    bool isHome(pthread_t self) const { return pthread_equal(self, m_home) != 0; }

    const pthread_t m_home = pthread_self();
    Tally m_ups;
    Tally m_downs;
};

} // namespace vx::detail
