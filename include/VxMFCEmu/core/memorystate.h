/// @file memorystate.h
/// Snapshots of the process's memory use.
///
/// Differs from Win32: a snapshot is what the system says of the whole process; objects are not
/// listed.
#pragma once

#include <VxMFCEmu/types.h>

/// How much memory the process uses, or by how much that has changed.
class VXMFC_EXPORT CMemoryState_E
{
public:
    CMemoryState_E() = default;

    /// Takes a snapshot; without a process status file the old one stays. Throws what `std::stoi`
    /// throws when a number there is none or does not fit an int.
    void Checkpoint();
    /// Becomes @p newState minus @p oldState. Differs from Win32: always TRUE.
    BOOL Difference(const CMemoryState_E& oldState, const CMemoryState_E& newState);
    /// Writes both figures as one debug message.
    void DumpStatistics() const;
    /// Does nothing.
    void UpdateData() {}
    /// Does nothing.
    void DumpAllObjectsSince() const {}

    /// Resident size in kilobytes.
    LONGLONG GetPhysicalMemory() const { return m_nPhysical; }
    /// Virtual size in kilobytes.
    LONGLONG GetVirtualMemory() const { return m_nVirtual; }

private:
    LONGLONG m_nPhysical = 0;
    LONGLONG m_nVirtual = 0;
};
