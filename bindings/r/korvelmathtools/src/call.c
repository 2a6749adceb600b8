/* One entry for all flat functions: turns vectors of R into arrays, texts and records, and back. The vectors
 * have the right types and sizes: call.R sees to that. Texts come as lists of raw vectors of UTF-16. What is
 * only read is not copied, but for texts, flags and what stands in records. */
#include "call.h"

#include <R.h>
#include <R_ext/Rdynload.h>
#include <Rinternals.h>
#include <stdlib.h>
#include <string.h>

enum { most_arguments = 64 };

/* The texts of a call, to be freed behind it. */
typedef struct block {
    BSTR* texts;
    R_xlen_t count;
    struct block* next;
} block;

static BSTR made_text(SEXP raw)
{
    BSTR const text = SysAllocStringLen((const OLECHAR*)RAW(raw), (UINT)(XLENGTH(raw) / 2));
    if (text == NULL) {
        Rf_errorcall(R_NilValue, "memory is short");
    }
    return text;
}

static SEXP raw_of(BSTR text)
{
    UINT const bytes = SysStringByteLen(text);
    SEXP raw = Rf_allocVector(RAWSXP, bytes);
    if (bytes > 0) {
        memcpy(RAW(raw), text, bytes);
    }
    return raw;
}

static BSTR* texts_of(SEXP list, block** made)
{
    block* const next = (block*)R_alloc(1, sizeof(block));
    next->texts = (BSTR*)R_alloc((size_t)XLENGTH(list) + 1, sizeof(BSTR));
    next->count = 0;
    next->next = *made;
    *made = next;
    for (R_xlen_t k = 0; k < XLENGTH(list); ++k) {
        next->texts[next->count++] = made_text(VECTOR_ELT(list, k));
    }
    return next->texts;
}

static void free_texts(const block* made)
{
    for (; made != NULL; made = made->next) {
        for (R_xlen_t k = 0; k < made->count; ++k) {
            SysFreeString(made->texts[k]);
        }
    }
}

static void put_texts(BSTR const* texts, SEXP list)
{
    for (R_xlen_t k = 0; k < XLENGTH(list); ++k) {
        SET_VECTOR_ELT(list, k, raw_of(texts[k]));
    }
}

static short int* flags_of(SEXP x)
{
    short int* const flags = (short int*)R_alloc((size_t)XLENGTH(x) + 1, sizeof(short int));
    const int* const cells = TYPEOF(x) == LGLSXP ? LOGICAL(x) : INTEGER(x);
    for (R_xlen_t k = 0; k < XLENGTH(x); ++k) {
        flags[k] = (short int)(TYPEOF(x) == LGLSXP ? -(cells[k] != 0) : cells[k]);
    }
    return flags;
}

/* A descriptor over elements that the library does not resize. */
static SAFEARRAY* array_over(void* elements, size_t bytes, R_xlen_t count, SEXP dim)
{
    int const dims = Rf_isNull(dim) ? 1 : 2;
    SAFEARRAY* const array = (SAFEARRAY*)R_alloc(1, sizeof(SAFEARRAY) + sizeof(SAFEARRAYBOUND));
    memset(array, 0, sizeof(SAFEARRAY) + sizeof(SAFEARRAYBOUND));
    array->cDims = (USHORT)dims;
    array->fFeatures = FADF_FIXEDSIZE;
    array->cbElements = (ULONG)bytes;
    array->pvData = elements;
    for (int k = 0; k < dims; ++k) {
        array->rgsabound[k].cElements = (ULONG)(dims == 1 ? count : INTEGER(dim)[1 - k]);
        array->rgsabound[k].lLbound = 1;
    }
    return array;
}

static void* copied(const void* cells, size_t bytes)
{
    void* const copy = R_alloc(bytes + 1, 1);
    if (bytes > 0) {
        memcpy(copy, cells, bytes);
    }
    return copy;
}

/* A host array of what the vector holds: numbers, integers, Booleans, or texts. */
static SAFEARRAY* host_array(SEXP x, block** made)
{
    SEXP dim = Rf_getAttrib(x, R_DimSymbol);
    size_t const count = (size_t)XLENGTH(x);
    switch (TYPEOF(x)) {
    case REALSXP:
        return array_over(copied(REAL(x), count * sizeof(double)), sizeof(double), XLENGTH(x), dim);
    case INTSXP:
        return array_over(copied(INTEGER(x), count * sizeof(int)), sizeof(int), XLENGTH(x), dim);
    case LGLSXP:
        return array_over(flags_of(x), sizeof(short int), XLENGTH(x), dim);
    default:
        return array_over(texts_of(x, made), sizeof(BSTR), XLENGTH(x), dim);
    }
}

static void put_array(const SAFEARRAY* array, SEXP x)
{
    size_t const count = (size_t)XLENGTH(x);
    if (TYPEOF(x) == VECSXP) {
        put_texts((BSTR const*)array->pvData, x);
    } else if (TYPEOF(x) == LGLSXP) {
        for (size_t k = 0; k < count; ++k) {
            LOGICAL(x)[k] = ((const short int*)array->pvData)[k] != 0;
        }
    } else if (count > 0) {
        memcpy(TYPEOF(x) == REALSXP ? (void*)REAL(x) : (void*)INTEGER(x), array->pvData,
               count * array->cbElements);
    }
}

static SAFEARRAY* chunked_table(SEXP columns, block** made)
{
    Hostarray* const records = (Hostarray*)R_alloc((size_t)XLENGTH(columns) + 1, sizeof(Hostarray));
    for (R_xlen_t j = 0; j < XLENGTH(columns); ++j) {
        SEXP column = VECTOR_ELT(columns, j);
        SAFEARRAY* const array = host_array(column, made);
        records[j].numbers = TYPEOF(column) == VECSXP ? NULL : array;
        records[j].texts = TYPEOF(column) == VECSXP ? array : NULL;
    }
    return array_over(records, sizeof(Hostarray), XLENGTH(columns), R_NilValue);
}

/* A labelled table of a list of columns, whose labels are its attribute. */
static ST_MVect* labelled_table(SEXP columns, block** made)
{
    R_xlen_t const count = XLENGTH(columns);
    SEXP labels = Rf_getAttrib(columns, Rf_install("labels"));
    ST_MVect* const table = (ST_MVect*)R_alloc(1, sizeof(ST_MVect));
    ST_Vect* const vectors = (ST_Vect*)R_alloc((size_t)count + 1, sizeof(ST_Vect));
    int* const rows = (int*)R_alloc((size_t)count + 1, sizeof(int));
    BSTR* const names = texts_of(labels, made);
    memset(table, 0, sizeof(ST_MVect));
    memset(vectors, 0, sizeof(ST_Vect) * ((size_t)count + 1));
    table->nbcols = (int)count;
    table->samenbrows = -1;
    for (R_xlen_t j = 0; j < count; ++j) {
        SEXP column = VECTOR_ELT(columns, j);
        rows[j] = (int)XLENGTH(column);
        if (rows[j] != rows[0]) {
            table->samenbrows = 0;
        }
        if (rows[j] > table->nbrowsmax) {
            table->nbrowsmax = rows[j];
        }
        vectors[j].Count = rows[j];
        vectors[j].Label = names[j];
        vectors[j].Vect = host_array(column, made);
    }
    table->nbrows = array_over(rows, sizeof(int), count, R_NilValue);
    table->Vectors = array_over(vectors, sizeof(ST_Vect), count, R_NilValue);
    table->CLabels = array_over(texts_of(labels, made), sizeof(BSTR), count, R_NilValue);
    return table;
}

static void** address_of(void* pointer)
{
    void** const address = (void**)R_alloc(1, sizeof(void*));
    *address = pointer;
    return address;
}

/* The slot of an argument; `x` is what the call may write to. */
static korvel_slot slot_of(char kind, SEXP x, block** made)
{
    korvel_slot slot;
    memset(&slot, 0, sizeof slot);
    if (Rf_isNull(x)) {
        return slot;
    }
    switch (kind) {
    case 'd':
        slot.number = Rf_asReal(x);
        break;
    case 'i':
        slot.integer = INTEGER(x)[0];
        break;
    case 's':
        slot.flag = (short int)INTEGER(x)[0];
        break;
    case 'D':
        slot.numbers = REAL(x);
        break;
    case 'I':
        slot.integers = INTEGER(x);
        break;
    case 'S':
        slot.flags = flags_of(x);
        break;
    case 'T':
        slot.texts = texts_of(x, made);
        break;
    case 't':
        slot.text = texts_of(x, made)[0];
        break;
    case 'l':
        slot.label = CHAR(STRING_ELT(x, 0));
        break;
    case 'A':
        slot.array = (SAFEARRAY**)address_of(host_array(x, made));
        break;
    case 'H':
        slot.chunks = (Hostarray**)address_of(chunked_table(x, made));
        break;
    case 'C':
        slot.column = (ST_Vect*)labelled_table(x, made)->Vectors->pvData;
        break;
    case 'M':
        slot.table = labelled_table(x, made);
        break;
    default:
        Rf_errorcall(R_NilValue, "an argument that R cannot make");
    }
    return slot;
}

/* Puts back what the call has written. */
static void put_back(char kind, const korvel_slot* slot, SEXP x)
{
    if (kind == 'S') {
        for (R_xlen_t k = 0; k < XLENGTH(x); ++k) {
            INTEGER(x)[k] = slot->flags[k];
        }
    } else if (kind == 'T') {
        put_texts(slot->texts, x);
    } else if (kind == 'A') {
        put_array(*slot->array, x);
    } else if (kind == 'H') {
        const Hostarray* const records = (const Hostarray*)((SAFEARRAY*)*slot->chunks)->pvData;
        for (R_xlen_t j = 0; j < XLENGTH(x); ++j) {
            put_array(records[j].numbers != NULL ? records[j].numbers : records[j].texts, VECTOR_ELT(x, j));
        }
    } else if (kind == 'C' || kind == 'M') {
        const ST_Vect* const vectors =
            kind == 'C' ? slot->column : (const ST_Vect*)slot->table->Vectors->pvData;
        for (R_xlen_t j = 0; j < XLENGTH(x); ++j) {
            put_array(vectors[j].Vect, VECTOR_ELT(x, j));
        }
    }
}

static SEXP result_of(char kind, const korvel_slot* slot)
{
    SEXP raw;
    switch (kind) {
    case 'd':
        return Rf_ScalarReal(slot->number);
    case 'i':
        return Rf_ScalarInteger(slot->integer);
    case 's':
        return Rf_ScalarInteger(slot->flag);
    case 't':
        raw = raw_of(slot->text);
        SysFreeString(slot->text);
        return raw;
    default:
        return R_NilValue;
    }
}

static int by_name(const void* name, const void* function)
{
    return strcmp((const char*)name, ((const korvel_function*)function)->name);
}

/* A call under way. */
typedef struct call_state {
    const korvel_function* function;
    SEXP arguments;
    SEXP written;
    block* made;
    int done;
} call_state;

/* The result and the arguments, of which those that are written are new. */
static SEXP answer_of(void* data)
{
    call_state* const state = (call_state*)data;
    const char* const kinds = state->function->kinds;
    const int* const written = LOGICAL(state->written);
    R_xlen_t const count = XLENGTH(state->arguments);
    korvel_slot slots[most_arguments];
    korvel_slot result;
    memset(&result, 0, sizeof result);
    SEXP answer = PROTECT(Rf_allocVector(VECSXP, count + 1));
    for (R_xlen_t k = 0; k < count; ++k) {
        SEXP x = VECTOR_ELT(state->arguments, k);
        SET_VECTOR_ELT(answer, k + 1, written[k] ? Rf_duplicate(x) : x);
        slots[k] = slot_of(kinds[k], VECTOR_ELT(answer, k + 1), &state->made);
    }
    state->done = korvel_guarded(state->function->call, slots, &result);
    if (state->done) {
        for (R_xlen_t k = 0; k < count; ++k) {
            SEXP x = VECTOR_ELT(answer, k + 1);
            if (written[k] && !Rf_isNull(x)) {
                put_back(kinds[k], &slots[k], x);
            }
        }
        SET_VECTOR_ELT(answer, 0, result_of(state->function->result[0], &result));
    }
    UNPROTECT(1);
    return answer;
}

static void clean_up(void* data)
{
    free_texts(((const call_state*)data)->made);
}

static SEXP korvel_call(SEXP name, SEXP arguments, SEXP written)
{
    call_state state = {NULL, arguments, written, NULL, 0};
    R_xlen_t const count = XLENGTH(arguments);
    state.function = (const korvel_function*)bsearch(CHAR(STRING_ELT(name, 0)), korvel_functions,
                                                     korvel_function_count, sizeof(korvel_function), by_name);
    if (state.function == NULL || count != (R_xlen_t)strlen(state.function->kinds) ||
        count > most_arguments) {
        Rf_errorcall(R_NilValue, "%s: another number of arguments", CHAR(STRING_ELT(name, 0)));
    }
    /* An error of R leaves the call at once; the texts are freed then, too. */
    SEXP answer = R_ExecWithCleanup(answer_of, &state, clean_up, &state);
    if (!state.done) {
        Rf_errorcall(R_NilValue, "%s: memory is short, or a count is below 0", state.function->name);
    }
    return answer;
}

static const R_CallMethodDef entries[] = {{"korvel_call", (DL_FUNC)&korvel_call, 3}, {NULL, NULL, 0}};

void R_init_korvelmathtools(DllInfo* info)
{
    R_registerRoutines(info, NULL, entries, NULL, NULL);
    R_useDynamicSymbols(info, FALSE);
}
