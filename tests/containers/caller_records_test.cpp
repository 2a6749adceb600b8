#include "containers/caller_records.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace
{

/** Lays out a record byte by byte, as a caller in another language does. */
class record_bytes
{
public:
    explicit record_bytes(std::size_t size) : bytes_(size, std::byte{0}) {}

    template <class T>
    record_bytes& put(std::size_t offset, T value)
    {
        std::memcpy(bytes_.data() + offset, &value, sizeof value);
        return *this;
    }

    template <class Record>
    Record as() const
    {
        EXPECT_EQ(bytes_.size(), sizeof(Record));
        Record record;
        std::memcpy(&record, bytes_.data(), sizeof record);
        return record;
    }

private:
    std::vector<std::byte> bytes_;
};

template <class Pointer>
std::uint64_t address(Pointer* pointer)
{
    return std::bit_cast<std::uint64_t>(pointer);
}

record_bytes& putTable(record_bytes& bytes, std::size_t offset, int first)
{
    return bytes.put<std::int32_t>(offset, first)
        .put<std::int16_t>(offset + 4, -1)
        .put<std::int32_t>(offset + 8, first + 1)
        .put<std::uint64_t>(offset + 16, 16u)
        .put<std::uint64_t>(offset + 24, 24u)
        .put<std::uint64_t>(offset + 32, 32u);
}

void expectTable(const ST_MVect& table, int first)
{
    EXPECT_EQ(table.nbcols, first);
    EXPECT_EQ(table.samenbrows, -1);
    EXPECT_EQ(table.nbrowsmax, first + 1);
    EXPECT_EQ(address(table.nbrows), 16u);
    EXPECT_EQ(address(table.Vectors), 24u);
    EXPECT_EQ(address(table.CLabels), 32u);
}

} // namespace

TEST(CallerRecords, HoldAColumn)
{
    const auto record = record_bytes(24)
                            .put<std::int32_t>(0, -5)
                            .put<std::uint64_t>(8, 8u)
                            .put<std::uint64_t>(16, 16u)
                            .as<ST_Vect>();
    EXPECT_EQ(record.Count, -5);
    EXPECT_EQ(address(record.Label), 8u);
    EXPECT_EQ(address(record.Vect), 16u);
}

TEST(CallerRecords, HoldATable)
{
    record_bytes bytes(40);
    expectTable(putTable(bytes, 0, 77).as<ST_MVect>(), 77);
}

TEST(CallerRecords, HoldCategories)
{
    record_bytes bytes(208);
    putTable(bytes, 40, 400);
    putTable(bytes, 80, 800);
    putTable(bytes, 120, 1200);
    const auto record = bytes.put<std::int32_t>(0, 1)
                            .put<double>(8, 8.5)
                            .put<std::int32_t>(16, 16)
                            .put<std::uint64_t>(24, 24u)
                            .put<std::int32_t>(32, 32)
                            .put<double>(160, 160.5)
                            .put<std::uint64_t>(168, 168u)
                            .put<std::int16_t>(176, 176)
                            .put<std::int16_t>(178, 178)
                            .put<std::int32_t>(180, 180)
                            .put<std::uint64_t>(184, 184u)
                            .put<std::int32_t>(192, 192)
                            .put<std::int16_t>(196, 196)
                            .put<std::int16_t>(198, 198)
                            .put<std::int16_t>(200, 200)
                            .put<std::int32_t>(204, 204)
                            .as<ST_QualiInfo>();
    EXPECT_EQ(record.Count, 1);
    EXPECT_EQ(record.SumW, 8.5);
    EXPECT_EQ(record.MaxNbCat, 16);
    EXPECT_EQ(address(record.NbCat), 24u);
    EXPECT_EQ(record.NbCatTotal, 32);
    expectTable(record.CatNames, 400);
    expectTable(record.CatFreq, 800);
    expectTable(record.CatFreqW, 1200);
    EXPECT_EQ(record.FreqMax, 160.5);
    EXPECT_EQ(address(record.VarLabels), 168u);
    EXPECT_EQ(record.IgnoreNewCategoryInPred, 176);
    EXPECT_EQ(record.withRecode, 178);
    EXPECT_EQ(record.codeStart, 180);
    EXPECT_EQ(address(record.Codes), 184u);
    EXPECT_EQ(record.nCodes, 192);
    EXPECT_EQ(record.withSort, 196);
    EXPECT_EQ(record.noWeights, 198);
    EXPECT_EQ(record.withLongLabels, 200);
    EXPECT_EQ(record.CheckType, 204);
}
