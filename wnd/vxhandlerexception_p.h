// Not part of the public interface. What becomes of an exception that a handler lets out.
#pragma once

#include <VxMFCEmu/core/exceptions.h>

#include <exception>
#include <functional>
#include <utility>

namespace vx::detail {

/// The event loop of a modal dialog. No exception may pass through it: what a handler throws while
/// it runs is kept, and ends it.
class ModalLoop
{
public:
    explicit ModalLoop(std::function<void()> end)
        : m_end(std::move(end)), m_pOuter(std::exchange(s_pInnermost, this))
    {
    }
    ~ModalLoop() { s_pInnermost = m_pOuter; }
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// Ends the innermost loop with the exception that is being handled; rethrows it when there is
    /// none.
    static void endWithCurrentException()
    {
        if (!s_pInnermost)
            throw;
        s_pInnermost->keepCurrentException();
        s_pInnermost->m_end();
    }
    void keepCurrentException()
    {
        if (!m_pException)
            m_pException = std::current_exception();
    }
    void rethrow() const
    {
        if (m_pException)
            std::rethrow_exception(m_pException);
    }

private:
    std::function<void()> m_end;
    std::exception_ptr m_pException; // the first one
    ModalLoop* m_pOuter;
    static inline ModalLoop* s_pInnermost = nullptr;
};

/// To be called while an exception is being handled: shows the message of an MFC exception, as MFC
/// does for commands and messages; another one ends the innermost modal dialog and comes out there.
inline void handleCurrentException()
{
    constexpr UINT kIconExclamation = 0x30;
    try {
        throw;
    } catch (CException_E* pException) {
        pException->ReportError(kIconExclamation);
        pException->Delete();
    } catch (...) {
        ModalLoop::endWithCurrentException();
    }
}

/// Calls @p handler; false when it let out an exception, which has been dealt with.
template <typename Handler>
bool callGuarded(Handler handler)
{
    try {
        handler();
        return true;
    } catch (...) {
        handleCurrentException();
        return false;
    }
}

} // namespace vx::detail
