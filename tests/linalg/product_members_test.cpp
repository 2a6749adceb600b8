#include "linalg/product_members.h"

#include "linalg/products.h"
#include "linalg/products_missing.h"
#include "linalg/products_records.h"
#include "linalg/products_symmetric.h"
#include "linalg/products_triple.h"
#include "linalg/products_vector.h"
#include "reference/products.h"

using namespace korvel::test;

namespace
{

using shapes = std::vector<shape>;
using table = matrix<double>;

/** Chunks of a table, one a column, as a routine takes them. */
class chunked
{
public:
    explicit chunked(const table& from)
    {
        for (int j = 0; j < from.nbcols; ++j) {
            columns_.emplace_back(from.nbrows, 1, from.data + std::int64_t{from.nbrows} * j, false);
        }
        for (table& column : columns_) {
            places_.push_back(&column);
        }
    }

    table** get() { return places_.data(); }

    void copyTo(table& to) const
    {
        for (int j = 0; j < to.nbcols; ++j) {
            const table& column = columns_[static_cast<std::size_t>(j)];
            std::copy_n(column.data, column.nbElem, to.data + std::int64_t{to.nbrows} * j);
        }
        to.oobValue = columns_.back().oobValue;
    }

private:
    std::vector<table> columns_;
    std::vector<table*> places_;
};

template <class M>
matrix3D<M> chunks3D(const table& from)
{
    matrix3D<M> made(from.nbcols, from.nbrows, from.nbcols, 0.0);
    for (int j = 0; j < from.nbcols; ++j) {
        for (int i = 0; i < from.nbrows; ++i) {
            made.chunks[static_cast<std::size_t>(j)].data[i] = from.data[i + std::int64_t{from.nbrows} * j];
        }
    }
    return made;
}

void copyChunks(const matrix3D<table>& from, table& to)
{
    for (int j = 0; j < to.nbcols; ++j) {
        const table& column = from.chunks[static_cast<std::size_t>(j)];
        std::copy_n(column.data, column.nbElem, to.data + std::int64_t{to.nbrows} * j);
    }
    to.oobValue = from.chunks.back().oobValue;
}

/** A labelled table of its own. */
cST_MVect<double> recordOf(const table& from)
{
    cST_MVect<double> made(from.nbrows, from.nbcols);
    for (int j = 0; j < from.nbcols; ++j) {
        std::copy_n(from.data + std::int64_t{from.nbrows} * j, from.nbrows,
                    made.Vectors[static_cast<std::size_t>(j)].Vect.data);
    }
    return made;
}

void copyRecord(const cST_MVect<double>& from, shape counts, table& to)
{
    EXPECT_EQ(from.nbrowsmax, counts.rows);
    EXPECT_EQ(from.nbcols, counts.cols);
    for (int j = 0; j < to.nbcols; ++j) {
        const table& column = from.Vectors[static_cast<std::size_t>(j)].Vect;
        std::copy_n(column.data, column.nbElem, to.data + std::int64_t{to.nbrows} * j);
    }
    to.oobValue = from.Vectors.back().Vect.oobValue;
}

const auto shapesAB = [](counts c) { return shapes{{c.n, c.p}, {c.p, c.q}}; };
const auto shapeNQ = [](counts c) { return shape{c.n, c.q}; };
const auto shapePP = [](counts c) { return shape{c.p, c.p}; };
const auto shapeNN = [](counts c) { return shape{c.n, c.n}; };
const auto shapeA = [](counts c) { return shapes{{c.n, c.p}}; };

std::vector<product_member> members()
{
    std::vector<product_member> all;
    const auto plain = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], c.q, C); };
    };
    all.push_back(
        {"AB", shapesAB, shapeNQ,
         [](operands& t, counts c, table& C) { EXPECT_EQ(M_ProductAB(t[0], c.n, c.p, t[1], c.q, C), 0); },
         plain(plainAB), true});
    all.push_back({"ABSPV", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       chunked A(t[0]);
                       table* result = &C;
                       EXPECT_EQ(M_ProductABSPV(A.get(), c.n, c.p, &t[1], c.q, result), 0);
                   },
                   plain([](auto&&... x) { plainAB(x...); }), true});
    all.push_back({"ABSPV2", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       chunked A(t[0]);
                       chunked B(t[1]);
                       chunked result(C);
                       EXPECT_EQ(M_ProductABSPV2(A.get(), c.n, c.p, B.get(), c.q, result.get()), 0);
                       result.copyTo(C);
                   },
                   // Not cleared; with no column to sum into, the one that an owned table has stays as it is.
                   [](operands& t, counts c, table& C) {
                       if (c.q > 0) {
                           plainAB(t[0], c.n, c.p, t[1], c.q, C);
                       }
                   },
                   true});
    all.push_back({"ABMissing", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       EXPECT_EQ(M_ProductABMissing(&t[0], c.n, c.p, &t[1], c.q, &C), 0);
                   },
                   plain(plainABMissing)});
    all.push_back({"ABMissingSPV", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto A = chunks3D<table>(t[0]);
                       table* result = &C;
                       EXPECT_EQ(M_ProductABMissingSPV(&A, c.n, c.p, &t[1], c.q, result), 0);
                   },
                   plain(plainABMissing)});
    const auto plainUncleared = [](operands& t, counts c, table& C) {
        if (c.q > 0 && c.n > 0) {
            plainABMissing(t[0], c.n, c.p, t[1], c.q, C);
        }
    };
    all.push_back({"ABMissingSPV2", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto result = chunks3D<table>(C);
                       EXPECT_EQ(M_ProductABMissingSPV2(&t[0], c.n, c.p, &t[1], c.q, &result), 0);
                       copyChunks(result, C);
                   },
                   plainUncleared});
    all.push_back({"ABMissingSPV3", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto A = chunks3D<statistics_matrix<double>>(t[0]);
                       auto result = chunks3D<table>(C);
                       EXPECT_EQ(M_ProductABMissingSPV3(&A, c.n, c.p, &t[1], c.q, &result), 0);
                       copyChunks(result, C);
                   },
                   plainUncleared});
    all.push_back({"TrAB",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, c.q}};
                   },
                   [](counts c) {
                       return shape{c.p, c.q};
                   },
                   [](operands& t, counts c, table& C) {
                       table* result = &C;
                       M_ProductTrAB(&t[0], c.n, c.p, &t[1], c.q, result);
                   },
                   plain(plainTrAB)});
    const auto shapesATrB = [](counts c) { return shapes{{c.n, c.p}, {c.q, c.p}}; };
    all.push_back({"ATrB", shapesATrB, shapeNQ,
                   [](operands& t, counts c, table& C) { M_ProductATrB(&t[0], c.n, c.p, &t[1], c.q, &C); },
                   plain(plainATrB)});
    all.push_back({"ATrBSPV", shapesATrB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto result = chunks3D<table>(C);
                       M_ProductATrBSPV(&t[0], c.n, c.p, &t[1], c.q, &result);
                       copyChunks(result, C);
                   },
                   [](operands& t, counts c, table& C) {
                       if (c.q > 0 && c.n > 0) {
                           plainATrB(t[0], c.n, c.p, t[1], c.q, C);
                       }
                   }});
    all.push_back({"ABST", shapesAB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto A = recordOf(t[0]);
                       auto B = recordOf(t[1]);
                       auto result = recordOf(C);
                       EXPECT_EQ(M_ProductAB_ST(A, c.n, c.p, B, c.q, result), 0);
                       copyRecord(result, {c.n, c.q}, C);
                   },
                   [](operands& t, counts c, table& C) {
                       plainSums(c.n, c.q, c.p, storeIn(C), [&](int i, int j, int k) {
                           return t[0].getElement(i, k) * t[1].getElement(k, j);
                       });
                   }});
    all.push_back({"TrABST",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, c.q}};
                   },
                   [](counts c) {
                       return shape{c.p, c.q};
                   },
                   [](operands& t, counts c, table& C) {
                       auto A = recordOf(t[0]);
                       auto B = recordOf(t[1]);
                       auto result = recordOf(C);
                       M_ProductTrAB_ST(A, c.n, c.p, B, c.q, result);
                       copyRecord(result, {c.p, c.q}, C);
                   },
                   [](operands& t, counts c, table& C) {
                       plainSums(c.p, c.q, c.n, storeIn(C), [&](int i, int j, int r) {
                           return t[0].getElement(r, i) * t[1].getElement(r, j);
                       });
                   }});
    all.push_back({"ATrBST", shapesATrB, shapeNQ,
                   [](operands& t, counts c, table& C) {
                       auto A = recordOf(t[0]);
                       auto B = recordOf(t[1]);
                       auto result = recordOf(C);
                       M_ProductATrB_ST(A, c.n, c.p, B, c.q, result);
                       copyRecord(result, {c.n, c.q}, C);
                   },
                   [](operands& t, counts c, table& C) {
                       plainSums(c.n, c.q, c.p, storeIn(C), [&](int i, int j, int k) {
                           return t[0].getElement(i, k) * t[1].getElement(j, k);
                       });
                   }});
    for (const int flag : {0, 1, -1}) {
        all.push_back(
            {"ABTrAST" + std::string(flag < 0    ? "Symmetric"
                                     : flag == 0 ? ""
                                                 : "OtherFlag"),
             [](counts c) {
                 return shapes{{c.n, c.p}, {c.p, c.p}};
             },
             shapeNN,
             [=](operands& t, counts c, table& C) {
                 auto A = recordOf(t[0]);
                 auto B = recordOf(t[1]);
                 auto result = recordOf(C);
                 M_ProductABTrA_ST(A, c.n, c.p, B, static_cast<short int>(flag), result);
                 copyRecord(result, {c.n, c.n}, C);
             },
             [=](operands& t, counts c, table& C) { plainABTrA(t[0], c.n, c.p, t[1], flag == -1, C); }, false,
             false});
    }
    const auto plainBetween = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], t[2], c.q, C); };
    };
    all.push_back(
        {"ADiagVB",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}, {c.p, c.q}};
         },
         shapeNQ,
         [](operands& t, counts c, table& C) { M_ProductADiagVB(&t[0], c.n, c.p, &t[1], &t[2], c.q, &C); },
         plainBetween(plainADiagVB)});
    all.push_back(
        {"ADiagVTrB",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}, {c.q, c.p}};
         },
         shapeNQ,
         [](operands& t, counts c, table& C) { M_ProductADiagVTrB(&t[0], c.n, c.p, &t[1], &t[2], c.q, &C); },
         plainBetween(plainADiagVTrB)});
    const auto plainSelf = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, C); };
    };
    all.push_back({"TrAA", shapeA, shapePP,
                   [](operands& t, counts c, table& C) { M_ProductTrAA(&t[0], c.n, c.p, &C); },
                   plainSelf(plainTrAA), false, false});
    all.push_back({"ATrA", shapeA, shapeNN,
                   [](operands& t, counts c, table& C) { M_ProductATrA(&t[0], c.n, c.p, &C); },
                   plainSelf(plainATrA), false, false});
    const auto plainWith = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], C); };
    };
    all.push_back({"ADTrA",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.p, c.p}};
                   },
                   shapeNN,
                   [](operands& t, counts c, table& C) { M_ProductADTrA(&t[0], c.n, c.p, &t[1], &C); },
                   plainWith(plainADTrA), false, false});
    all.push_back({"TrADA",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, c.n}};
                   },
                   shapePP,
                   [](operands& t, counts c, table& C) { M_ProductTrADA(&t[0], c.n, c.p, &t[1], &C); },
                   plainWith(plainTrADA), false, false});
    all.push_back({"TrADiagVA",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, 1}};
                   },
                   shapePP,
                   [](operands& t, counts c, table& C) { M_ProductTrADiagVA(&t[0], c.n, c.p, &t[1], &C); },
                   plainWith(plainTrADiagVA), false, false});
    all.push_back({"ADiagVTrA",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.p, 1}};
                   },
                   shapeNN,
                   [](operands& t, counts c, table& C) { M_ProductADiagVTrA(&t[0], c.n, c.p, &t[1], &C); },
                   plainWith(plainADiagVTrA), false, false});
    for (const bool symmetric : {false, true}) {
        const std::string suffix = symmetric ? "Symmetric" : "";
        all.push_back(
            {"ABTrA" + suffix,
             [](counts c) {
                 return shapes{{c.n, c.p}, {c.p, c.p}};
             },
             shapeNN,
             [=](operands& t, counts c, table& C) { M_ProductABTrA(t[0], c.n, c.p, t[1], symmetric, C); },
             [=](operands& t, counts c, table& C) { plainABTrA(t[0], c.n, c.p, t[1], symmetric, C); }, true,
             false});
        all.push_back(
            {"TrABA" + suffix,
             [](counts c) {
                 return shapes{{c.n, c.p}, {c.n, c.n}};
             },
             shapePP,
             [=](operands& t, counts c, table& C) { M_ProductTrABA(t[0], c.n, c.p, t[1], symmetric, C); },
             [=](operands& t, counts c, table& C) { plainTrABA(t[0], c.n, c.p, t[1], symmetric, C); }, true,
             false});
    }
    const auto plainThree = [](auto twin) {
        return [twin](operands& t, counts c, table& D) { twin(t[0], c.n, c.p, t[1], c.q, t[2], c.r, D); };
    };
    all.push_back(
        {"ABC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, c.q}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.n, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductABC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainABC), true});
    all.push_back(
        {"TrABC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.n, c.q}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.p, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductTrABC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainTrABC)});
    all.push_back(
        {"ATrBC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.q, c.p}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.n, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductATrBC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainATrBC)});
    all.push_back(
        {"TrABV",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.n, c.q}, {c.q, 1}};
         },
         [](counts c) {
             return shape{c.p, 1};
         },
         [](operands& t, counts c, table& y) { M_ProductTrABV(&t[0], c.n, c.p, &t[1], c.q, &t[2], &y); },
         [](operands& t, counts c, table& y) { plainTrABV(t[0], c.n, c.p, t[1], c.q, t[2], y); }, false, true,
         true});
    all.push_back(
        {"BV",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}};
         },
         [](counts c) {
             return shape{c.n, 1};
         },
         [](operands& t, counts c, table& y) { EXPECT_EQ(M_ProductBV(&t[0], c.n, c.p, &t[1], &y), 0); },
         [](operands& t, counts c, table& y) {
             plainVector(c.n, c.p, y, [&](int i, int k) { return t[0].getElement(i, k) * t[1][k]; });
         },
         false, false, true});
    all.push_back({"TrBV",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, 1}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) { M_ProductTrBV(&t[0], c.n, c.p, &t[1], &y); },
                   [](operands& t, counts c, table& y) {
                       plainVector(c.p, c.n, y,
                                   [&](int j, int i) { return t[0].getElement(i, j) * t[1][i]; });
                   },
                   false, false, true});
    all.push_back({"VTrB",
                   [](counts c) {
                       return shapes{{c.n, 1}, {c.p, c.n}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) { M_ProductVTrB(&t[0], c.n, &t[1], c.p, &y); },
                   [](operands& t, counts c, table& y) {
                       plainVector(c.p, c.n, y,
                                   [&](int j, int k) { return t[0][k] * t[1].getElement(j, k); });
                   },
                   false, false, true});
    all.push_back({"VB",
                   [](counts c) {
                       return shapes{{c.n, 1}, {c.n, c.p}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) {
                       table* result = &y;
                       EXPECT_EQ(M_ProductVB(&t[0], c.n, &t[1], c.p, result), 0);
                   },
                   [](operands& t, counts c, table& y) { plainVB(t[0], c.n, t[1], c.p, y); }, false, false,
                   true});
    return all;
}

/** Tables smaller than the counts say, each in its own way. */
operands cutDown(const operands& tables, random_cells& cells)
{
    operands made;
    for (const table& whole : tables) {
        made.push_back(
            tableOfRandom(cells, {cells.integer(0, whole.nbrows), cells.integer(1, whole.nbcols)}));
    }
    return made;
}

/** Those that take neither a list of columns, which must be there, nor a record, whose columns have their own
 * lengths. */
std::vector<product_member> denseMembers()
{
    std::vector<product_member> dense = members();
    std::erase_if(dense, [](const product_member& member) {
        return member.name.find("SPV") != std::string::npos || member.name.find("ST") != std::string::npos;
    });
    return dense;
}

class DenseProductMember : public ProductMember
{
};

} // namespace

TEST_P(ProductMember, HasTheBitsOfThePlainLoop)
{
    forProductSizes(GetParam(), [](counts sizes) {
        random_cells cells(static_cast<std::uint64_t>(sizes.n * 1000 + sizes.p * 100 + sizes.q),
                           oddCellsOf(sizes));
        operands tables = randomOperands(GetParam(), sizes, cells);
        expectTwins(GetParam(), sizes, tables, GetParam().written(sizes));
    });
}

TEST_P(ProductMember, HasThemAcrossPanels)
{
    for (const counts sizes : {counts{7, 600, 11, 5}, counts{300, 5, 260, 270}, counts{130, 257, 3, 258},
                               counts{2, 3, 1100, 4}, counts{513, 33, 40, 1003}}) {
        random_cells cells(3, odd_cells::missing_and_zeros);
        const counts used{sizes.n, sizes.p, GetParam().usesQ ? sizes.q : 0, sizes.r};
        operands tables = randomOperands(GetParam(), used, cells);
        expectTwins(GetParam(), used, tables, GetParam().written(used));
    }
}

TEST_P(ProductMember, HasThemInEveryInstructionSetAndTeam)
{
    using korvel::kernels::instruction_set;
    for (const auto set : {instruction_set::baseline, instruction_set::avx2, instruction_set::avx512}) {
        if (!korvel::kernels::hasSet(set)) {
            continue;
        }
        const korvel::kernels::forced_set forced(set);
        for (const int threads : {1, 2, 3, 7}) {
            const team_of team(threads);
            for (const counts sizes :
                 {counts{1, 1, 1, 1}, counts{2, 5, 3, 9}, counts{21, 34, 26, 19}, counts{67, 130, 70, 33},
                  counts{64, 64, 64, 64}, counts{9, 300, 17, 8}, counts{40, 40, 40, 40}}) {
                random_cells cells(static_cast<std::uint64_t>(sizes.p), odd_cells::all);
                const counts used{sizes.n, sizes.p, GetParam().usesQ ? sizes.q : 0, sizes.r};
                operands tables = randomOperands(GetParam(), used, cells);
                expectTwins(GetParam(), used, tables, GetParam().written(used));
            }
        }
    }
}

TEST_P(DenseProductMember, ReachesTheSpareSlotOutsideOfTables)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, odd_cells::missing);
        const counts sizes{cells.integer(1, 9), cells.integer(1, 9), cells.integer(1, 9),
                           cells.integer(1, 9)};
        operands tables = cutDown(randomOperands(GetParam(), sizes, cells), cells);
        expectTwins(GetParam(), sizes, tables, GetParam().written(sizes));
    }
}

TEST_P(DenseProductMember, TakesTablesThatAreLarger)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        random_cells cells(seed, odd_cells::missing_and_zeros);
        const counts sizes{cells.integer(0, 12), cells.integer(0, 12), cells.integer(0, 12),
                           cells.integer(0, 12)};
        const counts larger{sizes.n + 2, sizes.p + 1, sizes.q + 3, sizes.r + 2};
        operands tables = randomOperands(GetParam(), larger, cells);
        shape result = GetParam().written(sizes);
        result.rows += cells.integer(0, 2);
        result.cols += GetParam().byIndex ? 0 : cells.integer(0, 2);
        expectTwins(GetParam(), sizes, tables, result);
    }
}

TEST_P(DenseProductMember, TreatsASmallerResultByItsRule)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const counts sizes{cells.integer(2, 9), cells.integer(2, 9), cells.integer(2, 9),
                           cells.integer(2, 9)};
        operands tables = randomOperands(GetParam(), sizes, cells);
        shape result = GetParam().written(sizes);
        result.rows -= 1;
        expectTwins(GetParam(), sizes, tables, result);
    }
}

INSTANTIATE_TEST_SUITE_P(All, ProductMember, ::testing::ValuesIn(members()), nameOf);
INSTANTIATE_TEST_SUITE_P(Dense, DenseProductMember, ::testing::ValuesIn(denseMembers()), nameOf);
