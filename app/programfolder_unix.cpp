#include "app/programfolder.h"

#include <array>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

// The folder itself may be called anything; its descriptor is a number.
ProgramFolder::ProgramFolder()
{
    std::array<char, PATH_MAX> program = {};
    const ssize_t length = ::readlink("/proc/self/exe", program.data(), program.size());
    if (length <= 0)
        return;
    QByteArray folder(program.data(), static_cast<int>(length));
    folder.truncate(folder.lastIndexOf('/') + 1);
    descriptor = ::open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
        listedName = "/proc/self/fd/" + QByteArray::number(descriptor);
}

ProgramFolder::~ProgramFolder()
{
    if (descriptor >= 0)
        ::close(descriptor);
}
