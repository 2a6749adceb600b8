/* What src/calls.c hands over between R and the library. */
#ifndef KORVEL_R_CALL_H
#define KORVEL_R_CALL_H

#include <korvelmathtools/KORVELMathTools.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One argument, or a result. */
typedef union korvel_slot {
    double number;
    int integer;
    short int flag;
    double* numbers;
    int* integers;
    short int* flags;
    OLECHAR** texts;
    OLECHAR* text;
    const char* label;
    SAFEARRAY** array;
    Hostarray** chunks;
    ST_Vect* column;
    ST_MVect* table;
    ST_QualiInfo* categories;
    VARIANT* cell;
} korvel_slot;

typedef void (*korvel_caller)(const korvel_slot* arguments, korvel_slot* result);

/* A flat function: a letter for each argument and for the result, which say what member of a slot holds it.
 */
typedef struct korvel_function {
    const char* name;
    const char* kinds;
    const char* result;
    korvel_caller call;
} korvel_function;

/* All of them, in the order of their names. */
extern const korvel_function korvel_functions[];
extern const size_t korvel_function_count;

/* Makes the call; 0 when an exception left the library. */
int korvel_guarded(korvel_caller call, const korvel_slot* arguments, korvel_slot* result);

#ifdef __cplusplus
}
#endif
#endif
