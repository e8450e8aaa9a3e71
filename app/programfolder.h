#pragma once

#include <QByteArray>

/// The program's own folder while this object lives, by a name that can stand in a list of folders: without the
/// character that separates them. Empty where there is no such name.
class ProgramFolder final
{
public:
    ProgramFolder();
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder &) = delete;
    ProgramFolder &operator=(const ProgramFolder &) = delete;

    QByteArray name() const { return listedName; }

private:
    int descriptor = -1;
    QByteArray listedName;
};
