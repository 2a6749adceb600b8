/* Exceptions of the library end here: R does not know them. */
#include "call.h"

int korvel_guarded(korvel_caller call, const korvel_slot* arguments, korvel_slot* result)
{
    try {
        call(arguments, result);
        return 1;
    } catch (...) {
        return 0;
    }
}
