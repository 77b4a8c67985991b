#include <VxMFCEmu/core/memorystate.h>

#include <QtCore/QDebug>

#include <fstream>
#include <string>

#include <unistd.h>

namespace {

bool contains(const std::string& line, const char* label)
{
    return line.find(label) != std::string::npos;
}

int numberAfterTab(const std::string& line)
{
    const std::size_t tab = line.find('\t');
    return std::stoi(tab == std::string::npos ? std::string() : line.substr(tab + 1));
}

} // namespace

void CMemoryState_E::Checkpoint()
{
    std::ifstream status("/proc/" + std::to_string(::getpid()) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (contains(line, "VmRSS:"))
            m_nPhysical = numberAfterTab(line);
        else if (contains(line, "VmSize:"))
            m_nVirtual = numberAfterTab(line);
    }
}

BOOL CMemoryState_E::Difference(const CMemoryState_E& oldState, const CMemoryState_E& newState)
{
    m_nPhysical = newState.m_nPhysical - oldState.m_nPhysical;
    m_nVirtual = newState.m_nVirtual - oldState.m_nVirtual;
    return TRUE; // Intended: also when nothing has changed.
}

void CMemoryState_E::DumpStatistics() const
{
    qDebug() << "Physical Memory changed: " << m_nPhysical << " KB. "
             << "Virtual Memory changed: " << m_nVirtual << " KB.";
}
