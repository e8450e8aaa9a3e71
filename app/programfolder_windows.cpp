#include "app/programfolder.h"

#include <QFile>

#include <array>
#include <windows.h>

ProgramFolder::ProgramFolder()
{
    std::array<wchar_t, 32768> program = {}; // the longest path that there can be
    const DWORD length = GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    const QString path = QString::fromWCharArray(program.data(), static_cast<int>(length));
    const QString folder = path.left(path.lastIndexOf(QLatin1Char('\\')));
    if (!folder.contains(QLatin1Char(';')))
        listedName = QFile::encodeName(folder);
}

ProgramFolder::~ProgramFolder() = default;
