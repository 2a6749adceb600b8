/**
 * @file
 * The categories of one variable, found while its rows are read.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_LIST_H
#define KORVEL_QUALITATIVE_CATEGORY_LIST_H

#include "qualitative/text_index.h"

namespace korvel
{

/**
 * Texts in slots from the first on, which are searched from the newest to the first. `Slots` has `room()`,
 * `get(k)` and `set(k, text)`. As long as the texts lie inside the slots an index finds what the search
 * would.
 */
template <class Slots>
class category_list
{
public:
    /** `index` is empty, and in use until this object is gone. */
    category_list(const Slots& slots, text_index& index) : slots_(slots), index_(&index), room_(slots.room())
    {
    }

    [[nodiscard]] int size() const { return size_; }

    /** The position of the newest slot that holds the text, from 0; -1 when there is none. */
    [[nodiscard]] int find(const hashed_text& cell) const
    {
        return size_ <= room_ ? index_->find(cell) : search(cell.value());
    }

    /** Puts a text into the next slot, and gives its position. */
    int add(const hashed_text& name)
    {
        slots_.set(size_, text(name.value()));
        if (size_ < room_) {
            index_->put(stored(name), size_);
        }
        return size_++;
    }

private:
    /** The text where it stands for as long as the index is used. */
    [[nodiscard]] hashed_text stored(const hashed_text& name) const
    {
        return {slots_.get(size_), name.hash()};
    }

    /** Slots outside all read what was stored last. */
    [[nodiscard]] int search(std::u16string_view cell) const
    {
        int k = size_ - 1;
        while (k >= 0 && slots_.get(k) != cell) {
            --k;
        }
        return k;
    }

    Slots slots_;
    text_index* index_;
    int room_;
    int size_ = 0;
};

/**
 * Lists the categories of the rows of a column.
 *
 * @param n        number of rows
 * @param cells    accessor of the column's texts
 * @param list     receives the categories, in order of first appearance
 * @param nameOf   the name of the category that a cell's text starts
 * @param onRow    is told of each row its number, the position of its category or -1 for an empty cell, and
 * whether the row started that category
 */
template <class Cells, class Slots, class NameOf, class OnRow>
void listCategories(int n, const Cells& cells, category_list<Slots>& list, NameOf nameOf, OnRow onRow)
{
    for (int i = 0; i < n; ++i) {
        if (cells[i].empty()) {
            onRow(i, -1, false);
            continue;
        }
        const hashed_text cell(cells[i]);
        const int known = list.find(cell);
        onRow(i, known >= 0 ? known : list.add(nameOf(cell)), known < 0);
    }
}

} // namespace korvel

#endif
