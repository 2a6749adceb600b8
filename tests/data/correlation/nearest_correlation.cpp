// Nearest correlation matrices in arithmetic of 50 digits: the origin of nearest_correlation.txt. It is not
// part of any build:
//
//     g++ -std=c++20 -O2 nearest_correlation.cpp -o /tmp/nearest && /tmp/nearest > nearest_correlation.txt
//
// Each table is printed as a line with its name, its order and how many steps the iteration below took, and
// then a line for each cell (of large tables, for every seventh) of the lower triangle, row by row: row,
// column, and two numbers.
//
// The first is the cell of the nearest table, by Newton's method on the dual problem (Qi and Sun, A
// quadratically convergent Newton method for computing the nearest correlation matrix, SIAM Journal on Matrix
// Analysis and Applications 28, 2006): a y for which the positive semidefinite part of A + diag(y) has a
// diagonal of ones. The second is the cell of what alternating projections with Dykstra's correction reach
// (Higham, Computing the nearest correlation matrix: a problem from finance, IMA Journal of Numerical
// Analysis 22, 2002) when they stop as soon as the step onto the unit diagonal changes the table by no more
// than 1e-6 of it, both as row sum norms. Eigenvalues are Jacobi's. Nothing here is shared with the library.

#include <algorithm>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

using number = boost::multiprecision::cpp_bin_float_50;
using vector = std::vector<number>;

struct table {
    explicit table(int order) : n(order), cells(static_cast<std::size_t>(order * order)) {}
    number& operator()(int i, int j) { return cells[static_cast<std::size_t>(i * n + j)]; }
    const number& operator()(int i, int j) const { return cells[static_cast<std::size_t>(i * n + j)]; }

    int n;
    vector cells;
};

/** Row k of `vectors` is the eigenvector of value k. */
struct spectrum {
    vector values;
    table vectors;
};

/** Cyclic Jacobi, from vectors that may be near already. */
spectrum decompose(const table& A, const table* near)
{
    const int n = A.n;
    table a(A);
    table v(n);
    if (near != nullptr) {
        v = *near;
        table half(n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                number sum = 0;
                for (int k = 0; k < n; ++k) {
                    sum += v(i, k) * A(k, j);
                }
                half(i, j) = sum;
            }
        }
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j <= i; ++j) {
                number sum = 0;
                for (int k = 0; k < n; ++k) {
                    sum += half(i, k) * v(j, k);
                }
                a(i, j) = a(j, i) = sum;
            }
        }
    } else {
        for (int i = 0; i < n; ++i) {
            v(i, i) = 1;
        }
    }
    for (int sweep = 0; sweep < 60; ++sweep) {
        number off = 0;
        number all = 0;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                all += a(i, j) * a(i, j);
                off += i == j ? number(0) : number(a(i, j) * a(i, j));
            }
        }
        if (off <= all * number("1e-80")) {
            break;
        }
        for (int p = 0; p < n; ++p) {
            for (int q = p + 1; q < n; ++q) {
                if (a(p, q) == 0) {
                    continue;
                }
                const number theta = (a(q, q) - a(p, p)) / (2 * a(p, q));
                const number t = (theta < 0 ? -1 : 1) / (abs(theta) + sqrt(theta * theta + 1));
                const number c = 1 / sqrt(t * t + 1);
                const number s = t * c;
                for (int k = 0; k < n; ++k) {
                    const number x = a(p, k);
                    const number y = a(q, k);
                    a(p, k) = c * x - s * y;
                    a(q, k) = s * x + c * y;
                    const number z = v(p, k);
                    const number w = v(q, k);
                    v(p, k) = c * z - s * w;
                    v(q, k) = s * z + c * w;
                }
                for (int k = 0; k < n; ++k) {
                    const number x = a(k, p);
                    const number y = a(k, q);
                    a(k, p) = c * x - s * y;
                    a(k, q) = s * x + c * y;
                }
            }
        }
    }
    spectrum found{vector(static_cast<std::size_t>(n)), v};
    for (int k = 0; k < n; ++k) {
        found.values[static_cast<std::size_t>(k)] = a(k, k);
    }
    return found;
}

table positivePart(const spectrum& of)
{
    const int n = of.vectors.n;
    table made(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            number sum = 0;
            for (int k = 0; k < n; ++k) {
                const number& d = of.values[static_cast<std::size_t>(k)];
                if (d > 0) {
                    sum += d * of.vectors(k, i) * of.vectors(k, j);
                }
            }
            made(i, j) = made(j, i) = sum;
        }
    }
    return made;
}

number rowSumNorm(const table& of)
{
    number largest = 0;
    for (int i = 0; i < of.n; ++i) {
        number sum = 0;
        for (int j = 0; j < of.n; ++j) {
            sum += abs(of(i, j));
        }
        largest = std::max(largest, sum);
    }
    return largest;
}

table byAlternatingProjections(const table& A, int& steps)
{
    const int n = A.n;
    table Y(A);
    table dS(n);
    table vectors(n);
    for (steps = 1;; ++steps) {
        table R(n);
        for (std::size_t k = 0; k < R.cells.size(); ++k) {
            R.cells[k] = Y.cells[k] - dS.cells[k];
        }
        const spectrum of = decompose(R, steps == 1 ? nullptr : &vectors);
        vectors = of.vectors;
        const table X = positivePart(of);
        table D(n);
        Y = X;
        for (int i = 0; i < n; ++i) {
            Y(i, i) = 1;
        }
        for (std::size_t k = 0; k < R.cells.size(); ++k) {
            dS.cells[k] = X.cells[k] - R.cells[k];
            D.cells[k] = Y.cells[k] - X.cells[k];
        }
        if (!(rowSumNorm(D) / rowSumNorm(Y) > number("1e-6"))) {
            return Y;
        }
    }
}

/** The derivative of the diagonal of the positive part, applied to a change of the diagonal. */
vector derivative(const spectrum& of, const vector& h)
{
    const int n = of.vectors.n;
    const table& u = of.vectors;
    table middle(n);
    for (int k = 0; k < n; ++k) {
        for (int l = 0; l <= k; ++l) {
            const number a = of.values[static_cast<std::size_t>(k)];
            const number b = of.values[static_cast<std::size_t>(l)];
            number weight = a > 0 && b > 0 ? 1 : 0;
            if ((a > 0) != (b > 0)) {
                weight = std::max(a, b) / (std::max(a, b) - std::min(a, b));
            }
            number sum = 0;
            for (int i = 0; weight != 0 && i < n; ++i) {
                sum += u(k, i) * h[static_cast<std::size_t>(i)] * u(l, i);
            }
            middle(k, l) = middle(l, k) = weight * sum;
        }
    }
    vector result(h.size());
    for (int k = 0; k < n; ++k) {
        vector row(h.size());
        for (int l = 0; l < n; ++l) {
            for (int i = 0; i < n; ++i) {
                row[static_cast<std::size_t>(i)] += middle(k, l) * u(l, i);
            }
        }
        for (int i = 0; i < n; ++i) {
            result[static_cast<std::size_t>(i)] += u(k, i) * row[static_cast<std::size_t>(i)];
        }
    }
    return result;
}

number dot(const vector& a, const vector& b)
{
    number sum = 0;
    for (std::size_t k = 0; k < a.size(); ++k) {
        sum += a[k] * b[k];
    }
    return sum;
}

/** Solves derivative(d) = right by conjugate gradients. */
vector solve(const spectrum& of, const vector& right, const number& tolerance)
{
    vector d(right.size());
    vector r(right);
    vector p(r);
    number rr = dot(r, r);
    const number goal = rr * tolerance * tolerance;
    for (int step = 0; step < 4 * of.vectors.n && rr > goal; ++step) {
        const vector q = derivative(of, p);
        const number alpha = rr / dot(p, q);
        for (std::size_t k = 0; k < d.size(); ++k) {
            d[k] += alpha * p[k];
            r[k] -= alpha * q[k];
        }
        const number next = dot(r, r);
        for (std::size_t k = 0; k < d.size(); ++k) {
            p[k] = r[k] + next / rr * p[k];
        }
        rr = next;
    }
    return d;
}

table byNewton(const table& A)
{
    const int n = A.n;
    vector y(static_cast<std::size_t>(n));
    table vectors(n);
    bool first = true;
    const auto at = [&](const vector& diagonal) {
        table C(A);
        for (int i = 0; i < n; ++i) {
            C(i, i) += diagonal[static_cast<std::size_t>(i)];
        }
        const spectrum of = decompose(C, first ? nullptr : &vectors);
        vectors = of.vectors;
        first = false;
        return of;
    };
    // What is minimised: half the squares of the positive eigenvalues, less the sum of y.
    const auto height = [&](const spectrum& of, const vector& diagonal) {
        number sum = 0;
        for (const number& d : of.values) {
            sum += d > 0 ? number(d * d / 2) : number(0);
        }
        for (const number& x : diagonal) {
            sum -= x;
        }
        return sum;
    };
    spectrum now = at(y);
    for (int step = 0; step < 100; ++step) {
        const table X = positivePart(now);
        vector rest(y.size());
        for (int i = 0; i < n; ++i) {
            rest[static_cast<std::size_t>(i)] = 1 - X(i, i);
        }
        const number error = sqrt(dot(rest, rest));
        if (error < number("1e-30")) {
            return X;
        }
        const vector d = solve(now, rest, std::min(number("0.1"), error));
        number length = 1;
        for (int halving = 0; halving < 40; ++halving) {
            vector tried(y);
            for (std::size_t k = 0; k < y.size(); ++k) {
                tried[k] += length * d[k];
            }
            const spectrum there = at(tried);
            if (error < number("1e-8") ||
                height(there, tried) <= height(now, y) - number("1e-4") * length * dot(rest, d)) {
                y = tried;
                now = there;
                break;
            }
            length /= 2;
        }
    }
    std::fprintf(stderr, "no convergence\n");
    return A;
}

/** Cells are whole numbers divided by 1024, and by 1 on the diagonal; the rest is Knuth's generator. */
table randomTable(int n)
{
    std::uint64_t state = static_cast<std::uint64_t>(n);
    table made(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < i; ++j) {
            state = 6364136223846793005ULL * state + 1442695040888963407ULL;
            made(i, j) = made(j, i) = (static_cast<double>(state >> 53) - 1024.0) / 1024.0;
        }
        made(i, i) = 1;
    }
    return made;
}

void print(const std::string& name, const table& A)
{
    int steps = 0;
    const table nearest = byNewton(A);
    const table iterated = byAlternatingProjections(A, steps);
    std::printf("%s %d %d\n", name.c_str(), A.n, steps);
    int place = 0;
    for (int i = 0; i < A.n; ++i) {
        for (int j = 0; j <= i; ++j) {
            if (A.n <= 30 || place++ % 7 == 0) {
                std::printf("%d %d %s %s\n", i, j, nearest(i, j).str(20).c_str(),
                            iterated(i, j).str(20).c_str());
            }
        }
    }
    std::fflush(stdout);
}

table bandOf(int n, int diagonal, int beside)
{
    table made(n);
    for (int i = 0; i < n; ++i) {
        made(i, i) = diagonal;
        if (i > 0) {
            made(i, i - 1) = made(i - 1, i) = beside;
        }
    }
    return made;
}

} // namespace

int main()
{
    // The two tables of Higham's paper.
    print("higham3", bandOf(3, 1, 1));
    print("higham4", bandOf(4, 2, -1));
    for (const int n : {5, 10, 30, 100}) {
        print("random" + std::to_string(n), randomTable(n));
    }
}
