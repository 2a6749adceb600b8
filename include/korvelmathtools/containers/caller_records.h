/**
 * @file
 * Layouts of the records that callers keep in their own memory. They are fixed: the macro layer fills them.
 * The header is plain C; gaps between fields are reserved and keep the natural alignment.
 */
#ifndef KORVEL_CONTAINERS_CALLER_RECORDS_H
#define KORVEL_CONTAINERS_CALLER_RECORDS_H

#include "platform/automation.h"

#include <stddef.h>

/** One column of a chunked table, 16 bytes. */
typedef struct Hostarray {
    SAFEARRAY* numbers; /**< The numeric column, or null. */
    SAFEARRAY* texts;   /**< The text column (BSTR), or null. */
} Hostarray;

/** One labelled column, 24 bytes. */
typedef struct ST_Vect {
    int Count;       /**< Number of observations. */
    BSTR Label;      /**< Name of the column. */
    SAFEARRAY* Vect; /**< The column. */
} ST_Vect;

/** A table of labelled columns, 40 bytes. */
typedef struct ST_MVect {
    int nbcols;           /**< Number of columns. */
    short int samenbrows; /**< -1 when all columns have the same length, otherwise 0. */
    int nbrowsmax;        /**< Length of the longest column. */
    SAFEARRAY* nbrows;    /**< `int`: row count of each column. */
    SAFEARRAY* Vectors;   /**< `ST_Vect` records, as many as the leftmost dimension says. */
    SAFEARRAY* CLabels;   /**< BSTR: column labels. */
} ST_MVect;

/** Category statistics of a set of qualitative columns, 208 bytes. */
typedef struct ST_QualiInfo {
    int Count;                         /**< Number of rows. */
    double SumW;                       /**< Sum of the weights. */
    int MaxNbCat;                      /**< Most categories of a column. */
    SAFEARRAY* NbCat;                  /**< `int`. */
    int NbCatTotal;                    /**< Categories of all columns together. */
    ST_MVect CatNames;                 /**< Texts. */
    ST_MVect CatFreq;                  /**< `double`. */
    ST_MVect CatFreqW;                 /**< `double`. */
    double FreqMax;                    /**< Largest frequency of a category. */
    SAFEARRAY* VarLabels;              /**< BSTR. */
    short int IgnoreNewCategoryInPred; /**< 0 makes an unknown category an error in validation. */
    short int withRecode;              /**< Not 0: `Codes` is read. */
    int codeStart;                     /**< Code of the first category. */
    SAFEARRAY* Codes;                  /**< `double`; read only when `withRecode` is not 0. */
    int nCodes;                        /**< Number of codes. */
    short int withSort;                /**< -1: categories are sorted. */
    short int noWeights;               /**< -1: every row weighs 1. */
    short int withLongLabels;          /**< -1: category names carry the label of their variable. */
    int CheckType;                     /**< Carried along for the caller. */
} ST_QualiInfo;

/* Every offset and size, for whoever compiles this header. C99 has no static assertion: an array of -1
 * elements does not compile. */
#define KORVEL_HOLDS(name, condition) typedef char korvel_##name[(condition) ? 1 : -1]
#define KORVEL_SIZE(record, size) KORVEL_HOLDS(size_of_##record, sizeof(record) == (size))
#define KORVEL_FIELD_AT(record, field, offset, size)                                                         \
    KORVEL_HOLDS(place_of_##record##_##field,                                                                \
                 offsetof(record, field) == (offset) && sizeof(((record*)0)->field) == (size))

KORVEL_SIZE(Hostarray, 16);
KORVEL_FIELD_AT(Hostarray, numbers, 0, 8);
KORVEL_FIELD_AT(Hostarray, texts, 8, 8);

KORVEL_SIZE(ST_Vect, 24);
KORVEL_FIELD_AT(ST_Vect, Count, 0, 4);
KORVEL_FIELD_AT(ST_Vect, Label, 8, 8);
KORVEL_FIELD_AT(ST_Vect, Vect, 16, 8);

KORVEL_SIZE(ST_MVect, 40);
KORVEL_FIELD_AT(ST_MVect, nbcols, 0, 4);
KORVEL_FIELD_AT(ST_MVect, samenbrows, 4, 2);
KORVEL_FIELD_AT(ST_MVect, nbrowsmax, 8, 4);
KORVEL_FIELD_AT(ST_MVect, nbrows, 16, 8);
KORVEL_FIELD_AT(ST_MVect, Vectors, 24, 8);
KORVEL_FIELD_AT(ST_MVect, CLabels, 32, 8);

KORVEL_SIZE(ST_QualiInfo, 208);
KORVEL_FIELD_AT(ST_QualiInfo, Count, 0, 4);
KORVEL_FIELD_AT(ST_QualiInfo, SumW, 8, 8);
KORVEL_FIELD_AT(ST_QualiInfo, MaxNbCat, 16, 4);
KORVEL_FIELD_AT(ST_QualiInfo, NbCat, 24, 8);
KORVEL_FIELD_AT(ST_QualiInfo, NbCatTotal, 32, 4);
KORVEL_FIELD_AT(ST_QualiInfo, CatNames, 40, 40);
KORVEL_FIELD_AT(ST_QualiInfo, CatFreq, 80, 40);
KORVEL_FIELD_AT(ST_QualiInfo, CatFreqW, 120, 40);
KORVEL_FIELD_AT(ST_QualiInfo, FreqMax, 160, 8);
KORVEL_FIELD_AT(ST_QualiInfo, VarLabels, 168, 8);
KORVEL_FIELD_AT(ST_QualiInfo, IgnoreNewCategoryInPred, 176, 2);
KORVEL_FIELD_AT(ST_QualiInfo, withRecode, 178, 2);
KORVEL_FIELD_AT(ST_QualiInfo, codeStart, 180, 4);
KORVEL_FIELD_AT(ST_QualiInfo, Codes, 184, 8);
KORVEL_FIELD_AT(ST_QualiInfo, nCodes, 192, 4);
KORVEL_FIELD_AT(ST_QualiInfo, withSort, 196, 2);
KORVEL_FIELD_AT(ST_QualiInfo, noWeights, 198, 2);
KORVEL_FIELD_AT(ST_QualiInfo, withLongLabels, 200, 2);
KORVEL_FIELD_AT(ST_QualiInfo, CheckType, 204, 4);

#undef KORVEL_FIELD_AT
#undef KORVEL_SIZE
#undef KORVEL_HOLDS

#endif
