#include "cabmaker/cabinet_set.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

using Files = std::vector<std::pair<std::string, std::string>>; // name, contents

struct Set {
    const char* because;
    Files files;
    std::uint64_t largestCabinet;
    Packing packing{};
};

CabinetHead::Neighbour called(std::size_t number)
{
    return {"c" + std::to_string(number) + ".cab", "Disk " + std::to_string(number)};
}

/// Packs files into c1.cab, c2.cab and so on, and gives their number.
std::size_t pack(const ScratchFolder& scratch, const Set& set)
{
    std::vector<CabinetSource> sources;
    for (const auto& [name, contents] : set.files)
        sources.push_back({scratch.write("in/" + name, contents), name, name, ""});
    OutputFile whole(scratch.at("whole.cab"));
    Packing packing = set.packing;
    packing.folders = FolderUse::own;
    const PackedCabinet packed = writeCabinet(sources, packing, whole);
    const SetWish wish{.largestCabinet = set.largestCabinet, .called = called};
    const auto plan = planSet(packed, wish);
    for (std::size_t number = 1; number <= plan.size(); ++number) {
        OutputFile part(scratch.at(called(number).cabinet));
        writeSetPart(packed, whole, set.packing.compression, plan, number, wish, part);
        part.publish();
    }
    return plan.size();
}

std::string failure(const Files& files, std::uint64_t largestCabinet)
{
    const ScratchFolder scratch;
    try {
        pack(scratch, {"", files, largestCabinet});
        return "(none)";
    } catch (const RunTimeError& error) {
        return error.description();
    }
}

Files manyFiles(int count, std::size_t bytes)
{
    Files files;
    for (int i = 0; i < count; ++i)
        files.emplace_back("m" + std::to_string(i), noise(bytes, static_cast<std::uint32_t>(i)));
    return files;
}

std::vector<Set> sets()
{
    std::vector<Set> all;
    for (const std::uint64_t largest : {10'000, 32'000, 65'000, 100'000, 250'000})
        all.push_back({"a member over several cabinets",
                       {{"a.csv", traceText(70'000)}, {"b.mdb", noise(300'001)}, {"c", "x"}},
                       largest});
    for (std::uint64_t largest = 33'000; largest < 33'120; ++largest)
        all.push_back(
            {"every place of a cut near the end of a block", {{"a", noise(80'000)}}, largest});
    all.push_back({"many members", manyFiles(200, 1'000), 60'000});
    all.push_back({"empty members before, within and behind a cut",
                   {{"1", ""}, {"2", noise(50'000)}, {"3", ""}, {"4", noise(50'000)}, {"5", ""}},
                   40'000});
    all.push_back({"a member that ends where its cabinet does",
                   {{"1", noise(60'000)}, {"2", noise(65'536)}, {"3", noise(10)}, {"4", "x"}},
                   60'150});
    all.push_back({"uncompressed",
                   {{"a", traceText(100'000)}, {"b", noise(32'768)}},
                   40'000,
                   {.compression = Compression::none}});
    all.push_back({"names of other alphabets",
                   {{"Ärger €.csv", noise(50'000)}, {"a b.csv", noise(9'000)}},
                   30'000});
    return all;
}

} // namespace

TEST(CabinetSet, IsReadByReadersThatOthersWrote)
{
    for (const Set& set : sets()) {
        SCOPED_TRACE(set.because);
        SCOPED_TRACE(set.largestCabinet);
        const ScratchFolder scratch;
        const std::size_t cabinets = pack(scratch, set);
        EXPECT_GT(cabinets, 1U);
        for (std::size_t number = 1; number <= cabinets; ++number)
            EXPECT_LE(std::filesystem::file_size(scratch.at(called(number).cabinet)),
                      set.largestCabinet);
        for (const char* command : {"cabextract -t c1.cab", "cabextract -q -d cabextract c1.cab",
                                    "7z t c1.cab", "7z x -o7z c1.cab"}) {
            const CommandResult result = runCommand(scratch.path(), command);
            EXPECT_EQ(0, result.status) << command << "\n" << result.output << result.errors;
            EXPECT_EQ("", result.errors) << command;
        }
        for (const auto& [name, contents] : set.files)
            for (const char* reader : {"cabextract/", "7z/"})
                EXPECT_TRUE(scratch.read(reader + name) == contents) << reader << name;
    }
}

TEST(CabinetSet, IsReadFromAnyOfItsCabinets)
{
    const Set set{"", {{"a", noise(100'000)}, {"b", noise(100'000, 2)}}, 60'000};
    const ScratchFolder scratch;
    ASSERT_EQ(4U, pack(scratch, set));
    EXPECT_EQ(0, runCommand(scratch.path(), "cabextract -q -d x c3.cab").status);
    for (const auto& [name, contents] : set.files)
        EXPECT_TRUE(scratch.read("x/" + name) == contents) << name;
}

TEST(CabinetSet, FillsEachCabinetButTheLast)
{
    const ScratchFolder scratch;
    const std::size_t cabinets = pack(scratch, {"", {{"a", noise(500'000)}}, 50'000});
    EXPECT_EQ(11U, cabinets);
    for (std::size_t number = 1; number < cabinets; ++number)
        EXPECT_GE(std::filesystem::file_size(scratch.at(called(number).cabinet)), 49'985U);
}

TEST(CabinetSet, RefusesCabinetsThatCannotHoldTheFiles)
{
    EXPECT_EQ("the files can't be divided among cabinets of 60 bytes",
              failure({{"a", noise(1'000)}}, 60));
    EXPECT_EQ("the files can't be divided among cabinets of 100 bytes",
              failure({{"a", noise(3'000'000)}}, 100))
        << "there are too many";
    EXPECT_EQ("the files can't be divided among cabinets of 100 bytes",
              failure({{"a", ""}, {"b", ""}, {"c", ""}, {"d", ""}}, 100));
}

} // namespace cabmaker
