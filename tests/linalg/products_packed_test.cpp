#include "linalg/products_packed.h"

#include "linalg/packed_sweep.h"
#include "reference/pair_products.h"
#include "support/column_tables.h"
#include "support/near_tables.h"
#include "support/special_values.h"

using namespace korvel::test;

namespace
{

constexpr std::array orders{0, 1, 2, 3, 4, 5, 7, 8, 9, 12, 17, 33, 70};

/** Calls `compare(cells, order)` for each order and each kind of odd cells. */
template <class Compare>
void forOrders(Compare compare)
{
    std::uint64_t seed = 11;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing_and_zeros, odd_cells::all}) {
        for (const int order : orders) {
            for (int repeat = 0; repeat < 4; ++repeat) {
                SCOPED_TRACE(::testing::Message() << "seed " << ++seed << ", order " << order);
                random_cells cells(seed, odd);
                compare(cells, order);
            }
        }
    }
}

/** A vector of that many cells, or one time in five of somewhat more or fewer. */
matrix<double> vectorNear(random_cells& cells, int count)
{
    if (cells.integer(0, 4) == 0) {
        return nearTable<double>(cells, count, 1);
    }
    matrix<double> made(count, 1, 0.0);
    fillRandomly(cells, made);
    return made;
}

} // namespace

TEST(PackedTimesVector, IsThePlainOne)
{
    forOrders([](random_cells& cells, int m) {
        matrix<double> S = vectorNear(cells, korvel::packedElements(m));
        matrix<double> x = vectorNear(cells, m);
        matrix<double> actual = vectorNear(cells, m);
        matrix<double> expected = twinOf(actual);
        matrix<double> other = twinOf(actual);
        M_ProductASymV(&S, m, &x, &actual);
        plainASymV(S, m, x, expected);
        expectSame(actual, expected);
        M_ProductVASym(&x, m, &S, &other);
        expectSame(other, expected);
    });
}

TEST(PackedTimesVector, ReadsTheLowerTriangleRowByRow)
{
    // 1 2 4 / 2 3 5 / 4 5 6
    matrix<double> S = vectorOf<double>({1, 2, 3, 4, 5, 6});
    matrix<double> x = vectorOf<double>({1, 10, 100});
    matrix<double> y(3, 1, 0.0);
    M_ProductASymV(&S, 3, &x, &y);
    EXPECT_EQ(cellsOf(y), (std::vector<double>{421, 532, 654}));
}

TEST(PackedTimesPacked, IsThePlainOne)
{
    forOrders([](random_cells& cells, int m) {
        // Every packed length between two orders, of which only the first is a whole triangle.
        const int from = korvel::packedElements(m);
        const int to = m < 10 ? korvel::packedElements(m + 1) : from + 1;
        for (int n = from; n < to; ++n) {
            matrix<double> A = vectorNear(cells, n);
            matrix<double> B = vectorNear(cells, n);
            matrix<double> actual = vectorNear(cells, n);
            matrix<double> expected = twinOf(actual);
            MV_ProductAsymBsym(&A, n, &B, &actual);
            plainAsymBsym(A, n, B, expected);
            expectSame(actual, expected);
        }
    });
}

TEST(PackedTimesPacked, OfALengthThatIsNoTriangleReadsPastTheEnd)
{
    // n = 4 is of order 2. Element 4 is (3, 1), and its second term is A(3, 2), which is not there.
    matrix<double> A = vectorOf<double>({1, 2, 3, 5});
    matrix<double> B = vectorOf<double>({7, 11, 13, 17});
    matrix<double> C(4, 1, 0.0);
    MV_ProductAsymBsym(&A, 4, &B, &C);
    EXPECT_EQ(cellsOf(C),
              (std::vector<double>{1 * 7 + 2 * 11, 2 * 7 + 3 * 11, 2 * 11 + 3 * 13, 5 * 7 - 1 * 11}));
    A.oobValue = 4.0;
    MV_ProductAsymBsym(&A, 4, &B, &C);
    EXPECT_EQ(C.data[3], 5 * 7 + 4 * 11);
}

TEST(PackedTimesPacked, IsTheTriangleOfAProductThatIsNotSymmetric)
{
    // 0 1 / 1 0 times 1 2 / 2 3 is 2 3 / 1 2.
    matrix<double> A = vectorOf<double>({0, 1, 0});
    matrix<double> B = vectorOf<double>({1, 2, 3});
    matrix<double> C(3, 1, 0.0);
    MV_ProductAsymBsym(&A, 3, &B, &C);
    EXPECT_EQ(cellsOf(C), (std::vector<double>{2, 1, 2}));
}

TEST(PackedTimesPacked, WithoutElementsStoresNothing)
{
    matrix<double> A = vectorOf<double>({1});
    matrix<double> C = vectorOf<double>({9});
    for (const int n : {0, -3}) {
        MV_ProductAsymBsym(&A, n, &A, &C);
        M_ProductASymV(&A, n, &A, &C);
        EXPECT_EQ(C.data[0], 9.0);
        EXPECT_EQ(C.oobValue, -1.0);
    }
}

TEST(SymmetricForm, IsThePlainOne)
{
    forOrders([](random_cells& cells, int n) {
        matrix<double> S =
            cells.integer(0, 4) == 0 ? nearTable<double>(cells, n, n) : matrix<double>(n, n, 0.5);
        fillRandomly(cells, S);
        matrix<double> v = vectorNear(cells, n);
        EXPECT_SAME_BITS(M_ProductTrVSymV(&v, n, &S), plainTrVSymV(v, n, S));
    });
}

TEST(SymmetricForm, ReadsTheLowerTriangleOnly)
{
    matrix<double> S = columnTable(2, {1, 2, notANumber, 3});
    matrix<double> v = vectorOf<double>({10, 100});
    EXPECT_SAME_BITS(M_ProductTrVSymV(&v, 2, &S), 2 * (10 * 100 * 2.0) + (100 * 1.0 + 10000 * 3.0));
    EXPECT_SAME_BITS(M_ProductTrVSymV(&v, 0, &S), 0.0);
}
