// What is known of files, and setting it.
#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileinfo_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxoserror_p.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>

using namespace vx::detail;

static_assert(CFile_E::readOnly == FILE_ATTRIBUTE_READONLY &&
              CFile_E::hidden == FILE_ATTRIBUTE_HIDDEN &&
              CFile_E::directory == FILE_ATTRIBUTE_DIRECTORY &&
              CFile_E::device == FILE_ATTRIBUTE_DEVICE);

namespace {

/// False when the path is too long for the record.
bool fill(CFileStatus_E& status, const CString_E& strPath, const FileInfo& info)
{
    const auto length = static_cast<std::size_t>(strPath.GetLength());
    if (length >= CFileStatus_E::kMaxPath)
        return false;
    std::copy_n(strPath.GetString(), length + 1, status.m_szFullName);
    status.m_ctime = info.created.tv_sec;
    status.m_mtime = info.written.tv_sec;
    status.m_atime = info.accessed.tv_sec;
    status.m_size = info.size;
    status.m_attribute = static_cast<BYTE>(info.attributes);
    return true;
}

} // namespace

BOOL CFile_E::GetStatus(CFileStatus_E& rStatus) const
{
    rStatus = {};
    FileInfo info;
    Check(fileInfo(Descriptor(), QFile::encodeName(VxQString(m_strFileName)), info));
    return fill(rStatus, m_strFileName, info);
}

BOOL CFile_E::GetStatus(const wchar_t* lpszFileName, CFileStatus_E& rStatus)
{
    rStatus = {};
    const QString name = localFileName(lpszFileName);
    FileInfo info;
    return succeeded(fileInfo(QFile::encodeName(name), info)) &&
           fill(rStatus, QFileInfo(name).absoluteFilePath(), info);
}

void CFile_E::SetStatus(const wchar_t* lpszFileName, const CFileStatus_E& status)
{
    const QByteArray name = localFileBytes(lpszFileName);
    const auto timeOf = [](std::time_t seconds) {
        return timespec{seconds, seconds == 0 ? UTIME_OMIT : 0};
    };
    const timespec times[] = {timeOf(status.m_atime), timeOf(status.m_mtime)};
    LONG error = setReadOnly(name, (status.m_attribute & readOnly) != 0);
    if (error == NO_ERROR && ::utimensat(AT_FDCWD, name.constData(), times, 0) != 0)
        error = osErrorOf(errno, name);
    CFileException_E::ThrowOsError(error, lpszFileName);
}
