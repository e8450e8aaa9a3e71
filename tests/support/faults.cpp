#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

// Preloaded into a program, makes one kind of call fail for some files, as a failing disk or a full one does.
// ORVANTA_FAULT says which: "open", "rename", "read" or "write"; ORVANTA_FAULT_FILES names them by a part of their
// paths; ORVANTA_FAULT_AFTER is how many bytes can be read or written before, in each file (0); ORVANTA_FAULT_ERROR is
// the number of the error (EIO).

namespace {

const char *environment(const char *name, const char *otherwise)
{
    const char *value = std::getenv(name);
    return value ? value : otherwise;
}

bool isFaulty(const char *kind)
{
    return std::strcmp(environment("ORVANTA_FAULT", ""), kind) == 0;
}

bool isMeant(const char *path)
{
    const char *part = std::getenv("ORVANTA_FAULT_FILES");
    return path && part && std::strstr(path, part) != nullptr;
}

int failure()
{
    return std::atoi(environment("ORVANTA_FAULT_ERROR", "5"));
}

// For every descriptor of a meant file, how many bytes are left to be read or written; -1 for those of other files.
std::array<long, 4096> &bytesLeft()
{
    static std::array<long, 4096> left = [] {
        std::array<long, 4096> none{};
        none.fill(-1);
        return none;
    }();
    return left;
}

long &leftOf(int descriptor)
{
    static long other = -1;
    const auto index = static_cast<std::size_t>(descriptor);
    return descriptor >= 0 && index < bytesLeft().size() ? bytesLeft()[index] : other;
}

template<typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int watched(int descriptor, const char *path)
{
    leftOf(descriptor) = isMeant(path) ? std::atol(environment("ORVANTA_FAULT_AFTER", "0")) : -1;
    return descriptor;
}

// How much of it can be transferred, or -1 when nothing more can.
ssize_t allowed(const char *kind, int descriptor, size_t length)
{
    long &left = leftOf(descriptor);
    if (left < 0 || length == 0 || !isFaulty(kind))
        return static_cast<ssize_t>(length);
    if (left == 0) {
        errno = failure();
        return -1;
    }
    const long part = left < static_cast<long>(length) ? left : static_cast<long>(length);
    left -= part;
    return part;
}

bool refusesName(const char *path)
{
    if (!isFaulty("rename") || !isMeant(path))
        return false;
    errno = failure();
    return true;
}

} // namespace

extern "C" {

int open64(const char *path, int flags, ...)
{
    if (isFaulty("open") && isMeant(path)) {
        errno = failure();
        return -1;
    }
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return watched(real<int(const char *, int, ...)>("open64")(path, flags, mode), path);
}

ssize_t read(int descriptor, void *buffer, size_t length)
{
    const ssize_t part = allowed("read", descriptor, length);
    return part < 0 ? part : real<ssize_t(int, void *, size_t)>("read")(descriptor, buffer, static_cast<size_t>(part));
}

ssize_t write(int descriptor, const void *buffer, size_t length)
{
    const ssize_t part = allowed("write", descriptor, length);
    return part < 0 ? part
                    : real<ssize_t(int, const void *, size_t)>("write")(descriptor, buffer, static_cast<size_t>(part));
}

int close(int descriptor)
{
    leftOf(descriptor) = -1;
    return real<int(int)>("close")(descriptor);
}

int rename(const char *from, const char *to) noexcept
{
    return refusesName(to) ? -1 : real<int(const char *, const char *)>("rename")(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    return refusesName(to) ? -1
                           : real<int(int, const char *, int, const char *, unsigned)>("renameat2")(
                                 fromFolder, from, toFolder, to, flags);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return refusesName(to)
               ? -1
               : real<int(int, const char *, int, const char *, int)>("linkat")(fromFolder, from, toFolder, to, flags);
}
}
