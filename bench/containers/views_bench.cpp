// Three loops, each on raw pointers, through views of dense and chunked tables, and through the checked
// access that views avoid. A view costs the difference between the first two.

#include "containers/views.h"

#include <benchmark/benchmark.h>
#include <cstddef>
#include <memory>
#include <vector>

using korvel::reading;
using korvel::withCells;
using korvel::writing;

namespace
{

constexpr int cols = 50;

/** A table of small numbers in both forms. */
struct both_forms {
    matrix<double> dense;
    std::vector<std::unique_ptr<matrix<double>>> columns;
    std::vector<matrix<double>*> chunks;

    both_forms(int rows, int width) : dense(rows, width, 0.0)
    {
        for (int j = 0; j < width; ++j) {
            columns.push_back(std::make_unique<matrix<double>>(rows, 1, 0.0));
            chunks.push_back(columns.back().get());
            for (int i = 0; i < rows; ++i) {
                const double value = (i * 7 + j) % 13;
                dense.setElement(i, j, value);
                chunks.back()->setElement(i, 0, value);
            }
        }
    }
};

// ------------------------------------------------------------------------------------------------ column
// sums

void sumRaw(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    for (auto _ : state) {
        double total = 0.0;
        for (int j = 0; j < cols; ++j) {
            const double* column = x.dense.data + static_cast<std::ptrdiff_t>(rows) * j;
            double sum = 0.0;
            for (int i = 0; i < rows; ++i) {
                sum += column[i];
            }
            total += sum;
        }
        benchmark::DoNotOptimize(total);
    }
}

template <class View>
double sumOfColumns(const View& view, int rows)
{
    double total = 0.0;
    for (int j = 0; j < cols; ++j) {
        total += withCells(
            [&](auto column) {
                double sum = 0.0;
                for (int i = 0; i < rows; ++i) {
                    sum += column[i];
                }
                return sum;
            },
            view.column(j, rows));
    }
    return total;
}

void sumDenseView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    for (auto _ : state) {
        benchmark::DoNotOptimize(sumOfColumns(reading(x.dense), rows));
    }
}

void sumChunkView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    for (auto _ : state) {
        benchmark::DoNotOptimize(sumOfColumns(reading(x.chunks.data()), rows));
    }
}

// ----------------------------------------------------------------------------------------- columns times two

void scaleRaw(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(rows, cols);
    for (auto _ : state) {
        for (int j = 0; j < cols; ++j) {
            const double* from = x.dense.data + static_cast<std::ptrdiff_t>(rows) * j;
            double* to = y.dense.data + static_cast<std::ptrdiff_t>(rows) * j;
            for (int i = 0; i < rows; ++i) {
                to[i] = 2.0 * from[i];
            }
        }
        benchmark::ClobberMemory();
    }
}

template <class From, class To>
void scaleColumns(const From& from, const To& to, int rows)
{
    for (int j = 0; j < cols; ++j) {
        withCells(
            [&](auto in, auto& out) {
                for (int i = 0; i < rows; ++i) {
                    out.set(i, 2.0 * in[i]);
                }
            },
            from.column(j, rows), to.column(j, rows));
    }
}

void scaleDenseView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(rows, cols);
    for (auto _ : state) {
        scaleColumns(reading(x.dense), writing(y.dense), rows);
        benchmark::ClobberMemory();
    }
}

void scaleChunkView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(rows, cols);
    for (auto _ : state) {
        scaleColumns(reading(x.chunks.data()), writing(y.chunks.data()), rows);
        benchmark::ClobberMemory();
    }
}

void scaleChecked(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(rows, cols);
    for (auto _ : state) {
        for (int j = 0; j < cols; ++j) {
            for (int i = 0; i < rows; ++i) {
                y.dense.setElement(i, j, 2.0 * x.dense.getElement(i, j));
            }
        }
        benchmark::ClobberMemory();
    }
}

// --------------------------------------------------------------------------------------- transposed, strided

void transposeRaw(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(cols, rows);
    for (auto _ : state) {
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                y.dense.data[c + static_cast<std::ptrdiff_t>(cols) * r] =
                    x.dense.data[r + static_cast<std::ptrdiff_t>(rows) * c];
            }
        }
        benchmark::ClobberMemory();
    }
}

/** On arrays of column pointers, as one would keep chunks without any container. */
void transposeRawPointers(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    const both_forms y(cols, rows);
    std::vector<const double*> from;
    std::vector<double*> to;
    for (const auto* chunk : x.chunks) {
        from.push_back(chunk->data);
    }
    for (auto* chunk : y.chunks) {
        to.push_back(chunk->data);
    }
    const double* const* in = from.data();
    double* const* out = to.data();
    for (auto _ : state) {
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                out[r][c] = in[c][r];
            }
        }
        benchmark::ClobberMemory();
    }
}

template <class From, class To>
void transposeTable(const From& from, const To& to, int rows)
{
    withCells(
        [&](auto in, auto& out) {
            for (int r = 0; r < rows; ++r) {
                for (int c = 0; c < cols; ++c) {
                    out.set(c, r, in.get(r, c));
                }
            }
        },
        from.table(rows, cols), to.table(cols, rows));
}

/** The same, column after column of the result. */
template <class From, class To>
void transposeByColumn(const From& from, const To& to, int rows)
{
    withCells(
        [&](auto in) {
            for (int r = 0; r < rows; ++r) {
                withCells(
                    [&](auto& out) {
                        for (int c = 0; c < cols; ++c) {
                            out.set(c, in.get(r, c));
                        }
                    },
                    to.column(r, cols));
            }
        },
        from.table(rows, cols));
}

void transposeChunkByColumn(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(cols, rows);
    for (auto _ : state) {
        transposeByColumn(reading(x.chunks.data()), writing(y.chunks.data()), rows);
        benchmark::ClobberMemory();
    }
}

void transposeDenseView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(cols, rows);
    for (auto _ : state) {
        transposeTable(reading(x.dense), writing(y.dense), rows);
        benchmark::ClobberMemory();
    }
}

void transposeChunkView(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(cols, rows);
    for (auto _ : state) {
        transposeTable(reading(x.chunks.data()), writing(y.chunks.data()), rows);
        benchmark::ClobberMemory();
    }
}

void transposeChecked(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    const both_forms x(rows, cols);
    both_forms y(cols, rows);
    for (auto _ : state) {
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                y.dense.setElement(c, r, x.dense.getElement(r, c));
            }
        }
        benchmark::ClobberMemory();
    }
}

} // namespace

BENCHMARK(sumRaw)->Arg(100)->Arg(10000);
BENCHMARK(sumDenseView)->Arg(100)->Arg(10000);
BENCHMARK(sumChunkView)->Arg(100)->Arg(10000);
BENCHMARK(scaleRaw)->Arg(100)->Arg(10000);
BENCHMARK(scaleDenseView)->Arg(100)->Arg(10000);
BENCHMARK(scaleChunkView)->Arg(100)->Arg(10000);
BENCHMARK(scaleChecked)->Arg(100)->Arg(10000);
BENCHMARK(transposeRaw)->Arg(100)->Arg(1000);
BENCHMARK(transposeRawPointers)->Arg(100)->Arg(1000);
BENCHMARK(transposeDenseView)->Arg(100)->Arg(1000);
BENCHMARK(transposeChunkView)->Arg(100)->Arg(1000);
BENCHMARK(transposeChunkByColumn)->Arg(100)->Arg(1000);
BENCHMARK(transposeChecked)->Arg(100)->Arg(1000);
