#include "random/permutation.h"

#include "random/random_state.h"
#include "reference/random_plain.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace korvel::test
{

namespace
{

template <class T>
class Permutation : public RandomState
{
protected:
    static std::vector<T> cellsOf(const matrix<T>& out)
    {
        return std::vector<T>(out.data, out.data + out.nbElem);
    }

    /** Shuffles with the routine and by the plain steps, from the same start. */
    static void expectPlain(int algorithm, int room, int n, short int bReset, int seed,
                            const std::vector<T>& start)
    {
        matrix<T> out(room, 1, T{0});
        plain_vector<T> plain{std::vector<T>(static_cast<std::size_t>(room))};
        for (std::size_t k = 0; k < std::min(start.size(), plain.cells.size()); ++k) {
            out.data[k] = start[k];
            plain.cells[k] = start[k];
        }
        processSource.algo = algorithm;
        int given = seed;
        short int flag = 1;
        int next = 0;
        random1toN(out, n, bReset, &given, &flag, &next);

        plain_source source(algorithm, seed);
        if (bReset == -1 || plain.at(0) == T{0}) {
            plainFill(plain, n);
        }
        plainShuffle(plain, n, source);
        ASSERT_EQ(cellsOf(out), plain.cells) << "algorithm " << algorithm << ", n " << n;
        EXPECT_EQ(out.oobValue, plain.spare);
        EXPECT_EQ(next, source.nextSeed());
        EXPECT_EQ(given, seed);
        EXPECT_EQ(flag, 1);
    }
};

using Elements = ::testing::Types<int, double>;
TYPED_TEST_SUITE(Permutation, Elements);

} // namespace

TYPED_TEST(Permutation, ExchangesPlaceByPlace)
{
    constexpr auto block = static_cast<int>(laneBlock);
    for (const int algorithm : {0, 1}) {
        for (const int n : {0, 1, 2, 3, 4, 5, 7, 8, 31, 100, block - 1, block, block + 1, block + 2, 5000}) {
            this->expectPlain(algorithm, n, n, -1, 12345 + n, {});
            this->expectPlain(algorithm, n, n, -1, -999, {TypeParam{5}, TypeParam{6}});
        }
    }
}

TYPED_TEST(Permutation, HasAScaleOfItsOwn)
{
    // Among so many draws, 1 / (2^31 - 1) would lead some to another place.
    this->expectPlain(0, 200000, 200000, -1, 12345, {});
}

TYPED_TEST(Permutation, WithoutAResetShufflesWhatIsThere)
{
    std::vector<TypeParam> start;
    for (int k = 0; k < 40; ++k) {
        start.push_back(static_cast<TypeParam>(1000 - 3 * k));
    }
    for (const int algorithm : {0, 1}) {
        for (const short int bReset : {short{0}, short{1}}) {
            this->expectPlain(algorithm, 40, 40, bReset, 77, start);
        }
    }
}

TYPED_TEST(Permutation, AFirstElementOfZeroIsAReset)
{
    for (const short int bReset : {short{0}, short{1}}) {
        this->expectPlain(0, 10, 10, bReset, 77, {TypeParam{0}, TypeParam{9}});
    }
}

TYPED_TEST(Permutation, PlacesThatAreNotThereAreTheSpareOne)
{
    for (const int algorithm : {0, 1}) {
        this->expectPlain(algorithm, 8, 10, -1, 4242, {});
        this->expectPlain(algorithm, 0, 5, -1, 4242, {});
        this->expectPlain(algorithm, 12, 10, -1, 4242, {});
    }
}

TYPED_TEST(Permutation, IsAPermutationUnderTheCombinedGenerator)
{
    matrix<TypeParam> out(1000, 1, TypeParam{0});
    int seed = 31;
    short int flag = 1;
    int next = 0;
    random1toN(out, 1000, -1, &seed, &flag, &next);
    auto sorted = this->cellsOf(out);
    EXPECT_FALSE(std::is_sorted(sorted.begin(), sorted.end()));
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        ASSERT_EQ(sorted[k], static_cast<TypeParam>(k + 1));
    }
}

TYPED_TEST(Permutation, ASecondShuffleStartsFromTheFirst)
{
    matrix<TypeParam> chained(6, 1, TypeParam{0});
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    random1toN(chained, 6, -1, &seed, &flag, &next);
    random1toN(chained, 6, 0, &seed, &flag, &next);

    plain_vector<TypeParam> plain{std::vector<TypeParam>(6)};
    plainFill(plain, 6);
    for (int times = 0; times < 2; ++times) {
        plain_source source(0, 12345);
        plainShuffle(plain, 6, source);
    }
    EXPECT_EQ(this->cellsOf(chained), plain.cells);
}

TYPED_TEST(Permutation, TheNextSeedIsTheFirstState)
{
    matrix<TypeParam> out(6, 1, TypeParam{0});
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    random1toN(out, 6, -1, &seed, &flag, &next);
    EXPECT_EQ(next, processSource.s1);
    int again = 0;
    random1toN(out, 6, -1, &seed, &flag, &again);
    EXPECT_EQ(again, next);
}

TYPED_TEST(Permutation, OfOneElementDrawsNothing)
{
    matrix<TypeParam> out(1, 1, TypeParam{0});
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    random1toN(out, 1, -1, &seed, &flag, &next);
    EXPECT_EQ(out.data[0], TypeParam{1});
    EXPECT_EQ(next, 12345);
    EXPECT_EQ(processSource.s2, 1234);
}

TYPED_TEST(Permutation, WithoutASeedRestartsFromTheOneHandedBack)
{
    for (const int algorithm : {0, 1}) {
        this->setStates(algorithm, 493972830, 50213928);
        matrix<TypeParam> first(20, 1, TypeParam{0});
        int seed = 1;
        short int flag = 0;
        int next = 0;
        random1toN(first, 20, -1, &seed, &flag, &next);
        EXPECT_EQ(seed, 493972830);
        EXPECT_EQ(flag, -1);

        matrix<TypeParam> second(20, 1, TypeParam{0});
        int nextAgain = 0;
        random1toN(second, 20, -1, &seed, &flag, &nextAgain);
        EXPECT_EQ(this->cellsOf(second), this->cellsOf(first));
        EXPECT_EQ(nextAgain, next);
    }
}

TYPED_TEST(Permutation, ABlankSourceTakesTheClock)
{
    this->setStates(0, 0, 0);
    matrix<TypeParam> out(3, 1, TypeParam{0});
    int seed = 1;
    short int flag = 0;
    int next = 0;
    random1toN(out, 3, -1, &seed, &flag, &next);
    EXPECT_EQ(seed, this->seedOfNow);
    EXPECT_EQ(flag, -1);
}

TYPED_TEST(Permutation, FromAToBIsAPermutationMovedUp)
{
    for (const int algorithm : {0, 1}) {
        for (const int a : {-3, 0, 1, 100}) {
            processSource.algo = algorithm;
            matrix<TypeParam> out(12, 1, TypeParam{0});
            int seed = 555;
            short int flag = 1;
            int next = 0;
            RandomAtoB(&out, a, a + 11, -1, seed, flag, next);

            plain_source source(algorithm, 555);
            plain_vector<TypeParam> plain{std::vector<TypeParam>(12)};
            plainFill(plain, 12);
            plainShuffle(plain, 12, source);
            for (auto& element : plain.cells) {
                element += static_cast<TypeParam>(a - 1);
            }
            EXPECT_EQ(this->cellsOf(out), plain.cells);
            EXPECT_EQ(next, source.nextSeed());
        }
    }
}

TYPED_TEST(Permutation, FromAToBWithoutAResetMovesUpWhatIsThere)
{
    matrix<TypeParam> out(3, 1, TypeParam{50});
    int seed = 555;
    short int flag = 1;
    int next = 0;
    RandomAtoB(&out, 11, 13, 0, seed, flag, next);
    EXPECT_EQ(this->cellsOf(out), std::vector<TypeParam>(3, TypeParam{60}));
}

TYPED_TEST(Permutation, FromAToBOfNothingSeedsAllTheSame)
{
    matrix<TypeParam> out(2, 1, TypeParam{7});
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    RandomAtoB(&out, 5, 4, -1, seed, flag, next);
    RandomAtoB(&out, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, seed, flag, next);
    EXPECT_EQ(this->cellsOf(out), std::vector<TypeParam>(2, TypeParam{7}));
    EXPECT_EQ(next, 12345);
}

} // namespace korvel::test
