#pragma once

#include <QtGlobal>

/// How much memory the process holds at this moment, in bytes; 0 where the platform does not say.
qint64 processMemory();
