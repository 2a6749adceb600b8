/**
 * @file
 * Layouts of the records that callers keep in their own memory. They are fixed: the macro layer fills them. The
 * header is plain C; gaps between fields are reserved and keep the natural alignment.
 */
#ifndef KORVEL_CONTAINERS_CALLER_RECORDS_H
#define KORVEL_CONTAINERS_CALLER_RECORDS_H

#include "platform/automation.h"

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
    int nbcols;
    short int samenbrows; /**< -1 when all columns have the same length, otherwise 0. */
    int nbrowsmax;        /**< Length of the longest column. */
    SAFEARRAY* nbrows;    /**< `int`: row count of each column. */
    SAFEARRAY* Vectors;   /**< `ST_Vect` records, as many as the leftmost dimension says. */
    SAFEARRAY* CLabels;   /**< BSTR: column labels. */
} ST_MVect;

/** Category statistics of a set of qualitative columns, 208 bytes. */
typedef struct ST_QualiInfo {
    int Count;
    double SumW;
    int MaxNbCat;
    SAFEARRAY* NbCat; /**< `int`. */
    int NbCatTotal;
    ST_MVect CatNames; /**< Texts. */
    ST_MVect CatFreq;  /**< `double`. */
    ST_MVect CatFreqW; /**< `double`. */
    double FreqMax;
    SAFEARRAY* VarLabels; /**< BSTR. */
    short int IgnoreNewCategoryInPred;
    short int withRecode;
    int codeStart;
    SAFEARRAY* Codes; /**< `double`; read only when `withRecode` is not 0. */
    int nCodes;
    short int withSort;
    short int noWeights;
    short int withLongLabels;
    int CheckType;
} ST_QualiInfo;

#endif
