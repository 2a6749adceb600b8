#include "containers/views.h"
#include "support/bits.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

using korvel::reading;
using korvel::readVector;
using korvel::withCells;
using korvel::writeVector;
using korvel::writing;

namespace
{

/** Stand-ins for the other forms. A view needs only their shape. */
struct chunk_table {
    std::vector<matrix<double>> chunks;
};

struct labelled_column {
    matrix<double> Vect;
};

struct labelled_table {
    std::vector<labelled_column> Vectors;
};

struct sparse_table {
    std::vector<int> rowStart;
    std::array<double, 4> cells{}; // 2 by 2

    [[nodiscard]] double getElement(int i, int j) const
    {
        return i < 2 && j < 2 ? cells[static_cast<std::size_t>(i + 2 * j)] : -1.0;
    }
    void setElement(int i, int j, double value)
    {
        if (i < 2 && j < 2) {
            cells[static_cast<std::size_t>(i + 2 * j)] = value;
        }
    }
};

constexpr int storedRows = 3;
constexpr int storedCols = 2;

double cellValue(int i, int j)
{
    return 10.0 * j + i;
}

/** One table of 3 by 2 cells in each form, cell (i, j) holding 10 j + i, and every spare slot -1. */
class Forms : public testing::Test
{
protected:
    matrix<double> dense{storedRows, storedCols, 0.0};
    matrix<double> firstColumn{storedRows, 1, 0.0};
    matrix<double> secondColumn{storedRows, 1, 0.0};
    std::array<matrix<double>*, storedCols> pointers{&firstColumn, &secondColumn};
    chunk_table objects;
    labelled_table labelled;

    Forms()
    {
        for (int j = 0; j < storedCols; ++j) {
            matrix<double> column(storedRows, 1, 0.0);
            for (int i = 0; i < storedRows; ++i) {
                dense[i + storedRows * j] = cellValue(i, j);
                (*pointers[static_cast<std::size_t>(j)])[i] = cellValue(i, j);
                column[i] = cellValue(i, j);
            }
            objects.chunks.push_back(matrix<double>(column));
            labelled.Vectors.push_back({matrix<double>(column)});
        }
    }

    matrix<double>& chunk(int form, int j)
    {
        const auto at = static_cast<std::size_t>(j);
        return form == 1 ? *pointers[at] : form == 2 ? objects.chunks[at] : labelled.Vectors[at].Vect;
    }

    /** Calls `body(form number, view)` for every form: dense, pointers, objects, records. */
    template <class Body>
    void forEachWritten(Body&& body)
    {
        body(0, writing(dense));
        body(1, writing(pointers.data()));
        body(2, writing(objects));
        body(3, writing(labelled));
    }

    template <class Body>
    void forEachRead(Body&& body)
    {
        body(0, reading(std::as_const(dense)));
        body(1, reading(pointers.data()));
        body(2, reading(std::as_const(objects)));
        body(3, reading(std::as_const(labelled)));
    }

    double spareOf(int form, int j) { return form == 0 ? dense.oobValue : chunk(form, j).oobValue; }
};

/** Adds up a column and tells whether raw memory was used. */
template <class Column>
std::pair<double, bool> sumOf(const Column& column, int rows)
{
    return withCells(
        [&](auto x) {
            double sum = 0.0;
            for (int i = 0; i < rows; ++i) {
                sum += x[i];
            }
            return std::pair(sum, std::is_pointer_v<decltype(x)>);
        },
        column);
}

} // namespace

TEST_F(Forms, AColumnInsideIsAPlainPointer)
{
    forEachRead([](int form, auto view) {
        SCOPED_TRACE(form);
        const auto [sum, raw] = sumOf(view.column(1, 3), 3);
        EXPECT_SAME_BITS(sum, 33.0);
        EXPECT_TRUE(raw);
    });
}

TEST_F(Forms, AColumnThatIsTooShortIsReadWithItsSpareSlot)
{
    dense.oobValue = 100.0;
    for (int form = 1; form <= 3; ++form) {
        chunk(form, 1).oobValue = 100.0;
    }
    forEachRead([](int form, auto view) {
        SCOPED_TRACE(form);
        const auto [sum, raw] = sumOf(view.column(1, 5), 5);
        EXPECT_SAME_BITS(sum, 233.0);
        EXPECT_FALSE(raw);
    });
}

TEST_F(Forms, CheckedReadsAreThoseOfTheForm)
{
    forEachRead([](int form, auto view) {
        SCOPED_TRACE(form);
        EXPECT_SAME_BITS(view.get(2, 1), 12.0);
        EXPECT_SAME_BITS(view.get(3, 0), -1.0);
    });
    // Only the dense form tests the column, and only a chunk tests an element number from below.
    EXPECT_SAME_BITS(reading(dense).get(0, 2), -1.0);
    EXPECT_SAME_BITS(reading(dense).get(-1, 1), 2.0);
    EXPECT_SAME_BITS(reading(pointers.data()).get(-1, 1), -1.0);
    EXPECT_FALSE(reading(dense).column(2, 3).inside());
    EXPECT_FALSE(reading(dense).column(-1, 3).inside());
    EXPECT_FALSE(reading(dense).table(3, 3).inside());
    EXPECT_TRUE(reading(dense).table(3, 2).inside());
}

TEST_F(Forms, AChunkCountsItsElementsNotItsRows)
{
    matrix<double> wide(2, 3, 4.0);
    const std::array<matrix<double>*, 1> one{&wide};
    EXPECT_TRUE(reading(one.data()).column(0, 6).inside());
    EXPECT_FALSE(reading(one.data()).column(0, 7).inside());
    EXPECT_FALSE(reading(wide).column(0, 3).inside());
}

TEST_F(Forms, CheckedStoresReachTheSpareSlotInEveryCase)
{
    forEachWritten([this](int form, auto view) {
        SCOPED_TRACE(form);
        view.set(1, 1, 5.0);
        EXPECT_SAME_BITS(view.get(1, 1), 5.0);
        EXPECT_SAME_BITS(spareOf(form, 1), 5.0);
        view.set(3, 1, 6.0);
        EXPECT_SAME_BITS(spareOf(form, 1), 6.0);
        EXPECT_SAME_BITS(view.get(0, 0), 0.0);
    });
}

TEST_F(Forms, ARawLoopLeavesTheSpareSlotAsTheCheckedLoopWould)
{
    const auto fill = [](auto& out, int rows, int from) {
        for (int i = from; i < rows; ++i) {
            if (i % 2 == 0) { // the last row is left out
                out.set(i, 7.0 + i);
            }
        }
    };
    for (const int rows : {0, 1, 2, 3, 4, 6}) {
        for (const int from : {0, 1, 4}) {
            matrix<double> out(4, 1, 0.5);
            matrix<double> expected(4, 1, 0.5);
            out.oobValue = expected.oobValue = 0.25;
            for (int i = from; i < rows; ++i) {
                if (i % 2 == 0) {
                    expected.setElement(i, 0, 7.0 + i);
                }
            }
            const std::array<matrix<double>*, 1> one{&out};
            for (int form = 0; form < 2; ++form) {
                SCOPED_TRACE(testing::Message() << rows << " rows from " << from << ", form " << form);
                std::fill_n(out.data, 4, 0.5);
                out.oobValue = 0.25;
                if (form == 0) {
                    withCells([&](auto& cells) { fill(cells, rows, from); }, writing(out).column(0, rows));
                } else {
                    withCells([&](auto& cells) { fill(cells, rows, from); },
                              writing(one.data()).column(0, rows));
                }
                for (int i = 0; i < 4; ++i) {
                    EXPECT_SAME_BITS(out[i], expected[i]);
                }
                EXPECT_SAME_BITS(out.oobValue, expected.oobValue);
            }
        }
    }
}

TEST_F(Forms, OneSourceOutsideMakesAllChecked)
{
    const matrix<double> weights(2, 1, 2.0);
    const bool raw = withCells([](auto x, auto) { return std::is_pointer_v<decltype(x)>; },
                               reading(dense).column(0, 3), readVector(weights, 3));
    EXPECT_FALSE(raw);
}

TEST_F(Forms, TablesAreReachedInAnyOrder)
{
    const auto transpose = [](int rows, int cols, const auto& from, const auto& to) {
        withCells(
            [&](auto in, auto& out) {
                for (int r = 0; r < rows; ++r) {
                    for (int c = 0; c < cols; ++c) {
                        out.set(c, r, in.get(r, c));
                    }
                }
            },
            from.table(rows, cols), to.table(cols, rows));
    };
    // One row more than there is, and exactly what there is.
    for (const int rows : {storedRows, storedRows + 1}) {
        forEachRead([&](int form, auto view) {
            SCOPED_TRACE(testing::Message() << "form " << form << ", " << rows << " rows");
            matrix<double> out(storedCols, storedRows + 1, 0.0);
            transpose(rows, storedCols, view, writing(out));
            EXPECT_SAME_BITS(out.getElement(0, storedRows), rows == storedRows ? 0.0 : -1.0);
            for (int r = 0; r < storedRows; ++r) {
                for (int c = 0; c < storedCols; ++c) {
                    EXPECT_SAME_BITS(out.getElement(c, r), cellValue(r, c));
                }
            }
            EXPECT_SAME_BITS(out.oobValue, rows == storedRows ? 12.0 : -1.0);
        });
    }
    forEachWritten([&](int form, auto view) {
        SCOPED_TRACE(form);
        matrix<double> in(storedCols, storedRows + 1, 0.0);
        for (int k = 0; k < 8; ++k) {
            in[k] = k;
        }
        transpose(storedCols, storedRows, reading(in), view);
        EXPECT_SAME_BITS(view.get(2, 1), 5.0);
        EXPECT_SAME_BITS(view.get(2, 0), 4.0);
        EXPECT_SAME_BITS(spareOf(form, 1), 5.0);
        EXPECT_SAME_BITS(spareOf(form, 0), form == 0 ? 5.0 : 4.0);
        // A row past the end goes only to the spare slot.
        transpose(storedCols, storedRows + 1, reading(in), view);
        EXPECT_SAME_BITS(view.get(0, 1), 1.0);
        EXPECT_SAME_BITS(view.get(2, 1), 5.0);
        EXPECT_SAME_BITS(spareOf(form, 1), 7.0);
    });
}

TEST(Triangle, IsReadAndWrittenOnBothSidesOfTheDiagonal)
{
    constexpr int order = 3;
    chunk_table table;
    for (int c = 0; c < order; ++c) {
        table.chunks.emplace_back(order - c, 1, 0.0);
    }
    for (const int seen : {order, order + 1}) { // all inside, and one column too long
        if (seen > order) {
            table.chunks.emplace_back();
        }
        // The half above the diagonal, then the one below it, with other values.
        for (const bool above : {true, false}) {
            const double sign = above ? -1.0 : 1.0;
            withCells(
                [&](auto& stored) {
                    for (int i = 0; i < order; ++i) {
                        for (int j = 0; j <= i; ++j) {
                            stored.set(above ? j : i, above ? i : j, sign * (10.0 * i + j));
                        }
                    }
                },
                writing(table).triangle(seen));
            EXPECT_SAME_BITS(table.chunks[1][1], sign * 21.0);
            EXPECT_SAME_BITS(table.chunks[0][2], sign * 20.0);
            EXPECT_SAME_BITS(table.chunks[0].oobValue, sign * 20.0);
            EXPECT_SAME_BITS(table.chunks[2].oobValue, sign * 22.0);
        }
        withCells(
            [](auto stored) {
                for (int i = 0; i < order; ++i) {
                    for (int j = 0; j < order; ++j) {
                        EXPECT_SAME_BITS(stored.get(i, j), 10.0 * std::max(i, j) + std::min(i, j));
                    }
                }
            },
            reading(table).triangle(seen));
    }
    EXPECT_FALSE(reading(table).triangle(order + 1).inside());
    EXPECT_SAME_BITS(reading(table).triangle(order + 1).get(3, 0), 20.0) << "the spare slot of chunk 0";
}

TEST(SparseView, GoesThroughTheElementsAlone)
{
    sparse_table table;
    withCells(
        [](auto& out) {
            out.set(0, 3.0);
            out.set(5, 4.0);
        },
        writing(table).column(1, 6));
    const auto [sum, raw] = sumOf(reading(table).column(1, 3), 3);
    EXPECT_SAME_BITS(sum, 2.0) << "3, 0 and the -1 of an index outside";
    EXPECT_FALSE(raw);
    EXPECT_FALSE(reading(table).table(1, 1).inside());
    writing(table).table(2, 2).set(1, 0, 8.0);
    EXPECT_SAME_BITS(reading(table).get(1, 0), 8.0);
}

TEST(Vectors, AreReachedByLinearIndex)
{
    matrix<double> y(2, 2, 0.0);
    withCells(
        [](auto& out) {
            for (int k = 0; k < 4; ++k) {
                out.set(k, k + out[0]);
            }
        },
        writeVector(y, 4));
    EXPECT_SAME_BITS(y[3], 3.0);
    EXPECT_SAME_BITS(y.oobValue, 3.0);
    const auto outside = writeVector(y, 5);
    EXPECT_FALSE(outside.inside());
    outside.set(4, 9.0);
    outside.set(-1, 8.0);
    EXPECT_SAME_BITS(y[3], 3.0);
    EXPECT_SAME_BITS(y.oobValue, 8.0);
}

TEST(Vectors, OfTextsKeepTheLastTextInTheSpareSlot)
{
    matrix<text> names(2, 1, text());
    withCells(
        [](auto& out) {
            out.set(0, u"a");
            out.set(1, u"b");
        },
        writeVector(names, 2));
    EXPECT_EQ(names[0], u"a");
    EXPECT_EQ(names[1], u"b");
    EXPECT_EQ(names.oobValue, u"b");
}
