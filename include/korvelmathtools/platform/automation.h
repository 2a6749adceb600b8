/**
 * @file
 * The automation types that callers hand over: texts (BSTR), arrays (SAFEARRAY) and cells (VARIANT), with the
 * calls that make and free them.
 *
 * On Windows these are the system's own. Elsewhere this header declares the same names with the same memory
 * layout, and the library KORVELAutomation implements what callers and this library need of them. The header
 * is plain C99.
 */
#ifndef KORVEL_PLATFORM_AUTOMATION_H
#define KORVEL_PLATFORM_AUTOMATION_H

#if defined(_WIN32)

#include <windows.h>

#include <oleauto.h>

#else

#include <stddef.h>
#include <stdint.h>

#define KORVEL_AUTOMATION_API __attribute__((visibility("default")))

#if defined(__cplusplus)
extern "C" {
#endif

#if defined(__cplusplus)
typedef char16_t OLECHAR;     /**< A code unit of UTF-16; `wchar_t` on Windows. */
#else
typedef uint_least16_t OLECHAR;
#endif
typedef OLECHAR* BSTR;        /**< A text, with its length in bytes in the four bytes before it. */
typedef uint16_t USHORT;      /**< 16 bits without a sign. */
typedef uint16_t WORD;        /**< 16 bits without a sign. */
typedef int32_t LONG;         /**< 32 bits. */
typedef uint32_t ULONG;       /**< 32 bits without a sign. */
typedef uint32_t UINT;        /**< 32 bits without a sign. */
typedef int32_t HRESULT;      /**< How a call ended: below 0 when it failed. */
typedef uint16_t VARTYPE;     /**< A type of `VARENUM`. */
typedef int16_t VARIANT_BOOL; /**< -1 true, 0 false. */

#define S_OK ((HRESULT)0)                          /**< The call did its work. */
#define E_INVALIDARG ((HRESULT)0x80070057)         /**< An argument is not right. */
#define DISP_E_ARRAYISLOCKED ((HRESULT)0x8002000D) /**< The array is locked. */
#define VARIANT_TRUE ((VARIANT_BOOL)-1)            /**< True. */
#define VARIANT_FALSE ((VARIANT_BOOL)0)            /**< False. */

/** One dimension of a host array. */
typedef struct tagSAFEARRAYBOUND {
    ULONG cElements; /**< Number of elements. */
    LONG lLbound;    /**< Number of the first one. */
} SAFEARRAYBOUND;

/** Descriptor of a host array. The bounds stand in reverse: the rightmost dimension is `rgsabound[0]`. */
typedef struct tagSAFEARRAY {
    USHORT cDims;                /**< Number of dimensions. */
    USHORT fFeatures;            /**< What is known of it: the sum of `FADF_` numbers. */
    ULONG cbElements;            /**< Bytes of an element. */
    ULONG cLocks;                /**< Number of locks. */
    void* pvData;                /**< The elements, the leftmost index running fastest. */
    SAFEARRAYBOUND rgsabound[1]; /**< A bound for each dimension. */
} SAFEARRAY;

enum {
    FADF_AUTO = 0x0001,
    FADF_STATIC = 0x0002,
    FADF_EMBEDDED = 0x0004,
    FADF_FIXEDSIZE = 0x0010,
    FADF_HAVEVARTYPE = 0x0080,
    FADF_BSTR = 0x0100,
    FADF_VARIANT = 0x0800
};

enum VARENUM {
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_RECORD = 36,
    VT_BYREF = 0x4000
};

/** A record of the caller's, with its description; nothing here reads one, but it makes a cell 24 bytes long.
 */
typedef struct tagRECORDREFERENCE {
    void* pvRecord; /**< The record. */
    void* pRecInfo; /**< Its description. */
} RECORDREFERENCE;

/** A cell of any type; `vt` tells which member of the union holds it. */
typedef struct tagVARIANT {
    VARTYPE vt;          /**< What the cell holds, a type of `VARENUM`. */
    uint16_t wReserved1; /**< Not used. */
    uint16_t wReserved2; /**< Not used. */
    uint16_t wReserved3; /**< Not used. */
    /* C99 has no union without a name; compilers do. */
    __extension__ union {
        int64_t llVal;
        LONG lVal;
        int16_t iVal;
        VARIANT_BOOL boolVal;
        float fltVal;
        double dblVal;
        BSTR bstrVal;
        BSTR* pbstrVal;
        struct tagVARIANT* pvarVal;
        SAFEARRAY* parray;
        void* byref;
        RECORDREFERENCE record;
    };
} VARIANT;

/** Allocates a copy of a text that ends at its first NUL; null for a null text or when memory is short. */
KORVEL_AUTOMATION_API BSTR SysAllocString(const OLECHAR* text);
/** Allocates room for `length` characters and a NUL, filled from `text` unless that is null. */
KORVEL_AUTOMATION_API BSTR SysAllocStringLen(const OLECHAR* text, UINT length);
/** Frees a BSTR; a null pointer is ignored. */
KORVEL_AUTOMATION_API void SysFreeString(BSTR text);
/** Characters before the closing NUL; 0 for a null pointer. */
KORVEL_AUTOMATION_API UINT SysStringLen(BSTR text);
/** Bytes before the closing NUL; 0 for a null pointer. */
KORVEL_AUTOMATION_API UINT SysStringByteLen(BSTR text);

/** Allocates from the allocator that host arrays use; null when memory is short. */
KORVEL_AUTOMATION_API void* CoTaskMemAlloc(size_t bytes);
/** Frees such a block; a null pointer is ignored. */
KORVEL_AUTOMATION_API void CoTaskMemFree(void* block);

/** Makes a zeroed array; `bounds` has the leftmost dimension first. Null when a type is unknown or memory is
 * short. */
KORVEL_AUTOMATION_API SAFEARRAY* SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds);
/** Frees an array with all that it holds. A locked array is left alone and reported. */
KORVEL_AUTOMATION_API HRESULT SafeArrayDestroy(SAFEARRAY* array);

/** A moment in the calendar, as a clock shows it. */
typedef struct tagSYSTEMTIME {
    WORD wYear;         /**< The year. */
    WORD wMonth;        /**< 1 to 12. */
    WORD wDayOfWeek;    /**< 0 for Sunday; only written. */
    WORD wDay;          /**< 1 to 31. */
    WORD wHour;         /**< 0 to 23. */
    WORD wMinute;       /**< 0 to 59. */
    WORD wSecond;       /**< 0 to 59. */
    WORD wMilliseconds; /**< Never read, always written as 0. */
} SYSTEMTIME;

/**
 * Converts a moment to an automation date: days since 30 December 1899, with the time of day as the fraction.
 * Before that day the count is negative and the fraction still counts forward, away from zero: -1.25 is 6:00
 * on 29 December 1899. A year below 50 belongs to 2000, one from 50 to 99 to 1900; day 0 is the last day of
 * the month before, and a day that the month does not have (up to 31) falls into the next one.
 * @return 1, or 0 with `date` untouched when a field is out of its range
 */
KORVEL_AUTOMATION_API int SystemTimeToVariantTime(SYSTEMTIME* moment, double* date);
/**
 * Converts an automation date to the moment that it means, rounded to the nearest second, halves up.
 * @return 1, or 0 with `moment` untouched when the date is not of the years 100 to 9999
 */
KORVEL_AUTOMATION_API int VariantTimeToSystemTime(double date, SYSTEMTIME* moment);

/** Sends a line to the debugger. Off Windows there is none to listen: the line is only counted and
 * remembered. */
KORVEL_AUTOMATION_API void OutputDebugStringA(const char* line);

#if defined(__cplusplus)
}
#endif

#endif
#endif
