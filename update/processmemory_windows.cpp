#include "update/processmemory.h"

#include <windows.h>
// After the header that it needs.
#include <psapi.h>

qint64 processMemory()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    if (!GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters))
        return 0;
    return static_cast<qint64>(counters.WorkingSetSize);
}
