#include "containers/host_chunks.h"
#include "support/allocations.h"
#include "support/automation_watch.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/leaks.h"

#include <array>
#include <new>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

/** A chunked table in the caller's memory. */
struct caller_table {
    caller_memory memory;
    SAFEARRAY* array = nullptr;

    explicit caller_table(const std::vector<Hostarray>& records = {}) { set(records); }

    void set(const std::vector<Hostarray>& records) { array = memory.array(records); }
    Hostarray** reference() { return reinterpret_cast<Hostarray**>(&array); }
};

/** The row count of each chunk, -1 for a chunk that is not there. */
template <class T>
std::vector<int> rowsOf(matrix<T>** chunks, int n)
{
    std::vector<int> rows;
    for (int k = 0; k < n; ++k) {
        rows.push_back(chunks[k] != nullptr ? chunks[k]->nbrows : -1);
    }
    return rows;
}

} // namespace

TEST(LoadHostarray, BorrowsTheColumnsWithoutACopy)
{
    caller_table table;
    SAFEARRAY* first = table.memory.array(numbers{1.0, 2.0, 3.0});
    SAFEARRAY* second = table.memory.array(numbers{4.0, 5.0, 6.0});
    table.set({{first, nullptr}, {second, nullptr}});

    const automation_watch watch;
    const auto before = allocationCount();
    matrix<double>** chunks = LoadHostarray(table.reference(), 2, 3, 1);
    EXPECT_EQ(allocationCount() - before, 3) << "the array and two descriptors";

    for (int k = 0; k < 2; ++k) {
        EXPECT_EQ(chunks[k]->data, (k == 0 ? first : second)->pvData);
        EXPECT_FALSE(chunks[k]->bOwner);
        EXPECT_EQ(chunks[k]->safeArray, nullptr);
        EXPECT_EQ(chunks[k]->nbrows, 3);
        EXPECT_EQ(chunks[k]->nbcols, 1);
        EXPECT_EQ(chunks[k]->nbElem, 3u);
    }
    chunks[1]->setElement(2, 0, 9.0);
    DeleteHostarray(chunks, 2);
    EXPECT_TRUE(watch.blocks(0, 0));
    EXPECT_TRUE(watch.arrays(0, 0));
    EXPECT_EQ(numbersIn<double>(first), (numbers{1.0, 2.0, 3.0}));
    EXPECT_EQ(numbersIn<double>(second), (numbers{4.0, 5.0, 9.0}));
    EXPECT_TRUE(table.memory.guardsIntact());
}

TEST(LoadHostarray, GivesEveryChunkTheShapeThatItIsTold)
{
    caller_table table;
    table.set({{table.memory.array(numbers(6)), nullptr}, {table.memory.array(numbers(6)), nullptr}});
    matrix<double>** chunks = LoadHostarray(table.reference(), 2, 2, 3);
    EXPECT_EQ(rowsOf(chunks, 2), (std::vector{2, 2}));
    EXPECT_EQ(chunks[1]->nbcols, 3);
    EXPECT_EQ(chunks[1]->nbElem, 6u);
    DeleteHostarray(chunks, 2);
}

TEST(LoadHostarray, LowersTheRowsOfATriangleAfterEveryChunkMade)
{
    caller_table table;
    std::vector<Hostarray> records;
    for (int k = 0; k < 4; ++k) {
        records.push_back({table.memory.array(numbers(4)), nullptr});
    }
    table.set(records);
    matrix<double>** chunks = LoadHostarray(table.reference(), 4, 4, 0);
    EXPECT_EQ(rowsOf(chunks, 4), (std::vector{4, 3, 2, 1}));
    EXPECT_EQ(chunks[3]->nbcols, 1);
    DeleteHostarray(chunks, 4);

    records[1].numbers = nullptr;
    table.set(records);
    chunks = LoadHostarray(table.reference(), 4, 4, 0);
    EXPECT_EQ(rowsOf(chunks, 4), (std::vector{4, -1, 3, 2}));
    DeleteHostarray(chunks, 4);
}

TEST(LoadHostarray, LeavesANullForAColumnThatIsNotThere)
{
    caller_table table;
    SAFEARRAY* empty = table.memory.array(numbers{});
    empty->pvData = nullptr;
    table.set(
        {{nullptr, table.memory.texts({u"a"})}, {empty, nullptr}, {table.memory.array(numbers(2)), nullptr}});
    matrix<double>** chunks = LoadHostarray(table.reference(), 3, 2, 1);
    EXPECT_EQ(rowsOf(chunks, 3), (std::vector{-1, -1, 2}));
    DeleteHostarray(chunks, 3);
}

TEST(LoadHostarray, LeavesOnlyNullsForATableThatIsNotThere)
{
    caller_table table;
    table.array = nullptr;
    matrix<double>** chunks = LoadHostarray(table.reference(), 2, 2, 1);
    EXPECT_EQ(rowsOf(chunks, 2), (std::vector{-1, -1}));
    DeleteHostarray(chunks, 2);

    table.set({{table.memory.array(numbers(2)), nullptr}});
    table.array->pvData = nullptr;
    chunks = LoadHostarray(table.reference(), 1, 2, 1);
    EXPECT_EQ(rowsOf(chunks, 1), (std::vector{-1}));
    DeleteHostarray(chunks, 1);

    matrix<text>** textChunks = LoadHostarrayStr(table.reference(), 1, 2, 1);
    EXPECT_EQ(rowsOf(textChunks, 1), (std::vector{-1}));
    SaveHostarray(textChunks, 1, 0, table.reference());
    DeleteHostarrayStr(textChunks, 1);
}

TEST(LoadHostarray, IsUndoneWithoutARest)
{
    caller_table table;
    table.set({{table.memory.array(numbers{1.0, 2.0}), table.memory.texts({u"a", u"b"})},
               {table.memory.array(numbers{3.0, 4.0}), table.memory.texts({u"c", u"d"})}});
    const std::int64_t before = allocationsAlive();
    DeleteHostarray(LoadHostarray(table.reference(), 2, 2, 1), 2);
    EXPECT_EQ(allocationsAlive(), before);
    DeleteHostarrayStr(LoadHostarrayStr(table.reference(), 2, 2, 1), 2);
    EXPECT_EQ(allocationsAlive(), before);
    DeleteHostarray(LoadHostarray(table.reference(), 0, 2, 1), 0);
    EXPECT_EQ(allocationsAlive(), before);
}

TEST(LoadHostarray, GivesAnArrayOfNoPointersForNoRecords)
{
    caller_table table;
    matrix<double>** chunks = LoadHostarray(table.reference(), 0, 3, 1);
    ASSERT_NE(chunks, nullptr);
    DeleteHostarray(chunks, 0);
}

TEST(LoadHostarray, TakesACountBelowNoneForNone)
{
    caller_table table;
    table.set({{table.memory.array(numbers{1.0, 2.0}), table.memory.texts({u"a", u"b"})}});
    const std::int64_t before = allocationsAlive();
    for (const int n : {-1, -2147483647 - 1}) {
        DeleteHostarray(LoadHostarray(table.reference(), n, 2, 1), n);
        matrix<text>** texts = LoadHostarrayStr(table.reference(), n, 2, 1);
        SaveHostarray(texts, n, 0, table.reference());
        DeleteHostarrayStr(texts, n);
    }
    EXPECT_EQ(allocationsAlive(), before);
}

TEST(LoadHostarray, PassesAFailedAllocationOn)
{
    caller_table table;
    table.set({{table.memory.array(numbers(2)), nullptr}, {table.memory.array(numbers(2)), nullptr}});
    const leaks_allowed untilHere;
    for (int allowed = 0; allowed < 3; ++allowed) {
        const allocation_limit limit(allowed);
        EXPECT_THROW(LoadHostarray(table.reference(), 2, 2, 1), std::bad_alloc) << allowed;
    }
}

TEST(LoadHostarrayStr, CopiesTheFirstTextsOfEachColumn)
{
    caller_table table;
    SAFEARRAY* first = table.memory.texts({u"a", u"", u"c", u"not read"});
    SysFreeString(static_cast<BSTR*>(first->pvData)[1]);
    static_cast<BSTR*>(first->pvData)[1] = nullptr;
    table.set({{nullptr, first}, {table.memory.array(numbers(3)), nullptr}});
    matrix<text>** chunks = LoadHostarrayStr(table.reference(), 2, 3, 7);
    EXPECT_EQ(rowsOf(chunks, 2), (std::vector{3, -1}));
    EXPECT_EQ(chunks[0]->nbcols, 1);
    EXPECT_EQ(texts(chunks[0]->data, chunks[0]->data + 3), (texts{u"a", u"", u"c"}));
    EXPECT_TRUE(chunks[0]->bOwner);
    EXPECT_EQ(chunks[0]->safeArray, nullptr) << "or the destructor would write back";
    DeleteHostarrayStr(chunks, 2);
}

TEST(LoadHostarrayStr, LowersTheRowsOfATriangle)
{
    caller_table table;
    table.set({{nullptr, table.memory.texts({u"a", u"b"})},
               {table.memory.array(numbers(2)), nullptr},
               {nullptr, table.memory.texts({u"c", u"d"})}});
    matrix<text>** chunks = LoadHostarrayStr(table.reference(), 3, 2, 0);
    EXPECT_EQ(rowsOf(chunks, 3), (std::vector{2, -1, 1}));
    EXPECT_EQ((*chunks[2])[0], u"c");
    DeleteHostarrayStr(chunks, 3);
}

TEST(SaveHostarray, ReplacesOnlyTheTextsThatChanged)
{
    caller_table table;
    SAFEARRAY* first = table.memory.texts({u"same", u"old", u""});
    SysFreeString(static_cast<BSTR*>(first->pvData)[2]);
    static_cast<BSTR*>(first->pvData)[2] = nullptr;
    SAFEARRAY* third = table.memory.texts({u"x", u"y", u"z"});
    table.set({{nullptr, first}, {table.memory.array(numbers(3)), nullptr}, {nullptr, third}});
    const auto placesBefore = numbersIn<BSTR>(first);

    matrix<text>** chunks = LoadHostarrayStr(table.reference(), 3, 3, 1);
    (*chunks[0])[1] = u"new";
    (*chunks[2])[2] = text(u"cut\0off", 7);
    const automation_watch watch;
    SaveHostarray(chunks, 3, 99, table.reference());
    EXPECT_TRUE(watch.texts(2, 2));
    DeleteHostarrayStr(chunks, 3);

    const auto placesAfter = numbersIn<BSTR>(first);
    EXPECT_EQ(placesAfter[0], placesBefore[0]);
    EXPECT_EQ(placesAfter[2], nullptr);
    EXPECT_EQ(textsIn(first), (texts{u"same", u"new", u""}));
    EXPECT_EQ(textsIn(third), (texts{u"x", u"y", u"cut"}));
    EXPECT_TRUE(table.memory.guardsIntact());
}

TEST(SaveHostarray, SkipsARecordWithoutTexts)
{
    caller_table table;
    SAFEARRAY* kept = table.memory.texts({u"kept"});
    table.set({{nullptr, kept}});
    matrix<text>** chunks = LoadHostarrayStr(table.reference(), 1, 1, 1);
    (*chunks[0])[0] = u"lost";
    SAFEARRAY* withoutBlock = table.memory.array(numbers{});
    withoutBlock->pvData = nullptr;
    table.set({{nullptr, nullptr}});
    SaveHostarray(chunks, 1, 0, table.reference());
    table.set({{nullptr, withoutBlock}});
    SaveHostarray(chunks, 1, 0, table.reference());
    EXPECT_EQ(textsIn(kept), texts{u"kept"});
    DeleteHostarrayStr(chunks, 1);
}

namespace
{

/** Counts how many of its kind are alive. */
struct counted_chunk : matrix<double> {
    int* alive;

    explicit counted_chunk(int& count) : matrix<double>(2, 1, 0.0), alive(&count) { ++*alive; }
    ~counted_chunk() override { --*alive; }
};

} // namespace

TEST(DeleteHostarray, DestroysChunksByTheirVirtualDestructor)
{
    int alive = 0;
    auto** chunks = new matrix<double>* [3] { new counted_chunk(alive), nullptr, new counted_chunk(alive) };
    EXPECT_EQ(alive, 2);
    DeleteHostarray(chunks, 3);
    EXPECT_EQ(alive, 0);
}

TEST(DeleteCascade, LeavesTheArrayOfPointers)
{
    int alive = 0;
    std::array<matrix<double>*, 3> chunks{new counted_chunk(alive), nullptr, new counted_chunk(alive)};
    deletecascade(chunks.data(), 2);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(chunks[1], nullptr);
    deletecascade(chunks.data() + 2, 1);
    EXPECT_EQ(alive, 0);
}

TEST(DeleteCascade, TakesChunksOfEveryElementType)
{
    std::array<matrix<int>*, 1> integers{new matrix<int>(1, 1)};
    deletecascade(integers.data(), 1);
    std::array<matrix<short int>*, 1> flags{new matrix<short int>(1, 1)};
    deletecascade(flags.data(), 1);
    std::array<matrix<text>*, 2> labels{nullptr, new matrix<text>(1, 1, u"a")};
    deletecascade(labels.data(), 2);
}
