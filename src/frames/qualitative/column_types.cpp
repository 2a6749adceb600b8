#include "frames/qualitative/column_types.h"

#include "qualitative/column_types.h"

short int isQuali(int type)
{
    return korvel::isQualitative(type) ? -1 : 0;
}

short int isQualiPure(int type)
{
    return korvel::isPurelyQualitative(type) ? -1 : 0;
}
