// Counts of 0 and below in the routines on chunked, record, sparse, sliced and triangular tables: nothing is
// read, nothing is written, and no error is raised. An array of chunks that has no entries may be null.

#include "containers/host_chunks.h"
#include "containers/packed_symmetric.h"
#include "containers/record_copies.h"
#include "containers/stacked_slices.h"
#include "random/sampling.h"
#include "support/bits.h"
#include "support/sparse_tables.h"
#include "tables/blocks.h"
#include "tables/cell_maps.h"
#include "tables/columns.h"
#include "tables/duplicate.h"
#include "tables/extract.h"
#include "tables/merge.h"
#include "tables/proximity.h"
#include "tables/symmetric.h"
#include "tables/transpose.h"
#include "tables/triangular.h"

#include <array>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

using table = matrix<double>;
using table_object = matrix3D<table>;

constexpr std::array<std::pair<int, int>, 8> countsOfNothing{
    {{0, 0}, {0, 2}, {2, 0}, {-1, 2}, {2, -1}, {-1, -1}, {-3, -2}, {-2147483647 - 1, -2147483647 - 1}}};

/** One table of each form, 2 by 2, every cell and every spare slot of which is known. */
class Untouched : public ::testing::Test
{
protected:
    Untouched() : object(2, 2, 2, 7.0), record(2, 2), dense(2, 2, 7.0), sparse(2, 2, 0.0, false)
    {
        object.chunks[0].oobValue = 8.0;
        for (int j = 0; j < 2; ++j) {
            record.Vectors[static_cast<std::size_t>(j)].Vect = table(2, 1, 7.0);
            columns[static_cast<std::size_t>(j)] = table(2, 1, 7.0);
        }
        sparse.setElement(0, 1, 7.0);
    }

    void expectUntouched() const
    {
        const auto isAsItWas = [](const table& m, int rows, int cols, double spare) {
            EXPECT_EQ(m.nbrows, rows);
            EXPECT_EQ(m.nbcols, cols);
            for (std::uint64_t k = 0; k < m.nbElem; ++k) {
                EXPECT_SAME_BITS(m.data[k], 7.0);
            }
            EXPECT_SAME_BITS(m.oobValue, spare);
        };
        isAsItWas(dense, 2, 2, -1.0);
        isAsItWas(object.chunks[0], 2, 1, 8.0);
        isAsItWas(object.chunks[1], 2, 1, -1.0);
        for (std::size_t j = 0; j < 2; ++j) {
            isAsItWas(columns[j], 2, 1, -1.0);
            isAsItWas(record.Vectors[j].Vect, 2, 1, -1.0);
        }
        matrixSparse expected(2, 2, 0.0, false);
        expected.setElement(0, 1, 7.0);
        EXPECT_TRUE(sameStorage(sparse, expected));
    }

    /** The two chunks, or no array at all where the number of chunks is below 1. */
    table** chunks(int count) { return count < 1 ? nullptr : pointers.data(); }

    table_object object;
    cST_MVect<double> record;
    table dense;
    matrixSparse sparse;
    std::array<table, 2> columns;
    std::array<table*, 2> pointers{columns.data(), columns.data() + 1};
};

} // namespace

TEST_F(Untouched, ByBlocks)
{
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        M_CopyBlockSPV(&object, 1, rows, 1, cols, &object);
        M_CopyBlockSPV(chunks(cols), 1, rows, 1, cols, chunks(cols));
        M_CopyBlockSPV2(chunks(cols), 1, rows, 1, cols, chunks(cols));
        M_CopyBlockSPV_T(&object, 1, rows, 1, cols, &object);
        M_CopyBlockSPV2_T(chunks(cols), 1, rows, 1, cols, chunks(cols));
        M_CopyPasteBlockSPV(chunks(cols), 1, rows, 1, cols, chunks(cols), 1, 1);
        M_PasteBlock(&dense, rows, cols, &sparse, 1, 1);
        expectUntouched();
    }
}

TEST_F(Untouched, ByDuplicating)
{
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        // The counts of what is read, and then of what is written.
        M_Duplicate(record, rows, cols, record, 2, 2, 1, 1);
        M_Duplicate(record, 2, 2, record, rows, cols, 1, 1);
        M_DuplicateSPV(chunks(cols), rows, cols, &dense, 2, 2, 1, 1);
        M_DuplicateSPV(pointers.data(), 2, 2, &dense, rows, cols, 1, 1);
        M_DuplicateSPV2(&dense, rows, cols, pointers.data(), 2, 2, 1, 1);
        M_DuplicateSPV2(&dense, 2, 2, chunks(cols), rows, cols, 1, 1);
        M_DuplicateSPV3(chunks(cols), rows, cols, pointers.data(), 2, 2, 1, 1);
        M_DuplicateSPV3(pointers.data(), 2, 2, chunks(cols), rows, cols, 1, 1);
        M_DuplicateSPV2_T(&dense, rows, cols, pointers.data(), 2, 2, 1, 1);
        M_DuplicateSPV2_T(&dense, 2, 2, chunks(cols), rows, cols, 1, 1);
        M_DuplicateSPV2_T(&dense, rows, cols, &object, 2, 2, 1, 1);
        M_DuplicateSPV2_T(&dense, 2, 2, &object, rows, cols, 1, 1);
        M_DuplicateSPV3_T(chunks(cols), rows, cols, pointers.data(), 2, 2, 1, 1);
        M_DuplicateSPV3_T(pointers.data(), 2, 2, chunks(cols), rows, cols, 1, 1);
        CopyDblToMV(dense, rows, cols, record);
        expectUntouched();
    }
}

TEST_F(Untouched, ByMergingAndExtracting)
{
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        HMergeTables(pointers.data(), 2, 2, &dense, rows, cols);
        HMergeTables(pointers.data(), 2, 2, chunks(cols), rows, cols);
        VMergeTablesSPV(chunks(cols), rows, cols, &dense, rows, cols, &dense);
        M_ExtractMatToMatSPV(chunks(cols), cols, 1, rows, &dense);
        expectUntouched();
    }
}

TEST_F(Untouched, BySymmetryAndTriangles)
{
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        table* whole = &dense;
        M_Symmetrize(whole, rows, cols);
        M_SymmetrizeSPV(chunks(std::min(rows, cols)), rows, cols);
        EXPECT_EQ(M_CheckIfSimOrDissim(&dense, rows, cols), 0);
        EXPECT_EQ(M_CheckIfSimOrDissimSPV(nullptr, rows, cols), 0);
        EXPECT_EQ(M_IsInIntervalSPV(chunks(cols), rows, cols, 0.0, 1.0, 0, 0), -1);
    }
    for (const int n : {0, -1, -2147483647 - 1}) {
        table* whole = &dense;
        EXPECT_EQ(M_IsSymmetric(whole, n), -1);
        EXPECT_EQ(M_IsSymmetricSPV(nullptr, n), -1);
        EXPECT_EQ(M_IsDiagConstant(whole, n), -1);
        EXPECT_EQ(M_IsTriangular(dense, n, -1), 2);
        EXPECT_EQ(M_IsTriangularSPV(nullptr, n, -1), 2);
        EXPECT_EQ(korvel::packedLength(n), 0);
        M_CopySymMatToVector(&dense, n, &dense);
        M_CopyVectorToSymMat(&dense, n, &dense);
        M_TransformSimToDissim(whole, n);

        // Tables without a block.
        table nothing;
        table* none = &nothing;
        EXPECT_EQ(M_IsSymmetric(none, n), -1);
        EXPECT_EQ(M_IsTriangular(nothing, n, -1), 2);
        M_Symmetrize(none, n, n);
        M_CopySymMatToVector(none, n, none);
        M_CopyVectorToSymMat(none, n, none);
        M_TransformSimToDissim(none, n);
    }
    expectUntouched();
}

TEST_F(Untouched, ByTransposing)
{
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        std::array<table, 2> results{table(2, 1, 7.0), table(2, 1, 7.0)};
        std::array<table*, 2> targets{results.data(), results.data() + 1};
        M_TransposeSPV(chunks(cols), rows, cols, rows < 1 ? nullptr : targets.data());
        M_Transpose(&dense, rows, cols, &object);
        expectUntouched();
        for (const table& result : results) {
            EXPECT_EQ(result.data[0], 7.0);
            EXPECT_EQ(result.oobValue, -1.0);
        }
    }
}

TEST_F(Untouched, BySampling)
{
    std::array<matrix<text>, 2> cells{matrix<text>(2, 1, text(u"a")), matrix<text>(2, 1, text(u"a"))};
    std::array<matrix<text>*, 2> texts{cells.data(), cells.data() + 1};
    for (const auto& [rows, cols] : countsOfNothing) {
        SCOPED_TRACE(::testing::Message() << rows << " by " << cols);
        const auto from = cols < 1 ? nullptr : texts.data();
        matrix<double> counts(2, 1, 0.0);
        matrix<double> selected(2, 1, 7.0);
        M_SampleUserDefinedSPV(from, rows, cols, from, &counts, &selected);
        EXPECT_EQ(selected.data[0], 7.0);
        EXPECT_EQ(selected.oobValue, -1.0);
    }
    EXPECT_EQ(cells[0].data[1], u"a");
    EXPECT_EQ(cells[1].oobValue, u"");
}

TEST(SlicesOfNothing, AreNeitherMadeNorReached)
{
    for (const int n : {0, -1, -2147483647 - 1}) {
        iniSuperMat(nullptr, n, 2, 2);
        loadSuperMat(static_cast<table**>(nullptr), static_cast<double*>(nullptr), n, 2, 2);
        loadSuperMat(static_cast<matrix<text>**>(nullptr), nullptr, n, 2, 2);
        loadSuperMatLng(nullptr, nullptr, n, 2, 2);
        unloadSuperMat(static_cast<table**>(nullptr), static_cast<double*>(nullptr), n, 2, 2);
        unloadSuperMat(static_cast<matrix<text>**>(nullptr), nullptr, n, 2, 2);
        unloadSuperMatLng(nullptr, nullptr, n, 2, 2);
        SuperMatSetToValue(nullptr, n, 2, 2, 5.0);
        deletecascade(static_cast<table**>(nullptr), n);
        table out(1, 1, 7.0);
        CopyCol(nullptr, n, 0, 0, &out);
        EXPECT_EQ(out.data[0], 7.0);
    }
}

TEST(SlicesOfNothing, AreNotReadOrWrittenWithoutRowsOrColumns)
{
    table slice(2, 2, 7.0);
    table* slices[] = {&slice};
    matrix<text> words(2, 2, text(u"a"));
    matrix<text>* texts[] = {&words};
    for (const auto& [rows, cols] : countsOfNothing) {
        unloadSuperMat(slices, static_cast<double*>(nullptr), 1, rows, cols);
        unloadSuperMat(texts, nullptr, 1, rows, cols);
        unloadSuperMatLng(slices, nullptr, 1, rows, cols);
        SuperMatSetToValue(slices, 1, rows, cols, 5.0);
        EXPECT_EQ(std::vector<double>(slice.data, slice.data + 4), std::vector<double>(4, 7.0));
        EXPECT_EQ(slice.oobValue, -1.0);
    }
}
