#include "frames/platform/version.h"

int KORVEL_Version(void)
{
    return KORVEL_VERSION_NUMBER;
}
