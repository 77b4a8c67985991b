#include <VxMFCEmu/core/log.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QCalendar>
#include <QtCore/QDateTime>
#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <mutex>

#include <fcntl.h>
#include <unistd.h>

namespace {

using LinkText = std::array<char, 1024>;

// Calendars are there while it is: Qt could not write the date when static objects log at the end.
const QCalendar g_calendar;

/// Read once. A plain array, which is still there when the destructors of static objects log.
const LinkText& executableLink()
{
    static const LinkText link = [] {
        LinkText path{};
        if (::readlink("/proc/self/exe", path.data(), path.size() - 1) < 0)
            path.front() = '\0';
        return path;
    }();
    return link;
}

/// Appends in as few writes as the system takes, normally one.
void appendToFile(const char* path, const QByteArray& bytes)
{
    const int fd = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0)
        return;
    const char* next = bytes.constData();
    auto left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = ::write(fd, next, left);
        if (written < 0 && errno != EINTR)
            break;
        if (written > 0) {
            next += written;
            left -= static_cast<std::size_t>(written);
        }
    }
    ::close(fd);
}

} // namespace

CString_E GetApplicationDirectory(void*)
{
    // Intended: Latin-1, whatever the file system's encoding.
    const CString_E path(QString::fromLatin1(executableLink().data()));
    const int slash = path.ReverseFind(L'/');
    return slash < 0 ? path : path.Left(slash);
}

CString_E GetMainDirectory()
{
    // Intended: a character is dropped before the search, so that a trailing separator does not
    // count.
    CString_E directory = GetApplicationDirectory(nullptr);
    directory = directory.Left(directory.GetLength() - 1).ToUnixSeperator();
    return directory.Left(directory.ReverseFind(L'/'));
}

void vxLogPrintf(const wchar_t* lpszFormat, ...)
{
    CString_E message;
    va_list args;
    va_start(args, lpszFormat);
    message.FormatV(lpszFormat, args);
    va_end(args);

    const QByteArray path =
        QFile::encodeName(VxQString(GetMainDirectory()) + QLatin1String("/Common/Plok.log"));
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    const QString time = QDateTime::currentDateTime().toString(
        QStringLiteral("yyyy-MM-dd hh:mm:ss ddd"), g_calendar);
    const QByteArray line = '[' + time.toUtf8() + "] " + VxQString(message).toUtf8() + '\n';
    appendToFile(path.constData(), line);
}
