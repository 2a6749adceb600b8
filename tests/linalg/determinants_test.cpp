#include "linalg/determinants.h"

#include "linalg/square_kinds.h"
#include "support/allocations.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double overflow = 1.79769313486231e308;

struct found {
    double value;
    short int error;
};

found determinantOf(matrix<double> table, short int mode = 0)
{
    short int error = 9;
    const double value = M_Determinant(&table, table.nbrows, &error, mode);
    return {value, error};
}

void expectDeterminant(const found& actual, double expected, short int error = 0)
{
    EXPECT_SAME_BITS(actual.value, expected);
    EXPECT_EQ(actual.error, error);
}

matrix<double> diagonal(const std::vector<double>& d)
{
    return squareOf(static_cast<int>(d.size()),
                    [&](int i, int j) { return i == j ? d[static_cast<std::size_t>(i)] : 0.0; });
}

} // namespace

TEST(Determinant, OfSmallTables)
{
    expectDeterminant(determinantOf(identity(5)), 1.0);
    EXPECT_DOUBLE_EQ(determinantOf(tableOf({{1, 2}, {3, 4}})).value, -2.0);
    EXPECT_DOUBLE_EQ(determinantOf(tableOf({{0, 1}, {2, 0}})).value, -2.0);
    EXPECT_DOUBLE_EQ(determinantOf(tableOf({{2, 0, 0}, {0, -3, 0}, {0, 0, -5}})).value, 30.0);
    EXPECT_DOUBLE_EQ(determinantOf(tableOf({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}})).value, 1.0);
    matrix<double> none;
    short int error = 9;
    EXPECT_SAME_BITS(M_Determinant(&none, 0, &error, 0), 1.0);
    EXPECT_EQ(error, 0);
}

TEST(Determinant, OfHilbertTables)
{
    // One over 2160, 266716800000 and 46206893947914691316295628839036278726983680000000000
    // (OEIS A005249): what a sum of logarithms and the condition of these tables leave of them.
    EXPECT_NEAR(determinantOf(hilbert(3)).value * 2160.0, 1.0, 1e-13);
    EXPECT_NEAR(determinantOf(hilbert(5)).value * 266716800000.0, 1.0, 1e-10);
    EXPECT_NEAR(determinantOf(hilbert(10)).value * 46206893947914691316295628839036278726983680000000000.0,
                1.0, 1e-2);
}

TEST(Determinant, LeavesTheTableAlone)
{
    matrix<double> table = tableOf({{1, 2}, {3, 4}});
    short int error = 9;
    M_Determinant(&table, 2, &error, 0);
    M_LogDeterminant(&table, 2);
    EXPECT_TRUE(sameTable(table, tableOf({{1, 2}, {3, 4}})));
}

TEST(Determinant, ReadsTheFirstBlockOnly)
{
    matrix<double> table = tableOf({{1, 2, 9}, {3, 4, 9}, {9, 9, 9}});
    short int error = 9;
    EXPECT_DOUBLE_EQ(M_Determinant(&table, 2, &error, 0), -2.0);
    EXPECT_SAME_BITS(M_LogDeterminant(&table, 1), 0.0);
}

TEST(Determinant, OfASingularTableIsZeroWithoutAnError)
{
    expectDeterminant(determinantOf(tableOf({{1, 1}, {1, 1}})), 0.0);
    expectDeterminant(determinantOf(tableOf({{1, 2, 3}, {2, 4, 6}, {1, 0, 1}})), 0.0);
    expectDeterminant(determinantOf(scaled(tableOf({{1, 1}, {1, 1}}), 1e200)), 0.0);
}

TEST(Determinant, OfARowOfZerosIsZeroWithAnError)
{
    expectDeterminant(determinantOf(tableOf({{1, 1}, {0, 0}})), 0.0, -1);
    expectDeterminant(determinantOf(tableOf({{notANumber, 1}, {notANumber, 1}})), 0.0, 1);
}

TEST(Determinant, OfATinyPivotIsZero)
{
    expectDeterminant(determinantOf(diagonal({1, 0.99e-24})), 0.0);
    expectDeterminant(determinantOf(diagonal({1, -0.99e-24})), 0.0);
    EXPECT_NEAR(determinantOf(diagonal({1, 1e-24})).value / 1e-24, 1.0, 1e-13);
    // The factor that stands for a zero pivot is no sign of one.
    EXPECT_NEAR(determinantOf(diagonal({1, 1e-20})).value / 1e-20, 1.0, 1e-13);
    // A table of tiny scale counts as singular, however regular it is.
    expectDeterminant(determinantOf(scaled(identity(2), 1e-25)), 0.0);
}

TEST(Determinant, KeepsToTheRangeOfTheLogarithm)
{
    const double e = std::exp(1.0);
    const auto powerOf = [&](double logarithm) {
        std::vector<double> d(50, std::exp(logarithm / 50.0));
        return diagonal(d);
    };
    EXPECT_GT(determinantOf(powerOf(-707.9)).value, 0.0);
    expectDeterminant(determinantOf(powerOf(-708.1)), 0.0);
    EXPECT_NEAR(determinantOf(powerOf(708.9)).value / std::exp(708.9), 1.0, 1e-11);
    expectDeterminant(determinantOf(powerOf(709.5)), overflow, -1);
    matrix<double> negative = powerOf(709.5);
    negative.setElement(0, 0, -negative.getElement(0, 0));
    expectDeterminant(determinantOf(negative), overflow, -1);
    expectDeterminant(determinantOf(negative, 1), overflow, -1);
    const found logarithm = determinantOf(negative, -1);
    EXPECT_NEAR(logarithm.value, -709.5, 1e-10);
    EXPECT_EQ(logarithm.error, 0);
    EXPECT_NEAR(determinantOf(powerOf(709.5), -1).value, 709.5, 1e-10);
    EXPECT_NEAR(determinantOf(diagonal({e}), -1).value, e, 1e-15) << "in range it is no logarithm";
}

TEST(Determinant, IncludesBothEndsOfThatRange)
{
    const auto withLogarithm = [](double logarithm) {
        double x = std::exp(logarithm) * (1.0 - 1e-14);
        while (std::log(x) < logarithm) {
            x = std::nextafter(x, infinite);
        }
        EXPECT_EQ(std::log(x), logarithm);
        return x;
    };
    const std::vector<double> least(59, withLogarithm(-12.0));
    expectDeterminant(determinantOf(diagonal(least)), std::exp(-708.0));
    std::vector<double> most(59, withLogarithm(12.0));
    most.push_back(withLogarithm(1.0));
    expectDeterminant(determinantOf(diagonal(most)), std::exp(709.0));
}

TEST(Determinant, OfANaNIsANaN)
{
    EXPECT_TRUE(std::isnan(determinantOf(tableOf({{1, notANumber}, {0.5, notANumber}})).value));
}

TEST(Determinant, WithoutMemoryIsAStatus)
{
    short int error = 9;
    matrix<double> table(1, 1, 2.0);
    EXPECT_SAME_BITS(M_Determinant(&table, 60'000, &error, 0), overflow) << "more cells than a table has";
    EXPECT_EQ(error, -1);
    EXPECT_THROW(M_LogDeterminant(&table, 60'000), std::bad_alloc);
}

TEST(LogDeterminant, IsTheLogarithm)
{
    matrix<double> table = tableOf({{0, 2}, {-3, 1}});
    EXPECT_NEAR(M_LogDeterminant(&table, 2), std::log(6.0), 1e-15);
    matrix<double> large = scaled(identity(4), 1e300);
    EXPECT_NEAR(M_LogDeterminant(&large, 4), 4.0 * 300.0 * std::log(10.0), 1e-10);
    EXPECT_SAME_BITS(M_LogDeterminant(&table, 0), 0.0);
}

TEST(LogDeterminant, OfANegativeOneIsMissing)
{
    matrix<double> table = tableOf({{1, 2}, {3, 4}});
    EXPECT_SAME_BITS(M_LogDeterminant(&table, 2), MISSING_DBL);
    matrix<double> zeros = tableOf({{1, 2}, {0, 0}});
    EXPECT_SAME_BITS(M_LogDeterminant(&zeros, 2), MISSING_DBL);
}

TEST(LogDeterminant, OfASingularTableCountsTheStandIn)
{
    // One swap, so the sign of a positive stand-in is that of the determinant.
    matrix<double> odd = tableOf({{1, 1}, {1, 1}});
    EXPECT_SAME_BITS(M_LogDeterminant(&odd, 2), MISSING_DBL);
    matrix<double> even = tableOf({{2, 2}, {1, 1}, {0, 0}});
    even.setElement(1, 0, -1.0);
    even.setElement(1, 1, -1.0);
    EXPECT_SAME_BITS(M_LogDeterminant(&even, 2), std::log(1.0) + std::log(1e-20));
}

TEST(LogDeterminant, OfAFirstColumnOfNaNReadsTheDiagonalAsItStands)
{
    matrix<double> zero = tableOf({{notANumber, 1, 1}, {notANumber, 0, 1}, {notANumber, 1, 1}});
    EXPECT_SAME_BITS(M_LogDeterminant(&zero, 3), 0.0);
    matrix<double> other = tableOf({{notANumber, 1}, {notANumber, 2}});
    EXPECT_TRUE(std::isnan(M_LogDeterminant(&other, 2)));
}

TEST(TriangularDeterminant, IsTheProductOfTheDiagonal)
{
    short int error = 9;
    matrix<double> table = tableOf({{2, 7, 7}, {0, -3, 7}, {0, 0, 5}});
    EXPECT_DOUBLE_EQ(M_DeterminantTriang(&table, 3, &error), -30.0);
    EXPECT_EQ(error, 0);
    EXPECT_SAME_BITS(M_DeterminantTriang(&table, 0, &error), 1.0);
    table.setElement(1, 1, -0.0);
    error = 9;
    EXPECT_SAME_BITS(M_DeterminantTriang(&table, 3, &error), 0.0);
    EXPECT_EQ(error, 0);
}

TEST(TriangularDeterminant, HasNoBounds)
{
    short int error = 9;
    matrix<double> table = scaled(identity(3), 1e300);
    EXPECT_SAME_BITS(M_DeterminantTriang(&table, 3, &error), infinite);
    table.setElement(0, 0, -1e300);
    EXPECT_SAME_BITS(M_DeterminantTriang(&table, 3, &error), -infinite);
    table = scaled(identity(2), 1e-30);
    EXPECT_NEAR(M_DeterminantTriang(&table, 2, &error) * 1e60, 1.0, 1e-12) << "nor a threshold";
}
