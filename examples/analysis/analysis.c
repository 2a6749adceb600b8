/*
 * How ozone goes with the weather, each month counting alike, by the flat functions.
 *
 *     analysis_c [--exact] FILE
 *
 * FILE is a table like examples/data/airquality.csv, without quotes. --exact prints hexadecimal numbers, to
 * the bit.
 *
 * To build it: cc analysis.c $(pkg-config --cflags --libs korvelmathtools), or the CMakeLists.txt beside it.
 */
#include <korvelmathtools/KORVELMathTools.h>

#include <errno.h>
#include <float.h>
#include <math.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { columns = 4, predictors = 3, pairs = 6, longestLine = 4096, mostCells = 256 };
enum { no = 0, yes = -1 };

static const char* const names[columns] = {"Ozone", "Solar.R", "Wind", "Temp"};
static const char* const group = "Month";

/* Numbers column after column, as every function takes them, and a text for each row. */
typedef struct {
    int rows;
    double* numbers;
    BSTR* groups;
} Table;

static const char* fileName;

static void fail(const char* format, ...)
{
    va_list more;
    va_start(more, format);
    fprintf(stderr, "analysis: %s: ", fileName);
    vfprintf(stderr, format, more);
    fprintf(stderr, "\n");
    va_end(more);
    exit(1);
}

static void* room(int count, size_t bytes)
{
    void* block = calloc(count > 0 ? (size_t)count : 1, bytes);
    if (block == NULL) {
        fail("memory is short");
    }
    return block;
}

static double* numbers(int count)
{
    return room(count, sizeof(double));
}

/* ---- Reading */

/* Cuts a line at its commas; how many cells it has. */
static int cells(char* line, char** cell)
{
    int count = 0;
    line[strcspn(line, "\r\n")] = '\0';
    cell[count++] = line;
    for (; (line = strchr(line, ',')) != NULL && count < mostCells; cell[count++] = line) {
        *line++ = '\0';
    }
    return count;
}

static int place(const char* name, char** header, int count)
{
    int j;
    for (j = 0; j < count; ++j) {
        if (strcmp(header[j], name) == 0) {
            return j;
        }
    }
    fail("no column %s", name);
    return -1;
}

static double number(const char* cell, int line)
{
    char* end;
    double value;
    if (*cell == '\0' || strcmp(cell, "NA") == 0) {
        return KORVEL_MISSING_DBL;
    }
    value = strtod(cell, &end);
    if (*end != '\0' || !(fabs(value) <= DBL_MAX)) {
        fail("line %d: %s is not a number", line, cell);
    }
    return value;
}

/* The library takes a text as its operating system's automation keeps it: 16-bit characters behind their
 * length. */
static BSTR newText(const char* characters)
{
    const size_t length = strlen(characters);
    BSTR text = SysAllocStringLen(NULL, (UINT)length);
    size_t k;
    if (text == NULL) {
        fail("memory is short");
    }
    for (k = 0; k < length; ++k) {
        text[k] = (OLECHAR)(unsigned char)characters[k];
    }
    return text;
}

static int countRows(FILE* file)
{
    char line[longestLine];
    int rows = -1;
    while (fgets(line, longestLine, file) != NULL) {
        ++rows;
    }
    rewind(file);
    return rows;
}

static Table readTable(void)
{
    char line[longestLine];
    char* cell[mostCells];
    int places[columns];
    int groupPlace, width, i, j;
    Table table;
    FILE* file = fopen(fileName, "r");
    if (file == NULL) {
        fail("%s", strerror(errno));
    }
    table.rows = countRows(file);
    width = cells(fgets(line, longestLine, file) != NULL ? line : strcpy(line, ""), cell);
    for (j = 0; j < columns; ++j) {
        places[j] = place(names[j], cell, width);
    }
    groupPlace = place(group, cell, width);
    if (table.rows < 1) {
        fail("no rows");
    }
    table.numbers = numbers(table.rows * columns);
    table.groups = room(table.rows, sizeof(BSTR));
    for (i = 0; i < table.rows && fgets(line, longestLine, file) != NULL; ++i) {
        const int found = cells(line, cell);
        if (found != width) {
            fail("line %d has %d cells, not %d", i + 2, found, width);
        }
        for (j = 0; j < columns; ++j) {
            table.numbers[i + j * table.rows] = number(cell[places[j]], i + 2);
        }
        table.groups[i] = newText(cell[groupPlace]);
    }
    fclose(file);
    return table;
}

static void freeTexts(BSTR* texts, int count)
{
    int k;
    for (k = 0; k < count; ++k) {
        SysFreeString(texts[k]);
    }
    free(texts);
}

/* ---- Showing */

static int exact;

static void show(double value, const char* format, ...)
{
    char name[80];
    va_list more;
    va_start(more, format);
    vsnprintf(name, sizeof name, format, more);
    va_end(more);
    printf(exact ? "%-32s %a\n" : "%-32s %12.6g\n", name, value);
}

static void showPairs(const char* what, const double* square)
{
    int i, j;
    for (i = 0; i < columns; ++i) {
        for (j = i + 1; j < columns; ++j) {
            show(square[i + j * columns], "%s of %s and %s", what, names[i], names[j]);
        }
    }
}

/* ---- The analysis */

/* How many rows each month has, in the order of the months; fills in the weights, of which each month gets 1.
 */
static void weighMonths(const Table* table, double* weights)
{
    const int rows = table->rows;
    BSTR mode = NULL;
    double modeFrequency;
    int count, total, i, k;
    BSTR* months = room(rows, sizeof(BSTR));
    double* days = numbers(rows);
    for (i = 0; i < rows; ++i) {
        weights[i] = 1.0;
    }
    VB_M_InfoQuali(table->groups, rows, 1, &mode, &modeFrequency, &count, months, days, weights, &total, yes);
    for (k = 0; k < count; ++k) {
        char name[16] = "";
        unsigned c;
        for (c = 0; c < SysStringLen(months[k]) && c < sizeof name - 1; ++c) {
            name[c] = (char)months[k][c];
        }
        show(days[k], "rows of %s %s", group, name);
        for (i = 0; i < rows; ++i) {
            if (SysStringByteLen(months[k]) == SysStringByteLen(table->groups[i]) &&
                memcmp(months[k], table->groups[i], SysStringByteLen(months[k])) == 0) {
                weights[i] = 1.0 / days[k];
            }
        }
    }
    SysFreeString(mode);
    freeTexts(months, rows);
    free(days);
}

/* The divisor of the variances is the sum of the weights. A pair of columns is taken over the rows that have
 * both. */
static void describeColumns(const Table* table, const double* weights)
{
    double means[columns], deviations[columns], variances[columns], covariances[columns * columns];
    int j;
    VB_M_MeanStDevVar(table->numbers, table->rows, columns, means, deviations, variances, NULL, weights, no,
                      no);
    for (j = 0; j < columns; ++j) {
        show(means[j], "mean of %s", names[j]);
        show(deviations[j], "deviation of %s", names[j]);
    }
    VB_M_CovCorr(table->numbers, table->rows, columns, covariances, no, NULL, weights, no, no, no);
    showPairs("covariance", covariances);
}

/* Ozone on the other columns; the constant is the last term. */
static void regress(const double* complete, int rows, double* weights)
{
    double coefficients[predictors + 1], errors[predictors + 1];
    double* fitted = numbers(rows);
    /* The weights add up to the number of rows, so that the errors have its degrees of freedom. */
    const double scale = rows / VB_V_Sum2Dbl(weights, rows);
    int i, j;
    for (i = 0; i < rows; ++i) {
        weights[i] *= scale;
    }
    RunOLSBasic2(rows, predictors, complete + rows, complete, weights, 1, no, no, 1e-8, coefficients, errors,
                 fitted);
    for (j = 0; j <= predictors; ++j) {
        const char* const name = j < predictors ? names[j + 1] : "constant";
        show(coefficients[j], "coefficient of %s", name);
        show(errors[j], "standard error of %s", name);
    }
    free(fitted);
}

static void analyseCompleteRows(const Table* table, const double* weights)
{
    double correlations[columns * columns], values[columns], vectors[columns * columns];
    short int* incomplete = room(table->rows, sizeof(short int));
    double* complete = numbers(table->rows * columns);
    double* kept = numbers(table->rows);
    int removed = 0, rows, i;
    Cpp_M_GetMissingDbl(table->numbers, table->rows, columns, NULL, incomplete);
    for (i = 0; i < table->rows; ++i) {
        removed += incomplete[i] != 0;
    }
    rows = table->rows - removed;
    VB_RemoveRowsWithMissing(table->numbers, table->rows, columns, removed, incomplete, complete);
    VB_RemoveRowsWithMissing(weights, table->rows, 1, removed, incomplete, kept);
    VB_M_CovCorr(complete, rows, columns, correlations, yes, NULL, kept, no, no, no);
    if (VB_M_Eigen(correlations, values, vectors, columns, yes) != 0) {
        fail("no eigenvalues: too few complete rows, or a column is constant");
    }
    show(rows, "complete rows");
    showPairs("correlation", correlations);
    for (i = 0; i < columns; ++i) {
        show(values[i], "eigenvalue %d", i + 1);
    }
    regress(complete, rows, kept);
    free(incomplete);
    free(complete);
    free(kept);
}

int main(int count, char** words)
{
    Table table;
    double* weights;
    int missing[columns];
    int k;
    for (k = 1; k < count && strncmp(words[k], "--", 2) == 0; ++k) {
        if (strcmp(words[k], "--exact") != 0) {
            fprintf(stderr, "analysis: no option %s\n", words[k]);
            return 1;
        }
        exact = 1;
    }
    if (count - k != 1) {
        fprintf(stderr, "usage: analysis_c [--exact] FILE\n");
        return 1;
    }
    fileName = words[k];
    table = readTable();
    weights = numbers(table.rows);
    show(table.rows, "rows");
    VB_M_NbMissing(table.numbers, table.rows, columns, missing);
    for (k = 0; k < columns; ++k) {
        show(missing[k], "missing %s", names[k]);
    }
    weighMonths(&table, weights);
    describeColumns(&table, weights);
    analyseCompleteRows(&table, weights);
    freeTexts(table.groups, table.rows);
    free(table.numbers);
    free(weights);
    return 0;
}
