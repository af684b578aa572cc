#include <base/platform/FileSystem.h>
#include <base/platform/TemporaryName.h>

#include <base/framework/TextEncoding.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <utility>

namespace vex::platform {

namespace {

FileErrorCause CauseOf(int error) {
    switch (error) {
        case 0:
            return FileErrorCause::none;
        case ENOENT:
            return FileErrorCause::fileNotFound;
        case ENOTDIR:
        case ENAMETOOLONG:
        case ELOOP:
            return FileErrorCause::badPath;
        case EMFILE:
        case ENFILE:
            return FileErrorCause::tooManyOpenFiles;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ETXTBSY:
            return FileErrorCause::accessDenied;
        case EEXIST:
            return FileErrorCause::alreadyExists;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return FileErrorCause::diskFull;
        case EIO:
            return FileErrorCause::hardIO;
        case ESPIPE:
        case EOVERFLOW:
            return FileErrorCause::badSeek;
        case EBADF:
            return FileErrorCause::invalidFile;
        case ENETDOWN:
        case ENETUNREACH:
        case ENETRESET:
        case ECONNABORTED:
        case ECONNRESET:
        case ENOTCONN:
        case ETIMEDOUT:
        case ESTALE:
            return FileErrorCause::networkError;
        default:
            return FileErrorCause::generic;
    }
}

FileIoError ErrorOf(int error) {
    return FileIoError{CauseOf(error), error};
}

void Report(FileIoError* out, FileIoError error) {
    if (out) *out = error;
}

// The slice of a read or write: POSIX allows a count up to SSIZE_MAX, and
// Linux moves at most about 2 GiB per call anyway.
constexpr std::size_t kMaxChunk = std::size_t{1} << 30;

// The folder part of a native path ("." when there is none).
std::string FolderOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    if (slash == 0) return "/";
    return path.substr(0, slash);
}

}  // namespace

std::string NarrowNativePath(std::u16string_view path) {
    std::string native = Utf16ToUtf8(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

bool NativeFile::Fail() const {
    error_ = ErrorOf(errno);
    if (error_.cause == FileErrorCause::none) error_.cause = FileErrorCause::generic;
    return false;
}

bool NativeFile::Open(std::u16string_view path, unsigned flags) {
    Close();
    error_ = {};
    // A NUL would silently cut the path short in the system call.
    if (path.empty() || path.find(u'\0') != std::u16string_view::npos) {
        error_ = {FileErrorCause::badPath, 0};
        return false;
    }
    int oflags = O_CLOEXEC;
    switch (flags & CFile::accessMask) {
        case CFile::modeRead:
            oflags |= O_RDONLY;
            break;
        case CFile::modeWrite:
            oflags |= O_WRONLY;
            break;
        case CFile::modeReadWrite:
            oflags |= O_RDWR;
            break;
        default:
            error_ = {FileErrorCause::generic, EINVAL};
            return false;
    }
    if (flags & CFile::modeCreate) {
        oflags |= O_CREAT;
        if (!(flags & CFile::modeNoTruncate)) oflags |= O_TRUNC;
    }
    const std::string native = NarrowNativePath(path);
    int fd;
    do {
        fd = ::open(native.c_str(), oflags, 0666);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) return Fail();
    // Reading a folder's descriptor fails only later; refuse it now, as Windows does.
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(fd);
        error_ = ErrorOf(EISDIR);
        return false;
    }
    handle_ = fd;
    return true;
}

bool NativeFile::CreateNew(std::u16string_view path) {
    Close();
    error_ = {};
    if (path.empty() || path.find(u'\0') != std::u16string_view::npos) {
        error_ = {FileErrorCause::badPath, 0};
        return false;
    }
    const std::string native = NarrowNativePath(path);
    int fd;
    do {
        fd = ::open(native.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) return Fail();
    handle_ = fd;
    return true;
}

bool NativeFile::Close() {
    if (!IsOpen()) return true;
    const int fd = static_cast<int>(std::exchange(handle_, kClosed));
    error_ = {};
    // EINTR still closes the descriptor on Linux; retrying could close another file.
    if (::close(fd) != 0 && errno != EINTR) return Fail();
    return true;
}

bool NativeFile::Read(void* buffer, std::size_t size, std::size_t& count) {
    count = 0;
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    if (buffer == nullptr && size > 0) return (error_ = {FileErrorCause::generic, EINVAL}), false;
    auto* bytes = static_cast<char*>(buffer);
    const int fd = static_cast<int>(handle_);
    while (count < size) {
        const ssize_t n = ::read(fd, bytes + count, std::min(size - count, kMaxChunk));
        if (n < 0) {
            if (errno == EINTR) continue;
            return Fail();
        }
        if (n == 0) break;
        count += static_cast<std::size_t>(n);
    }
    return true;
}

bool NativeFile::Write(const void* data, std::size_t size) {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    if (data == nullptr && size > 0) return (error_ = {FileErrorCause::generic, EINVAL}), false;
    const auto* bytes = static_cast<const char*>(data);
    const int fd = static_cast<int>(handle_);
    std::size_t done = 0;
    while (done < size) {
        const ssize_t n = ::write(fd, bytes + done, std::min(size - done, kMaxChunk));
        if (n < 0) {
            if (errno == EINTR) continue;
            return Fail();
        }
        if (n == 0) return (error_ = {FileErrorCause::diskFull, ENOSPC}), false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

bool NativeFile::Seek(std::int64_t offset, CFile::SeekPosition from, std::uint64_t& position) {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    int whence;
    switch (from) {
        case CFile::begin:
            whence = SEEK_SET;
            break;
        case CFile::current:
            whence = SEEK_CUR;
            break;
        case CFile::end:
            whence = SEEK_END;
            break;
        default:
            return (error_ = {FileErrorCause::badSeek, EINVAL}), false;
    }
    const off_t result = ::lseek(static_cast<int>(handle_), static_cast<off_t>(offset), whence);
    if (result < 0) {
        Fail();
        if (errno == EINVAL) error_.cause = FileErrorCause::badSeek;
        return false;
    }
    position = static_cast<std::uint64_t>(result);
    return true;
}

bool NativeFile::GetPosition(std::uint64_t& position) const {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    const off_t result = ::lseek(static_cast<int>(handle_), 0, SEEK_CUR);
    if (result < 0) return Fail();
    position = static_cast<std::uint64_t>(result);
    return true;
}

bool NativeFile::GetLength(std::uint64_t& length) const {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    struct stat info {};
    if (::fstat(static_cast<int>(handle_), &info) != 0) return Fail();
    length = static_cast<std::uint64_t>(info.st_size);
    return true;
}

bool NativeFile::SetLength(std::uint64_t length) {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    if (length > static_cast<std::uint64_t>(INT64_MAX)) {
        return (error_ = {FileErrorCause::diskFull, EFBIG}), false;
    }
    int result;
    do {
        result = ::ftruncate(static_cast<int>(handle_), static_cast<off_t>(length));
    } while (result != 0 && errno == EINTR);
    return result == 0 || Fail();
}

bool NativeFile::SyncToDisk() {
    error_ = {};
    if (!IsOpen()) return (error_ = {FileErrorCause::invalidFile, EBADF}), false;
    int result;
    do {
        result = ::fsync(static_cast<int>(handle_));
    } while (result != 0 && errno == EINTR);
    return result == 0 || Fail();
}

PathKind GetPathKind(std::u16string_view path) {
    if (path.empty() || path.find(u'\0') != std::u16string_view::npos) return PathKind::missing;
    struct stat info {};
    if (::stat(NarrowNativePath(path).c_str(), &info) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? PathKind::missing : PathKind::other;
    }
    if (S_ISREG(info.st_mode)) return PathKind::file;
    if (S_ISDIR(info.st_mode)) return PathKind::directory;
    return PathKind::other;
}

bool RemoveFile(std::u16string_view path, FileIoError* error) {
    if (path.empty() || path.find(u'\0') != std::u16string_view::npos) {
        Report(error, {FileErrorCause::badPath, 0});
        return false;
    }
    if (::unlink(NarrowNativePath(path).c_str()) != 0) {
        Report(error, ErrorOf(errno));
        return false;
    }
    Report(error, {});
    return true;
}

bool ReplaceFileByRename(std::u16string_view source, std::u16string_view target,
                         FileIoError* error) {
    if (source.empty() || target.empty() || source.find(u'\0') != std::u16string_view::npos ||
        target.find(u'\0') != std::u16string_view::npos) {
        Report(error, {FileErrorCause::badPath, 0});
        return false;
    }
    const std::string nativeTarget = NarrowNativePath(target);
    if (::rename(NarrowNativePath(source).c_str(), nativeTarget.c_str()) != 0) {
        Report(error, ErrorOf(errno));
        return false;
    }
    // The rename itself is durable only once the folder's entry is on disk.
    // Best effort: some file systems cannot sync a folder, and the data is safe already.
    const int folder = ::open(FolderOf(nativeTarget).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    Report(error, {});
    return true;
}

bool CreateTemporaryBeside(std::u16string_view target, NativeFile& file,
                           std::u16string& temporaryPath, FileIoError* error) {
    // A few attempts, in case another process picked the same name.
    for (int attempt = 0; attempt < 16; ++attempt) {
        std::u16string name =
            detail::TemporaryNameFor(target, static_cast<std::uint64_t>(::getpid()));
        if (file.CreateNew(name)) {
            struct stat info {};
            if (::stat(NarrowNativePath(target).c_str(), &info) == 0 && S_ISREG(info.st_mode)) {
                // The replacement keeps the permissions of the file it replaces.
                ::fchmod(static_cast<int>(file.NativeHandle()), info.st_mode & 07777);
            }
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
