// Not part of the public interface. Whether a wrapper and its object outlive a call into code that
// may delete either.
#pragma once

#include <QtCore/QPointer>

class CObject_E;

namespace vx::detail {

/// Watches a wrapper and the object whose event it handles, for the time of one call. The wrapper
/// reports what becomes of them, which costs nothing until it happens; a QPointer for each would
/// cost every event of every window two pairs of locked instructions.
class DispatchGuard
{
public:
    DispatchGuard(const CObject_E* pWrapper, QObject* pObject, bool bound)
        : m_pOuter(s_pInnermost), m_pWrapper(pWrapper), m_pObject(pObject), m_bound(bound)
    {
        if (!bound)
            m_object = pObject;
        s_pInnermost = this;
    }
    ~DispatchGuard() { s_pInnermost = m_pOuter; }
    Q_DISABLE_COPY_MOVE(DispatchGuard)

    bool wrapperAlive() const { return !m_wrapperGone; }
    bool objectAlive() const { return !m_objectGone && (m_bound || !m_object.isNull()); }

    /// The wrapper is being destroyed.
    static void wrapperDestroyed(const CObject_E* pWrapper);
    /// The wrapper lets go of its object, which lives on: nobody will report the object's end.
    static void objectReleased(QObject* pObject);
    /// The object is being destroyed.
    static void objectDestroyed(const QObject* pObject);

private:
    // Read for every event: at a fixed place of the thread's storage it takes no call to find it.
    // One pointer fits into what the loader keeps free for libraries that come later.
    [[gnu::tls_model("initial-exec")]] static inline thread_local DispatchGuard* s_pInnermost =
        nullptr;

    DispatchGuard* m_pOuter;
    const CObject_E* m_pWrapper;
    const QObject* m_pObject;
    QPointer<QObject> m_object; // only when not bound
    bool m_bound;
    bool m_wrapperGone = false;
    bool m_objectGone = false;
};

} // namespace vx::detail
