#include <base/platform/FileSystem.h>
#include <base/platform/TemporaryName.h>

#include <base/framework/TextEncoding.h>

#include <windows.h>

#include <algorithm>
#include <utility>

namespace vex::platform {

namespace {

FileErrorCause CauseOf(DWORD error) {
    switch (error) {
        case ERROR_SUCCESS:
            return FileErrorCause::none;
        case ERROR_FILE_NOT_FOUND:
            return FileErrorCause::fileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_INVALID_DRIVE:
        case ERROR_DIRECTORY:
        case ERROR_FILENAME_EXCED_RANGE:
            return FileErrorCause::badPath;
        case ERROR_TOO_MANY_OPEN_FILES:
            return FileErrorCause::tooManyOpenFiles;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_CURRENT_DIRECTORY:
            return FileErrorCause::accessDenied;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return FileErrorCause::alreadyExists;
        case ERROR_SHARING_VIOLATION:
            return FileErrorCause::sharingViolation;
        case ERROR_LOCK_VIOLATION:
            return FileErrorCause::lockViolation;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_FILE_TOO_LARGE:
            return FileErrorCause::diskFull;
        case ERROR_CRC:
        case ERROR_READ_FAULT:
        case ERROR_WRITE_FAULT:
        case ERROR_IO_DEVICE:
            return FileErrorCause::hardIO;
        case ERROR_NEGATIVE_SEEK:
        case ERROR_SEEK:
            return FileErrorCause::badSeek;
        case ERROR_INVALID_HANDLE:
            return FileErrorCause::invalidFile;
        case ERROR_NETNAME_DELETED:
        case ERROR_UNEXP_NET_ERR:
        case ERROR_BAD_NETPATH:
        case ERROR_NETWORK_BUSY:
        case ERROR_BAD_NET_NAME:
        case ERROR_DEV_NOT_EXIST:
            return FileErrorCause::networkError;
        default:
            return FileErrorCause::generic;
    }
}

FileIoError ErrorOf(DWORD error) {
    FileIoError result{CauseOf(error), static_cast<long>(error)};
    if (result.cause == FileErrorCause::none) result.cause = FileErrorCause::generic;
    return result;
}

void Report(FileIoError* out, FileIoError error) {
    if (out) *out = error;
}

bool IsBadPath(std::u16string_view path) {
    return path.empty() || path.find(u'\0') != std::u16string_view::npos;
}

// Windows' wide text is UTF-16, so the path only needs its terminating NUL.
std::wstring WidePath(std::u16string_view path) {
    return std::wstring(path.begin(), path.end());
}

HANDLE AsHandle(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

// ReadFile and WriteFile take 32-bit counts.
constexpr std::size_t kMaxChunk = std::size_t{1} << 30;

}  // namespace

std::string NarrowNativePath(std::u16string_view path) {
    return Utf16ToUtf8(path);
}

bool NativeFile::Fail() const {
    error_ = ErrorOf(::GetLastError());
    return false;
}

bool NativeFile::Open(std::u16string_view path, unsigned flags) {
    Close();
    error_ = {};
    if (IsBadPath(path)) {
        error_ = {FileErrorCause::badPath, ERROR_INVALID_NAME};
        return false;
    }
    DWORD access = 0;
    switch (flags & CFile::accessMask) {
        case CFile::modeRead:
            access = GENERIC_READ;
            break;
        case CFile::modeWrite:
            access = GENERIC_WRITE;
            break;
        case CFile::modeReadWrite:
            access = GENERIC_READ | GENERIC_WRITE;
            break;
        default:
            error_ = {FileErrorCause::generic, ERROR_INVALID_PARAMETER};
            return false;
    }
    DWORD share = 0;
    switch (flags & CFile::shareMask) {
        case CFile::shareDenyWrite:
            share = FILE_SHARE_READ;
            break;
        case CFile::shareDenyRead:
            share = FILE_SHARE_WRITE;
            break;
        case CFile::shareDenyNone:
            share = FILE_SHARE_READ | FILE_SHARE_WRITE;
            break;
        default:
            share = 0;
            break;  // shareCompat and shareExclusive
    }
    DWORD disposition = OPEN_EXISTING;
    if (flags & CFile::modeCreate) {
        disposition = (flags & CFile::modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;
    }
    SECURITY_ATTRIBUTES security{};
    security.nLength = sizeof(security);
    security.bInheritHandle = (flags & CFile::modeNoInherit) ? FALSE : TRUE;
    const std::wstring wide = WidePath(path);
    HANDLE handle = ::CreateFileW(wide.c_str(), access, share, &security, disposition,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return Fail();
    handle_ = reinterpret_cast<std::intptr_t>(handle);
    return true;
}

bool NativeFile::CreateNew(std::u16string_view path) {
    Close();
    error_ = {};
    if (IsBadPath(path)) {
        error_ = {FileErrorCause::badPath, ERROR_INVALID_NAME};
        return false;
    }
    const std::wstring wide = WidePath(path);
    HANDLE handle = ::CreateFileW(wide.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return Fail();
    handle_ = reinterpret_cast<std::intptr_t>(handle);
    return true;
}

bool NativeFile::Close() {
    if (!IsOpen()) return true;
    error_ = {};
    const HANDLE handle = AsHandle(std::exchange(handle_, kClosed));
    return ::CloseHandle(handle) ? true : Fail();
}

bool NativeFile::Read(void* buffer, std::size_t size, std::size_t& count) {
    count = 0;
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    if (buffer == nullptr && size > 0) {
        return (error_ = {FileErrorCause::generic, ERROR_INVALID_PARAMETER}), false;
    }
    auto* bytes = static_cast<char*>(buffer);
    while (count < size) {
        DWORD got = 0;
        const auto chunk = static_cast<DWORD>(std::min(size - count, kMaxChunk));
        if (!::ReadFile(AsHandle(handle_), bytes + count, chunk, &got, nullptr)) {
            if (::GetLastError() == ERROR_HANDLE_EOF) break;
            return Fail();
        }
        if (got == 0) break;
        count += got;
    }
    return true;
}

bool NativeFile::Write(const void* data, std::size_t size) {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    if (data == nullptr && size > 0) {
        return (error_ = {FileErrorCause::generic, ERROR_INVALID_PARAMETER}), false;
    }
    const auto* bytes = static_cast<const char*>(data);
    std::size_t done = 0;
    while (done < size) {
        DWORD put = 0;
        const auto chunk = static_cast<DWORD>(std::min(size - done, kMaxChunk));
        if (!::WriteFile(AsHandle(handle_), bytes + done, chunk, &put, nullptr)) return Fail();
        if (put == 0) return (error_ = {FileErrorCause::diskFull, ERROR_DISK_FULL}), false;
        done += put;
    }
    return true;
}

bool NativeFile::Seek(std::int64_t offset, CFile::SeekPosition from, std::uint64_t& position) {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    DWORD method;
    switch (from) {
        case CFile::begin:
            method = FILE_BEGIN;
            break;
        case CFile::current:
            method = FILE_CURRENT;
            break;
        case CFile::end:
            method = FILE_END;
            break;
        default:
            return (error_ = {FileErrorCause::badSeek, ERROR_INVALID_PARAMETER}), false;
    }
    LARGE_INTEGER distance;
    distance.QuadPart = offset;
    LARGE_INTEGER result;
    if (!::SetFilePointerEx(AsHandle(handle_), distance, &result, method)) return Fail();
    position = static_cast<std::uint64_t>(result.QuadPart);
    return true;
}

bool NativeFile::GetPosition(std::uint64_t& position) const {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    LARGE_INTEGER zero{};
    LARGE_INTEGER result;
    if (!::SetFilePointerEx(AsHandle(handle_), zero, &result, FILE_CURRENT)) return Fail();
    position = static_cast<std::uint64_t>(result.QuadPart);
    return true;
}

bool NativeFile::GetLength(std::uint64_t& length) const {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(AsHandle(handle_), &size)) return Fail();
    length = static_cast<std::uint64_t>(size.QuadPart);
    return true;
}

bool NativeFile::SetLength(std::uint64_t length) {
    error_ = {};
    std::uint64_t position = 0;
    if (!GetPosition(position)) return false;
    std::uint64_t ignored = 0;
    if (!Seek(static_cast<std::int64_t>(length), CFile::begin, ignored)) return false;
    const bool ok = ::SetEndOfFile(AsHandle(handle_)) != FALSE;
    if (!ok) Fail();
    const FileIoError error = error_;
    Seek(static_cast<std::int64_t>(position), CFile::begin, ignored);
    error_ = error;
    return ok;
}

bool NativeFile::SyncToDisk() {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, ERROR_INVALID_HANDLE}), false;
    return ::FlushFileBuffers(AsHandle(handle_)) ? true : Fail();
}

PathKind GetPathKind(std::u16string_view path) {
    if (IsBadPath(path)) return PathKind::missing;
    const DWORD attributes = ::GetFileAttributesW(WidePath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? PathKind::missing
                                                                              : PathKind::other;
    }
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) return PathKind::directory;
    if (attributes & FILE_ATTRIBUTE_DEVICE) return PathKind::other;
    return PathKind::file;
}

bool RemoveFile(std::u16string_view path, FileIoError* error) {
    if (IsBadPath(path)) {
        Report(error, {FileErrorCause::badPath, ERROR_INVALID_NAME});
        return false;
    }
    if (!::DeleteFileW(WidePath(path).c_str())) {
        Report(error, ErrorOf(::GetLastError()));
        return false;
    }
    Report(error, {});
    return true;
}

bool ReplaceFileByRename(std::u16string_view source, std::u16string_view target,
                         FileIoError* error) {
    if (IsBadPath(source) || IsBadPath(target)) {
        Report(error, {FileErrorCause::badPath, ERROR_INVALID_NAME});
        return false;
    }
    if (!::MoveFileExW(WidePath(source).c_str(), WidePath(target).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        Report(error, ErrorOf(::GetLastError()));
        return false;
    }
    Report(error, {});
    return true;
}

bool CreateTemporaryBeside(std::u16string_view target, NativeFile& file,
                           std::u16string& temporaryPath, FileIoError* error) {
    // A few attempts, in case another process picked the same name.
    for (int attempt = 0; attempt < 16; ++attempt) {
        std::u16string name = detail::TemporaryNameFor(target, ::GetCurrentProcessId());
        if (file.CreateNew(name)) {
            temporaryPath = std::move(name);
            Report(error, {});
            return true;
        }
        if (file.GetError().cause != FileErrorCause::alreadyExists) break;
    }
    Report(error, file.GetError());
    return false;
}

}  // namespace vex::platform
