#include <VxMFCEmu/coll/filefunctions.h>

#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileinfo_p.h"
#include "coll/vxfilename_p.h"
#include "coll/vxoserror_p.h"
#include "coll/vxwildcards_p.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include <dirent.h>

using namespace vx::detail;

namespace {

/// A name as the system has it, which need not be UTF-8, and as text.
struct Name
{
    QByteArray bytes;
    QString text;
};

/// A search: the names found at its beginning.
struct Search
{
    QByteArray folder; // with "/" at its end
    std::vector<Name> names;
    std::size_t next = 0;
};

/// The searches that have begun and not ended.
struct Searches
{
    std::mutex mutex;
    std::unordered_map<HANDLE, std::unique_ptr<Search>> begun;
};

/// Never destroyed: static objects of an application may search later than this library's live.
Searches& searches()
{
    static auto* const all = new Searches;
    return *all;
}

/// The search behind a handle; null for what is none.
Search* searchOf(HANDLE hFindFile)
{
    Searches& all = searches();
    const std::lock_guard<std::mutex> guard(all.mutex);
    const auto found = all.begun.find(hFindFile);
    return found == all.begun.end() ? nullptr : found->second.get();
}

std::u32string codePoints(const QString& text)
{
    const QVector<uint> ucs4 = text.toUcs4();
    return {ucs4.cbegin(), ucs4.cend()};
}

LONG findNames(const QString& path, Search& search)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    search.folder = slash < 0 ? QByteArray("./") : QFile::encodeName(path.left(slash + 1));
    const std::u32string pattern = wildcardsOf(codePoints(path.mid(slash + 1)));
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(search.folder.constData()),
                                                     &::closedir);
    if (!folder)
        return errno == ENOENT ? ERROR_PATH_NOT_FOUND : osErrorOf(errno);
    while (const dirent* const entry = ::readdir(folder.get())) {
        Name name = {entry->d_name, QFile::decodeName(entry->d_name)};
        if (matchesWildcards(pattern, codePoints(name.text)))
            search.names.push_back(std::move(name));
    }
    std::sort(search.names.begin(), search.names.end(), [](const Name& a, const Name& b) {
        const int order = a.text.compare(b.text, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.text < b.text;
    });
    return NO_ERROR;
}

void fill(WIN32_FIND_DATA& data, const QString& name, const FileInfo& info)
{
    data = {};
    data.dwFileAttributes = info.attributes != 0 ? info.attributes : FILE_ATTRIBUTE_NORMAL;
    data.ftCreationTime = fileTimeOf(info.created);
    data.ftLastAccessTime = fileTimeOf(info.accessed);
    data.ftLastWriteTime = fileTimeOf(info.written);
    data.nFileSizeHigh = static_cast<DWORD>(info.size >> 32U);
    data.nFileSizeLow = static_cast<DWORD>(info.size);
    const CString_E text(name);
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(text.GetLength()),
                                              std::size(data.cFileName) - 1);
    std::copy_n(text.GetString(), length, data.cFileName);
}

bool nextFile(Search& search, WIN32_FIND_DATA& data)
{
    while (search.next < search.names.size()) {
        const Name& name = search.names[search.next++];
        FileInfo info;
        if (fileInfo(search.folder + name.bytes, info, true) == NO_ERROR) {
            fill(data, name.text, info);
            return true;
        }
    }
    return false;
}

HANDLE noSearch(LONG lOsError)
{
    failWith(lOsError);
    return INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE FindFirstFile_E(LPCWSTR lpFileName, LPWIN32_FIND_DATA lpFindFileData)
{
    const QString path = localFileName(lpFileName);
    if (!lpFindFileData || path.isEmpty())
        return noSearch(lpFindFileData ? ERROR_PATH_NOT_FOUND : ERROR_INVALID_PARAMETER);
    auto search = std::make_unique<Search>();
    const LONG error = findNames(path, *search);
    if (error != NO_ERROR)
        return noSearch(error);
    if (!nextFile(*search, *lpFindFileData))
        return noSearch(ERROR_FILE_NOT_FOUND);
    Searches& all = searches();
    const std::lock_guard<std::mutex> guard(all.mutex);
    const HANDLE hFindFile = search.get();
    all.begun.emplace(hFindFile, std::move(search));
    return hFindFile;
}

BOOL FindNextFile_E(HANDLE hFindFile, LPWIN32_FIND_DATA lpFindFileData)
{
    Search* const pSearch = searchOf(hFindFile);
    if (!pSearch || !lpFindFileData)
        return failWith(pSearch ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
    return nextFile(*pSearch, *lpFindFileData) || failWith(ERROR_NO_MORE_FILES);
}

BOOL FindClose_E(HANDLE hFindFile)
{
    Searches& all = searches();
    const std::lock_guard<std::mutex> guard(all.mutex);
    return all.begun.erase(hFindFile) != 0 || failWith(ERROR_INVALID_HANDLE);
}
