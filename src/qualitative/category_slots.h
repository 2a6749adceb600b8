/**
 * @file
 * The slots in which the categories of one variable stand: a row of a table that has one row for each
 * variable, or a vector.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_SLOTS_H
#define KORVEL_QUALITATIVE_CATEGORY_SLOTS_H

#include "containers/cells.h"
#include "containers/records.h"

#include <algorithm>
#include <cstddef>

namespace korvel
{

/** A row of a table, through its checked access. */
template <class T>
class row_slots
{
public:
    row_slots(matrix_of<T>& table, int row) : table_(&table), row_(row) {}

    /** Slots that the table really has. */
    [[nodiscard]] int room() const
    {
        return row_ < table_->nbrows && table_->data != nullptr ? table_->nbcols : 0;
    }

    [[nodiscard]] const auto& get(int k) const { return table_->getElement(row_, k); }
    void set(int k, const T& value) const { table_->setElement(row_, k, value); }

private:
    matrix_of<T>* table_;
    int row_;
};

/** A vector, or a whole table in linear order, through its checked access. */
template <class T>
class vector_slots
{
public:
    explicit vector_slots(matrix_of<T>& vector) : vector_(&vector) {}

    [[nodiscard]] int room() const { return static_cast<int>(vector_->nbElem); }

    [[nodiscard]] const auto& get(int k) const { return std::as_const(*vector_)[k]; }
    void set(int k, const T& value) const { storeChecked(*vector_, k, value); }

private:
    matrix_of<T>* vector_;
};

/** The columns of a record by number. One that it does not have is an empty column, which keeps nothing. */
template <class T>
class column_slots
{
public:
    explicit column_slots(cST_MVect<T>& record) : record_(&record) {}

    [[nodiscard]] vector_slots<T> operator[](int j) { return vector_slots<T>(column(j)); }

    [[nodiscard]] bool has(int j) const { return static_cast<std::size_t>(j) < record_->Vectors.size(); }

    [[nodiscard]] matrix<T>& column(int j)
    {
        return has(j) ? record_->Vectors[static_cast<std::size_t>(j)].Vect : none_;
    }

    /** Stores into element i of column j. */
    void set(int i, int j, const T& value) { storeChecked(column(j), i, value); }

private:
    cST_MVect<T>* record_;
    matrix<T> none_;
};

/** `slot k = value` for all slots from the first on, `count` of them. */
template <class Slots, class T>
void fillSlots(const Slots& slots, int count, const T& value)
{
    for (int k = 0; k < count; ++k) {
        slots.set(k, value);
    }
}

} // namespace korvel

#endif
