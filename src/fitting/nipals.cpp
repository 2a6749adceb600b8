#include "fitting/nipals.h"

#include "containers/views.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace
{

constexpr double gone = MISSING_DBL;

/** The scores of a component, or its loadings: a number for each row or variable; or, of a component for
 * which there is no room in the tables, one number for all of them. */
struct component_cells {
    double* first;
    std::ptrdiff_t step;

    double& operator[](int i) const { return first[step * i]; }
};

/** Scores or loadings of all components, one behind the other. */
class component_table
{
public:
    component_table(int length, int room)
        : length_(static_cast<std::size_t>(length)), room_(room),
          cells_(length_ * static_cast<std::size_t>(room))
    {
    }

    /** Component `h`, counted from 0. */
    [[nodiscard]] component_cells component(int h)
    {
        return h < room_ ? component_cells{cells_.data() + static_cast<std::size_t>(h) * length_, 1}
                         : component_cells{&outside_, 0};
    }

private:
    std::size_t length_;
    int room_;
    std::vector<double> cells_;
    double outside_ = -1.0;
};

/** Whether some loadings were there before: they are compared with those of pass 1, 2, 4, 8 and so on. A pass
 * follows from the loadings before it alone, so that what comes back never ends. */
class recurrence
{
public:
    bool isBack(component_cells loadings, int count)
    {
        ++pass_;
        bool same = saved_.size() == static_cast<std::size_t>(count);
        for (int k = 0; same && k < count; ++k) {
            same = std::bit_cast<std::uint64_t>(saved_[static_cast<std::size_t>(k)]) ==
                   std::bit_cast<std::uint64_t>(loadings[k]);
        }
        if (std::has_single_bit(pass_)) {
            saved_.clear();
            for (int k = 0; k < count; ++k) {
                saved_.push_back(loadings[k]);
            }
        }
        return same;
    }

private:
    std::uint64_t pass_ = 0;
    std::vector<double> saved_;
};

class components_of
{
public:
    components_of(const matrix<double>& X, int n, int p, const matrix<double>& weights)
        : n_(n), p_(p), missing_(static_cast<std::size_t>(p)), means_(static_cast<std::size_t>(p)),
          Z_(n, p, 0.0), scores_(n, p), loadings_(p, p), previous_(static_cast<std::size_t>(p))
    {
        for (int j = 0; j < p; ++j) {
            prepare(X, j, weights);
        }
    }

    [[nodiscard]] bool missesMoreThan(double columnShare, double tableShare) const
    {
        double total = 0.0;
        for (const int count : missing_) {
            if (count > n_ * columnShare) {
                return true;
            }
            total += count;
        }
        return total > n_ * tableShare * p_;
    }

    [[nodiscard]] bool missesNone() const
    {
        for (const int count : missing_) {
            if (count != 0) {
                return false;
            }
        }
        return true;
    }

    /** Finds component `h` and takes it off. */
    [[nodiscard]] bool extract(int h, double tolerance)
    {
        const component_cells t = scores_.component(h);
        const component_cells loads = loadings_.component(h);
        for (int i = 0; i < n_; ++i) {
            t[i] = column(startColumn_)[i];
        }
        recurrence passes;
        for (bool isFirst = true;; isFirst = false) {
            if (!findLoadings(t, loads)) {
                return false;
            }
            normalise(loads);
            findScores(t, loads);
            const bool isDone = !isFirst && tolerance >= varianceOfChanges(loads);
            for (int k = 0; k < p_; ++k) {
                previous_[static_cast<std::size_t>(k)] = loads[k];
            }
            if (isDone) {
                break;
            }
            if (passes.isBack(loads, p_)) {
                return false;
            }
        }
        takeOff(t, loads);
        return true;
    }

    void fill(matrix<double>& X, const matrix<double>& weights, int components)
    {
        for (int j = 0; j < p_; ++j) {
            for (int i = 0; i < n_; ++i) {
                if (X.getElement(i, j) == gone) {
                    X.setElement(i, j, weights[i] == 0.0 ? 0.0 : completed(i, j, components) / weights[i]);
                }
            }
        }
    }

private:
    [[nodiscard]] double* column(int j) { return Z_.data + static_cast<std::ptrdiff_t>(n_) * j; }

    void prepare(const matrix<double>& X, int j, const matrix<double>& weights)
    {
        double sumOfWeights = 0.0;
        double sum = 0.0;
        double squares = 0.0;
        int missing = 0;
        double* const z = column(j);
        for (int i = 0; i < n_; ++i) {
            const double x = X.getElement(i, j);
            if (x == gone) {
                ++missing;
                z[i] = gone;
                continue;
            }
            sumOfWeights += weights[i];
            sum += weights[i] * x;
            squares += weights[i] * x * x;
        }
        const double mean = sum / sumOfWeights;
        const double variance = (squares - mean * mean * sumOfWeights) / (sumOfWeights - 1.0);
        if (!(variance < 0.0) && std::sqrt(variance) > 1e-6) {
            for (int i = 0; i < n_; ++i) {
                if (z[i] != gone) {
                    z[i] = X.getElement(i, j) * weights[i] - mean;
                }
            }
        }
        const auto place = static_cast<std::size_t>(j);
        means_[place] = mean;
        missing_[place] = missing;
        if (j > 0 && missing_[place - 1] > missing) {
            startColumn_ = j;
        }
    }

    /** False when the scores vanish. */
    [[nodiscard]] bool findLoadings(component_cells t, component_cells loads)
    {
        for (int k = 0; k < p_; ++k) {
            const double* const z = column(k);
            double sum = 0.0;
            double squares = 0.0;
            for (int i = 0; i < n_; ++i) {
                if (t[i] != gone && z[i] != gone) {
                    sum += t[i] * z[i];
                    squares += t[i] * t[i];
                }
            }
            if (squares < 1e-6) {
                return false;
            }
            loads[k] = sum / squares;
        }
        return true;
    }

    void normalise(component_cells loads) const
    {
        double squares = 0.0;
        for (int k = 0; k < p_; ++k) {
            squares += loads[k] * loads[k];
        }
        const double length = std::sqrt(squares);
        for (int k = 0; k < p_; ++k) {
            loads[k] = loads[k] / length;
        }
    }

    /** Variable after variable, which reads the table along its columns: a row's sums are added to in the
     * same order. */
    void findScores(component_cells t, component_cells loads)
    {
        if (t.step == 0) {
            for (int i = 0; i < n_; ++i) {
                findScore(t, i, loads);
            }
            return;
        }
        squares_.assign(static_cast<std::size_t>(n_), 0.0);
        for (int i = 0; i < n_; ++i) {
            t[i] = gone;
        }
        for (int k = 0; k < p_; ++k) {
            const double* const z = column(k);
            for (int i = 0; i < n_; ++i) {
                if (z[i] != gone) {
                    addTo(t[i], z[i] * loads[k]);
                    squares_[static_cast<std::size_t>(i)] += loads[k] * loads[k];
                }
            }
        }
        for (int i = 0; i < n_; ++i) {
            if (t[i] != gone) {
                t[i] = t[i] / squares_[static_cast<std::size_t>(i)];
            }
        }
    }

    void findScore(component_cells t, int i, component_cells loads)
    {
        double squares = 0.0;
        t[i] = gone;
        for (int k = 0; k < p_; ++k) {
            const double z = column(k)[i];
            if (z != gone) {
                addTo(t[i], z * loads[k]);
                squares += loads[k] * loads[k];
            }
        }
        if (t[i] != gone) {
            t[i] = t[i] / squares;
        }
    }

    static void addTo(double& score, double term) { score = score == gone ? term : score + term; }

    [[nodiscard]] double varianceOfChanges(component_cells loads) const
    {
        double sum = 0.0;
        double squares = 0.0;
        for (int k = 0; k < p_; ++k) {
            const double change = previous_[static_cast<std::size_t>(k)] - loads[k];
            squares += change * change;
            sum += change;
        }
        return (squares - sum * sum / p_) / (p_ - 1.0);
    }

    void takeOff(component_cells t, component_cells loads)
    {
        for (int k = 0; k < p_; ++k) {
            double* const z = column(k);
            for (int i = 0; i < n_; ++i) {
                if (t[i] != gone && z[i] != gone) {
                    z[i] = z[i] - loads[k] * t[i];
                }
            }
        }
    }

    /** What the components make of a cell, before it is divided by the weight. */
    [[nodiscard]] double completed(int i, int j, int components)
    {
        double sum = 0.0;
        for (int h = 0; h < components; ++h) {
            const double score = scores_.component(h)[i];
            if (score != gone) {
                sum += loadings_.component(h)[j] * score;
            }
        }
        return sum + means_[static_cast<std::size_t>(j)];
    }

    int n_;
    int p_;
    int startColumn_ = 0;
    std::vector<int> missing_;
    std::vector<double> means_;
    matrix<double> Z_;
    component_table scores_;
    component_table loadings_;
    std::vector<double> previous_;
    std::vector<double> squares_;
};

} // namespace

int NIPALS(int n, int p, matrix<double>* X, matrix<double>* weights, double tolerance, int components,
           double columnShare, double tableShare)
{
    if (n < 1 || p < 1) {
        return 0;
    }
    components_of found(*X, n, p, *weights);
    if (found.missesNone()) {
        return 0;
    }
    if (found.missesMoreThan(columnShare, tableShare)) {
        return -6;
    }
    for (int h = 0; h < components; ++h) {
        if (!found.extract(h, tolerance)) {
            return 1;
        }
    }
    found.fill(*X, *weights, components);
    return 0;
}
