#include "random/sampling.h"

#include "random/sampling_call.h"
#include "reference/random_plain.h"

#include <algorithm>
#include <memory>

namespace korvel::test
{

namespace
{

/** A table in chunks, one for each column. */
class text_chunks
{
public:
    text_chunks(const matrix<text>& table, int rows)
    {
        for (int j = 0; j < columns; ++j) {
            owned_.push_back(std::make_unique<matrix<text>>(rows, 1, text(u"old")));
            for (int i = 0; i < std::min(rows, table.nbrows); ++i) {
                owned_.back()->data[i] = table.getElement(i, j);
            }
            pointers_.push_back(owned_.back().get());
        }
    }

    [[nodiscard]] matrix<text>** get() { return pointers_.data(); }

    /** Whether the chunks hold what the dense sample holds. */
    void expectSameAs(const matrix<text>& sample) const
    {
        for (int j = 0; j < columns; ++j) {
            for (int t = 0; t < sample.nbrows; ++t) {
                EXPECT_EQ(owned_[static_cast<std::size_t>(j)]->data[t], sample.getElement(t, j)) << t;
            }
        }
    }

private:
    std::vector<std::unique_ptr<matrix<text>>> owned_;
    std::vector<matrix<text>*> pointers_;
};

using SamplingOfChunks = RandomState;

} // namespace

TEST_F(SamplingOfChunks, ChunksGiveTheSameSamples)
{
    const matrix<text> nothing;
    for (const int algorithm : {0, 1}) {
        for (const int k : {1, 4, 6}) {
            processSource.algo = algorithm;
            sampling_call dense(12, 7, 12);
            sampling_call other(12, 7, 12);
            text_chunks table(dense.table, 12);

            text_chunks systematic(nothing, 7);
            M_SamplingSystematicRdStart(&dense.table, 12, columns, k, &dense.sample, &dense.selected,
                                        &dense.seed, 1, &dense.next);
            M_SamplingSystematicRdStartSPV(table.get(), 12, columns, k, systematic.get(), &other.selected,
                                           &other.seed, 1, &other.next);
            systematic.expectSameAs(dense.sample);
            EXPECT_EQ(other.numbers(), dense.numbers());
            EXPECT_EQ(other.next, dense.next);

            text_chunks centred(dense.sample, 7);
            M_SamplingSystematicCentered(&dense.table, 12, columns, k, &dense.sample, &dense.selected);
            M_SamplingSystematicCenteredSPV(table.get(), 12, columns, k, centred.get(), &other.selected);
            centred.expectSameAs(dense.sample);
            EXPECT_EQ(other.numbers(), dense.numbers());

            // Eight rows and a k of 4 or below: no stratum reaches beyond the table.
            text_chunks stratified(dense.sample, 7);
            const int strata = std::min(k, 4);
            M_SamplingRandomStratified(&dense.table, 8, columns, strata, &dense.sample, &dense.selected,
                                       &dense.seed, 1, &dense.next);
            M_SamplingRandomStratifiedSPV(table.get(), 8, columns, strata, stratified.get(), &other.selected,
                                          &other.seed, 1, &other.next);
            EXPECT_EQ(other.numbers(), dense.numbers());
            EXPECT_EQ(other.next, dense.next);
            if (algorithm == 0) {
                stratified.expectSameAs(dense.sample);
            }

            matrix<double> counts(12, 1, 0.0);
            counts.data[2] = k;
            counts.data[11] = 1.0;
            text_chunks userDefined(dense.sample, 7);
            M_SampleUserDefined(&dense.table, 12, columns, &dense.sample, &counts, &dense.selected);
            M_SampleUserDefinedSPV(table.get(), 12, columns, userDefined.get(), &counts, &other.selected);
            EXPECT_EQ(other.numbers(), dense.numbers());
            for (int t = 0; t <= k; ++t) {
                EXPECT_EQ(userDefined.get()[1]->data[t], cell(t < k ? 3 : 12, 2));
            }
        }
    }
}

} // namespace korvel::test
