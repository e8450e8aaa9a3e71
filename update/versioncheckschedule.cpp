#include "update/versioncheckschedule.h"

bool VersionCheckSchedule::tick()
{
    // Compared before it is counted, so that a round takes one tick more than the number says; that is meant.
    if (m_counter++ != 432000)
        return false;
    m_counter = 0;
    return true;
}
