#pragma once

#include <QtGlobal>

/// Says when the automatic version check is due, in ticks of a timer of 200 ms: on the 51st, about ten seconds after
/// the start, and then on every 432001st, about once a day.
class VersionCheckSchedule
{
public:
    /// To be called once per tick; returns whether a check is due on this one.
    bool tick();

private:
    qint32 counter = 431950;
};
