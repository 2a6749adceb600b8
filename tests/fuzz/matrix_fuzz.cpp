/**
 * @file
 * Drives the dense container with random operations and compares it, after each one, with a plain model of
 * its rules: owned, borrowed and attached tables of all four element types.
 *
 * matrix_fuzz [rounds] [seed] prints nothing and returns 0 when all rounds agree; otherwise it names the
 * round, which the same two arguments bring back.
 */
#include "containers/matrix.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using korvel::test::contents;
using korvel::test::elementType;
using korvel::test::newBstr;
using korvel::test::place;

namespace
{

void require(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

class source_of_choices
{
public:
    explicit source_of_choices(std::uint64_t seed) : engine_(seed) {}

    /** A whole number from `low` to `high`. */
    int between(int low, int high)
    {
        const auto width = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<int>(engine_() % width);
    }
    bool oneIn(int n) { return between(1, n) == 1; }

    template <class T>
    T value()
    {
        if constexpr (korvel::is_text<T>) {
            static const std::vector<text> texts{u"",           u"a", u"b", text(u"a\0b", 3), text(40, u'x'),
                                                 text(41, u'y')};
            return texts[static_cast<std::size_t>(between(0, static_cast<int>(texts.size()) - 1))];
        } else {
            return static_cast<T>(between(-9, 9));
        }
    }

private:
    std::mt19937_64 engine_;
};

/** A text up to its first NUL. */
text cut(const text& value)
{
    return value.substr(0, value.find(u'\0'));
}

/** What is known of an element: nothing when its block is fresh from the allocator. */
template <class T>
using known = std::optional<T>;

/** A host array as the rules see it. */
template <class T>
struct array_model {
    std::vector<int> counts;
    bool fixed = false;
    std::vector<known<T>> numbers;
    std::vector<place> texts;

    [[nodiscard]] std::size_t length() const
    {
        std::size_t product = 1;
        for (const int count : counts) {
            product *= static_cast<std::size_t>(count);
        }
        return product;
    }
    [[nodiscard]] int count(std::size_t dimension) const
    {
        return dimension < counts.size() ? counts[dimension] : 1;
    }
    [[nodiscard]] bool canBecome(int cols) const
    {
        return !fixed && (counts.size() == 2 || (counts.size() == 1 && cols == 1));
    }

    void resize(int rows, int cols)
    {
        const std::size_t before = length();
        counts[0] = rows;
        if (counts.size() == 2) {
            counts[1] = rows == 0 ? 0 : cols;
        }
        if constexpr (korvel::is_text<T>) {
            texts.assign(length(), std::nullopt);
        } else if (length() > before) {
            numbers.assign(length(), std::nullopt);
        }
    }

    /** What the destructor of a table of texts leaves in the array. */
    void writeBack(const std::vector<known<T>>& elements, std::size_t count)
    {
        for (std::size_t k = 0; k < std::min(count, length()); ++k) {
            const text& value = *elements[k];
            if (!texts[k]) {
                texts[k] = cut(value);
            } else if (cut(*texts[k]) != value) {
                texts[k] = cut(value);
            }
        }
    }
};

enum class storage { owned, borrowed, attached };

/** A table as the rules see it. */
template <class T>
struct table_model {
    int rows = 0;
    int cols = 0;
    storage kind = storage::owned;
    T oob{};
    std::vector<known<T>> block; ///< Its size is the capacity.

    [[nodiscard]] std::size_t count() const
    {
        return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    }
    [[nodiscard]] static T freshOob()
    {
        if constexpr (std::is_same_v<T, double> || std::is_same_v<T, int>) {
            return -1;
        } else {
            return T{};
        }
    }
};

/** A table, the memory that is not its own, and the model of both. */
template <class T>
class subject
{
public:
    explicit subject(source_of_choices& choices) : choices_(choices) { renew(); }
    subject(const subject&) = delete;
    subject& operator=(const subject&) = delete;
    ~subject() { retire(); }

    void step()
    {
        switch (choices_.between(0, 11)) {
        case 0:
        case 1:
            readLinear();
            break;
        case 2:
            writeLinear();
            break;
        case 3:
            readCell();
            break;
        case 4:
        case 5:
            writeCell();
            break;
        case 6:
        case 7:
        case 8:
            redim();
            break;
        case 9:
            copy();
            break;
        case 10:
            moveOnto();
            break;
        default:
            if (choices_.oneIn(4)) {
                retire();
                renew();
            }
        }
        compare();
    }

private:
    static constexpr int longest = 5;

    [[nodiscard]] std::vector<known<T>>& cells()
    {
        return !korvel::is_text<T> && model_.kind == storage::attached ? arrayModel_.numbers : model_.block;
    }

    static void expectSame(const T& actual, const known<T>& expected, const char* what)
    {
        require(!expected || actual == *expected, what);
    }

    // Making and ending.

    void renew()
    {
        model_ = table_model<T>{};
        model_.oob = table_model<T>::freshOob();
        switch (choices_.between(0, 3)) {
        case 0:
            table_ = std::make_unique<matrix<T>>();
            return;
        case 1:
            makeOwned();
            return;
        case 2:
            makeBorrowed();
            return;
        default:
            makeAttached();
        }
    }

    void makeOwned()
    {
        const int rows = choices_.between(0, longest);
        const int cols = choices_.between(-1, longest);
        const T value = choices_.value<T>();
        table_ = std::make_unique<matrix<T>>(rows, cols, value);
        model_.rows = rows;
        model_.cols = std::max(cols, 1);
        model_.block.assign(model_.count(), value);
    }

    void makeBorrowed()
    {
        model_.kind = storage::borrowed;
        model_.rows = choices_.between(0, longest);
        model_.cols = choices_.between(0, longest);
        lent_.resize(model_.count());
        std::generate(lent_.begin(), lent_.end(), [this] { return choices_.value<T>(); });
        if constexpr (korvel::is_text<T>) {
            table_ = std::make_unique<matrix<T>>(model_.rows, model_.cols, lent_.data());
        } else {
            table_ = std::make_unique<matrix<T>>(model_.rows, model_.cols, lent_.data(), true);
        }
        model_.block.assign(lent_.begin(), lent_.end());
    }

    void makeAttached()
    {
        arrayModel_ = array_model<T>{};
        std::vector<ULONG> counts;
        const int dimensions = choices_.between(1, 3);
        for (int dimension = 0; dimension < dimensions; ++dimension) {
            // A third count of 0 would give the table elements that the array does not have.
            arrayModel_.counts.push_back(choices_.between(dimension < 2 ? 0 : 1, longest));
            counts.push_back(static_cast<ULONG>(arrayModel_.counts.back()));
        }
        array_.emplace(elementType<T>(), counts, choices_.between(-2, 2));
        arrayModel_.fixed = choices_.oneIn(5);
        if (arrayModel_.fixed) {
            (*array_)->fFeatures |= FADF_FIXEDSIZE;
        }
        for (std::size_t k = 0; k < arrayModel_.length(); ++k) {
            fillPlace(k);
        }
        table_ = std::make_unique<matrix<T>>(array_->get());
        model_.kind = storage::attached;
        model_.rows = arrayModel_.count(0);
        model_.cols = arrayModel_.count(1);
        if constexpr (korvel::is_text<T>) {
            model_.cols = std::max(model_.cols, 1);
            for (std::size_t k = 0; k < model_.count(); ++k) {
                const bool there = k < arrayModel_.texts.size() && arrayModel_.texts[k];
                model_.block.push_back(there ? cut(*arrayModel_.texts[k]) : text{});
            }
        }
    }

    void fillPlace(std::size_t k)
    {
        const T value = choices_.value<T>();
        if constexpr (korvel::is_text<T>) {
            const bool null = choices_.oneIn(4);
            array_->elements<BSTR>()[k] = null ? nullptr : newBstr(value);
            arrayModel_.texts.push_back(null ? place() : place(value));
        } else {
            array_->elements<T>()[k] = value;
            arrayModel_.numbers.push_back(value);
        }
    }

    void retire()
    {
        table_.reset();
        if (model_.kind == storage::attached) {
            if constexpr (korvel::is_text<T>) {
                arrayModel_.writeBack(model_.block, model_.count());
            }
            compareArray();
            array_.reset();
        } else if (model_.kind == storage::borrowed) {
            require(std::equal(lent_.begin(), lent_.end(), model_.block.begin()), "the lent block");
        }
    }

    // Operations.

    void readLinear()
    {
        const std::int64_t k = choices_.between(-3, static_cast<int>(model_.count()) + 3);
        const bool inside = k >= 0 && k < static_cast<std::int64_t>(model_.count());
        const matrix<T>& constant = *table_;
        expectSame(constant[k], inside ? cells()[static_cast<std::size_t>(k)] : known<T>(model_.oob),
                   "linear read");
    }

    void writeLinear()
    {
        const std::int64_t k = choices_.between(-3, static_cast<int>(model_.count()) + 3);
        const T value = choices_.value<T>();
        (*table_)[k] = value;
        if (k >= 0 && k < static_cast<std::int64_t>(model_.count())) {
            cells()[static_cast<std::size_t>(k)] = value;
        } else {
            model_.oob = value;
        }
    }

    /** A row and a column: inside, past the upper bounds, or negative where that still lies in the block. */
    std::pair<int, int> position()
    {
        const int i = choices_.between(-1, model_.rows + 1);
        const int j = choices_.between(-1, model_.cols + 1);
        const std::int64_t k = i + std::int64_t{model_.rows} * j;
        const bool reachesBlock = i < model_.rows && j < model_.cols;
        if (reachesBlock && (k < 0 || k >= static_cast<std::int64_t>(model_.count()))) {
            return {model_.rows, 0};
        }
        return {i, j};
    }

    /** Where a row and a column lie in the block; nothing past the upper bounds. */
    [[nodiscard]] std::optional<std::size_t> index(int i, int j) const
    {
        if (i >= model_.rows || j >= model_.cols) {
            return std::nullopt;
        }
        return static_cast<std::size_t>(i + model_.rows * j);
    }

    void readCell()
    {
        const auto [i, j] = position();
        const auto k = index(i, j);
        const known<T> expected = k ? cells()[*k] : known<T>(model_.oob);
        expectSame(table_->getElement(i, j), expected, "getElement");
        expectSame(table_->vbget(i + 1, j + 1), expected, "vbget");
    }

    void writeCell()
    {
        const auto [i, j] = position();
        const T value = choices_.value<T>();
        if (choices_.oneIn(2)) {
            table_->setElement(i, j, value);
        } else {
            table_->vbset(i + 1, j + 1, value);
        }
        if (const auto k = index(i, j)) {
            cells()[*k] = value;
        }
        model_.oob = value;
    }

    void redim()
    {
        const int rows = choices_.between(0, longest);
        const int asked = choices_.between(-1, longest);
        const int cols = std::max(asked, 1);
        const auto count = static_cast<std::size_t>(rows * cols);
        const bool attached = model_.kind == storage::attached;
        const bool differs = attached && (rows != arrayModel_.count(0) || cols != arrayModel_.count(1));
        const bool refused = differs && !arrayModel_.canBecome(cols);
        if (!korvel::is_text<T> && refused && count > arrayModel_.length()) {
            return; // The counts would go past the caller's memory.
        }

        const bool filled = choices_.oneIn(2);
        const T value = choices_.value<T>();
        if (filled) {
            table_->Redim(rows, asked, value);
        } else {
            table_->Redim(rows, asked);
        }

        if (differs && !refused) {
            arrayModel_.resize(rows, cols);
        }
        if (model_.kind != storage::borrowed) {
            model_.rows = rows;
            model_.cols = cols;
            if (model_.block.size() < count && (!attached || korvel::is_text<T>)) {
                model_.block.assign(count, korvel::is_text<T> ? known<T>(T{}) : std::nullopt);
            }
        }
        if (filled) {
            std::fill_n(cells().begin(), model_.count(), value);
        }
        settle();
    }

    /** Sets every element that the allocator left undefined, so that the next comparison includes it. */
    void settle()
    {
        for (std::size_t k = 0; k < model_.count(); ++k) {
            if (!cells()[k]) {
                cells()[k] = choices_.value<T>();
                (*table_)[static_cast<std::int64_t>(k)] = *cells()[k];
            }
        }
    }

    void copy()
    {
        const matrix<T> copied(*table_);
        require(copied.bOwner && copied.safeArray == nullptr, "a copy owns its block");
        require(copied.nbrows == model_.rows && copied.nbcols == std::max(model_.cols, 1), "shape of a copy");
        require(copied.oobValue == table_model<T>::freshOob(), "a copy's oobValue");
        for (std::size_t k = 0; k < copied.nbElem; ++k) {
            expectSame(copied.data[k], k < model_.count() ? cells()[k] : known<T>(T{}), "element of a copy");
        }
    }

    /** Moves the table onto another one, which may hold a block or a host array of its own. */
    void moveOnto()
    {
        auto target = std::make_unique<matrix<T>>();
        if (choices_.oneIn(2)) {
            target = std::make_unique<matrix<T>>(2, 2, choices_.value<T>());
        } else if (choices_.oneIn(2)) {
            SAFEARRAYBOUND bound{3, 1};
            target = std::make_unique<matrix<T>>(SafeArrayCreate(elementType<T>(), 1, &bound));
        }
        *target = std::move(*table_);
        require(table_->data == nullptr && table_->safeArray == nullptr, "what a move leaves");
        table_ = std::move(target);
    }

    // Comparing.

    void compare()
    {
        const matrix<T>& m = *table_;
        require(m.nbrows == model_.rows && m.nbcols == model_.cols && m.nbElem == model_.count(), "counts");
        require(m.oobValue == model_.oob && m.spareValue == T{} && m.firstElem == 0, "spare slots");
        const bool attached = model_.kind == storage::attached;
        require((m.safeArray != nullptr) == attached, "host array");
        const bool owned = model_.kind == storage::owned || (attached && korvel::is_text<T>);
        require(m.bOwner == owned, "ownership");
        require(m.capacity == model_.block.size(), "capacity");
        if (attached && !korvel::is_text<T>) {
            require(m.data == array_->get()->pvData, "the array's block");
        }
        for (std::size_t k = 0; k < model_.count(); ++k) {
            expectSame(m.data[k], cells()[k], "element");
        }
        if (attached) {
            compareArray();
        }
    }

    void compareArray()
    {
        for (std::size_t dimension = 0; dimension < arrayModel_.counts.size(); ++dimension) {
            require(array_->count(dimension) == static_cast<ULONG>(arrayModel_.counts[dimension]),
                    "array's counts");
        }
        for (std::size_t k = 0; k < arrayModel_.length(); ++k) {
            if constexpr (korvel::is_text<T>) {
                require(contents(array_->template elements<BSTR>()[k]) == arrayModel_.texts[k],
                        "text in the array");
            } else {
                expectSame(array_->template elements<T>()[k], arrayModel_.numbers[k], "number in the array");
            }
        }
    }

    source_of_choices& choices_;
    std::unique_ptr<matrix<T>> table_;
    std::vector<T> lent_;
    std::optional<korvel::test::host_array> array_;
    table_model<T> model_;
    array_model<T> arrayModel_;
};

template <class T>
void playRound(std::uint64_t seed)
{
    const korvel::test::automation_watch watch;
    source_of_choices choices(seed);
    {
        subject<T> table(choices);
        for (int step = 0; step < 60; ++step) {
            table.step();
        }
    }
    require(static_cast<bool>(watch.nothingAlive()), "texts, blocks and arrays in balance");
}

} // namespace

int main(int argc, char** argv)
{
    const std::uint64_t rounds = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 5000;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 20261121;
    for (std::uint64_t round = 0; round < rounds; ++round) {
        try {
            playRound<double>(seed + round);
            playRound<int>(seed + round);
            playRound<short int>(seed + round);
            playRound<text>(seed + round);
        } catch (const std::exception& difference) {
            std::fprintf(stderr, "matrix_fuzz 1 %llu: %s\n", static_cast<unsigned long long>(seed + round),
                         difference.what());
            return 1;
        }
    }
    return 0;
}
