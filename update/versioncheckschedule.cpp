#include "update/versioncheckschedule.h"

bool VersionCheckSchedule::tick()
{
    // Compared before it is counted, so that a round takes one tick more than the number says; that is meant.
    if (counter++ != 432000)
        return false;
    counter = 0;
    return true;
}
