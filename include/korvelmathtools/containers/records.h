/**
 * @file
 * Classes around the caller's labelled records. An object is built from a record at the start of a call,
 * works on the record's arrays, and writes its scalars back when it is destroyed: a routine reports new
 * scalars by changing the object's fields. Each class can write itself as JSON. An object belongs to the call
 * that built it; there are no locks.
 */
#ifndef KORVEL_CONTAINERS_RECORDS_H
#define KORVEL_CONTAINERS_RECORDS_H

#include "containers/caller_records.h"
#include "containers/json_maker.h"
#include "containers/matrix.h"
#include "platform/export.h"

#include <concepts>
#include <string>
#include <utility>
#include <vector>

namespace korvel
{

/** `kind` of an object that was built without a record. */
inline constexpr short int unboundKind = 5;

/** `kind` of an object built from a record: the element type as the macro layer counts them. */
template <class T>
inline constexpr short int recordKind = std::same_as<T, double> ? 1
                                        : is_text<T>            ? 3
                                                                : 4;

} // namespace korvel

/** The base of all classes that write themselves as JSON. */
class JsonMakerBase
{
public:
    virtual ~JsonMakerBase() = default;

    /**
     * Writes the object as a JSON object.
     *
     * @param writer receives it; see there for the form of the text
     * @param key    name of the member under which it stands; empty for an element of an array, or for the
     * whole text
     * @throws std::bad_alloc when memory is short
     */
    virtual void writeJson(JsonMaker& writer, const std::string& key) = 0;

protected:
    JsonMakerBase() = default;
    JsonMakerBase(const JsonMakerBase&) = default;
    JsonMakerBase& operator=(const JsonMakerBase&) = default;
};

/** One labelled column of `double`, `int`, `short int` or `text`. */
template <class T>
class cST_Vect : public JsonMakerBase
{
public:
    short int kind =
        korvel::unboundKind;   ///< 1 `double`, 3 `text`, 4 `short int`; 5 when built without a record.
    ST_Vect* source = nullptr; ///< The caller's record, or null.
    int Count = 0;             ///< Number of observations.
    BSTR Label = nullptr;      ///< Name of the column; the record's own pointer, never freed here.
    matrix<T>
        Vect; ///< The column. Numbers: the record's own array. Texts: a copy, which the destructor puts back.

    /** An empty column without a record. */
    cST_Vect() = default;

    /**
     * The column in a record, which must outlive the object. A null array gives an empty `Vect`.
     * @throws boost::numeric::positive_overflow when a dimension of the array is above 0x7FFFFFFF
     */
    KORVEL_API explicit cST_Vect(ST_Vect* record) requires(!std::same_as<T, int>);

    /** Takes over everything; only the new object still writes back. */
    cST_Vect(cST_Vect&& src) noexcept
        : kind(src.kind), source(std::exchange(src.source, nullptr)), Count(src.Count), Label(src.Label),
          Vect(std::move(src.Vect))
    {
    }

    cST_Vect& operator=(cST_Vect&&) = delete;

    /** Writes `Count` and `Label` back into the record. */
    KORVEL_API ~cST_Vect() override;

    /** An object with "Label", "Count" and, unless the column is empty, "Vect". */
    KORVEL_API void writeJson(JsonMaker& writer, const std::string& key) override;
};

/** A table of labelled columns, which may differ in length, of `double`, `int`, `short int` or `text`. */
template <class T>
class cST_MVect : public JsonMakerBase
{
public:
    short int kind = korvel::unboundKind; ///< 1 `double`, 3 `text`; 5 when built without a record.
    ST_MVect* source = nullptr;           ///< The caller's record, or null.
    int nbcols = 0;                       ///< Columns.
    short int samenbrows = 0;             ///< -1 when all columns have the same length, otherwise 0.
    int nbrowsmax = 0;                    ///< Length of the longest column.
    std::vector<cST_Vect<T>> Vectors;     ///< The columns.
    matrix<int> nbrows;                   ///< Row count of each column.
    matrix<text> CLabels;                 ///< Column labels.
    bool bTriangular = false;             ///< Set by routines that hold a triangular table.

    /** An empty table without a record. */
    cST_MVect() = default;

    /**
     * The table in a record, which must outlive the object: its scalars copied, its numeric arrays used in
     * place, its texts copied and put back by the destructor. A null array gives an empty part.
     * @throws boost::numeric::positive_overflow when a dimension of an array is above 0x7FFFFFFF
     */
    KORVEL_API explicit cST_MVect(ST_MVect* record) requires(std::same_as<T, double> || korvel::is_text<T>);

    /** A table of its own of `cols` unnamed columns of `rows` zeros (empty texts), without a record. */
    KORVEL_API cST_MVect(int rows, int cols);

    /** A deep copy without a record. The labels of the columns themselves are still the caller's. */
    KORVEL_API cST_MVect(const cST_MVect& src);

    cST_MVect& operator=(const cST_MVect&) = delete;

    /** Writes `nbcols`, `samenbrows` and `nbrowsmax` back into the record. */
    KORVEL_API ~cST_MVect() override;

    /**
     * An object with "CLabels", "Vectors" (an array of the columns), "nbcols", "nbrowsmax", "samenbrows" (a
     * number), "nbrows" and "bTriangular". "CLabels", "Vectors" and "nbrows" are left out when they are
     * empty.
     */
    KORVEL_API void writeJson(JsonMaker& writer, const std::string& key) override;
};

/** Category statistics of a set of qualitative columns. The object owns the parts that it points to. */
class KORVEL_API cST_QualiInfo : public JsonMakerBase
{
public:
    ST_QualiInfo* source = nullptr;        ///< The caller's record, or null.
    int Count = 0;                         ///< Number of variables.
    double SumW = 0.0;                     ///< Sum of weights.
    int MaxNbCat = 0;                      ///< Room for categories in each column of the tables.
    int NbCatTotal = 0;                    ///< Categories of all variables together.
    double FreqMax = 0.0;                  ///< Largest frequency of a category.
    matrix<int>* NbCat = nullptr;          ///< Number of categories of each variable.
    matrix<text>* VarLabels = nullptr;     ///< Label of each variable.
    cST_MVect<text>* CatNames = nullptr;   ///< Category names, a column for each variable.
    cST_MVect<double>* CatFreq = nullptr;  ///< Their frequencies.
    cST_MVect<double>* CatFreqW = nullptr; ///< Their weighted frequencies.
    short int IgnoreNewCategoryInPred = 0; ///< 0 makes an unknown category an error in validation.
    short int withRecode = 0;              ///< Whether there are `Codes`.
    int codeStart = 0;                     ///< Code of the first category.
    matrix<double>* Codes = nullptr;       ///< Code of each cell; null when the record's `withRecode` is 0.
    int nCodes = 0;                        ///< Size of `Codes`.
    short int withSort = 0;                ///< -1: categories are sorted.
    short int noWeights = 0;               ///< -1: every row weighs 1.
    short int withLongLabels = 0;          ///< -1: category names carry the label of their variable.
    int CheckType = -1;                    ///< Carried along for the caller.

    /** All fields 0 or null, but `CheckType` -1. */
    cST_QualiInfo() = default;

    /**
     * The statistics in a record, which must outlive the object; as the default constructor for a null
     * record.
     * @throws boost::numeric::positive_overflow when a dimension of an array is above 0x7FFFFFFF; what was
     * built until then is released
     * @throws std::bad_alloc when memory is short
     */
    explicit cST_QualiInfo(ST_QualiInfo* record);

    cST_QualiInfo(const cST_QualiInfo&) = delete;
    cST_QualiInfo& operator=(const cST_QualiInfo&) = delete;

    /**
     * Writes the scalars back into the record, then the texts of `VarLabels` into the record's array, as far
     * as memory allows. The parts, which are deleted, write themselves back likewise.
     */
    ~cST_QualiInfo() override;

    /** An object with the fields in their order, but for `source`; a part that is not there is left out. */
    void writeJson(JsonMaker& writer, const std::string& key) override;
};

#endif
