#include "cabmaker/cabinet_writer.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

struct Shape {
    const char* because;
    std::vector<std::pair<std::string, std::string>> files; // name, contents
    std::size_t folders = 1;
    Packing packing{};
};

PackedCabinet pack(const ScratchFolder& scratch, const Shape& shape, const std::string& cabinet)
{
    std::vector<CabinetSource> sources;
    for (const auto& [name, contents] : shape.files)
        sources.push_back({scratch.write("in/" + name, contents), name, name, "x.ddf:1: "});
    OutputFile target(scratch.at(cabinet));
    PackedCabinet packed = writeCabinet(sources, shape.packing, target);
    target.publish();
    return packed;
}

std::vector<Shape> shapes()
{
    std::vector<Shape> all;
    for (const std::size_t size : {0, 1, 32767, 32768, 32769, 65536, 65537})
        all.push_back({"sizes around a block", {{"a.csv", traceText(size)}}});
    all.push_back({"several MB need the history across blocks", {{"a.mdb", traceText(5'000'000)}}});
    all.push_back({"what doesn't deflate is stored", {{"a.bin", noise(3'000'001)}}});
    all.push_back({"zeros deflate to next to nothing", {{"a.mdb", std::string(1'000'000, '\0')}}});
    all.push_back({"what deflates and what doesn't take turns",
                   {{"a", noise(50'000)}, {"b", traceText(50'000)}, {"c", noise(50'000)}}});
    all.push_back({"an empty member may stand anywhere",
                   {{"1", ""}, {"2", traceText(40'000)}, {"3", ""}, {"4", "x"}, {"5", ""}}});
    Shape many{"members share blocks", {}};
    for (int i = 0; i < 500; ++i)
        many.files.emplace_back("m" + std::to_string(i),
                                traceText(static_cast<std::size_t>(i) * 7));
    all.push_back(many);
    all.push_back({"several folders, each with a history of its own",
                   {{"1", traceText(60'000)}, {"2", traceText(65'536)}, {"3", ""}, {"4", "x"}},
                   3,
                   {.blocksPerFolder = 2}});
    all.push_back({"uncompressed",
                   {{"a", traceText(100'000)}, {"b", noise(32'768)}},
                   1,
                   {.compression = Compression::none}});
    all.push_back({"names of other alphabets, blanks", {{"Ärger €.csv", "1"}, {"a b.csv", "2"}}});
    for (Shape& shape : all) shape.packing.threads = 2;
    return all;
}

} // namespace

TEST(WriteCabinet, IsReadByReadersThatOthersWrote)
{
    for (const Shape& shape : shapes()) {
        SCOPED_TRACE(shape.because);
        SCOPED_TRACE(shape.files.front().second.size());
        const ScratchFolder scratch;
        const PackedCabinet packed = pack(scratch, shape, "c.cab");

        EXPECT_EQ(shape.folders, packed.folders.size());
        EXPECT_EQ(packed.bytes, std::filesystem::file_size(scratch.path() / "c.cab"));
        for (const char* command :
             {"cabextract -t c.cab", "cabextract -q -d cabextract c.cab",
              "mkdir gcab; gcab -x -C gcab c.cab", "7z t c.cab", "7z x -o7z c.cab"}) {
            const CommandResult result = runCommand(scratch.path(), command);
            EXPECT_EQ(0, result.status) << command << "\n" << result.output << result.errors;
        }
        for (const auto& [name, contents] : shape.files)
            for (const char* reader : {"cabextract/", "gcab/", "7z/"})
                EXPECT_TRUE(scratch.read(reader + name) == contents) << reader << name;
    }
}

TEST(WriteCabinet, MakesTheSameBytesOnAnyNumberOfThreads)
{
    Shape shape{"", {{"a", traceText(3'000'000)}, {"b", noise(100'000)}, {"c", traceText(9)}}};
    const ScratchFolder scratch;
    pack(scratch, shape, "1.cab");
    const auto modified = std::filesystem::last_write_time(scratch.path() / "in/a");
    for (const unsigned threads : {2U, 3U, 8U}) {
        shape.packing.threads = threads;
        std::vector<CabinetSource> sources;
        for (const auto& [name, contents] : shape.files)
            sources.push_back({scratch.at("in/" + name), name, name, ""});
        OutputFile target(scratch.at("n.cab"));
        writeCabinet(sources, shape.packing, target);
        target.publish();
        EXPECT_TRUE(scratch.read("1.cab") == scratch.read("n.cab")) << threads;
    }
    EXPECT_EQ(modified, std::filesystem::last_write_time(scratch.path() / "in/a"));
}

TEST(WriteCabinet, KeepsTheHistoryAcrossBlocks)
{
    // Noise deflates only where a reader may look back into the block before.
    const std::string once = noise(30'000);
    const ScratchFolder scratch;
    const PackedCabinet packed = pack(scratch, {"", {{"a", once + once}}}, "c.cab");
    EXPECT_LT(packed.bytes, 33'000U);
    EXPECT_EQ(0, runCommand(scratch.path(), "cabextract -q -d x c.cab").status);
    EXPECT_TRUE(scratch.read("x/a") == once + once);
}

TEST(WriteCabinet, RefusesASourceThatDoesNotStayAsItIs)
{
    struct Case {
        const char* because;
        void (*change)(const ScratchFolder& scratch);
        int atCheckpoint; // one comes before each look at a file and before each read
        const char* message;
    };
    namespace fs = std::filesystem;
    const auto grow = [](const ScratchFolder& s) { fs::resize_file(s.at("in/a"), 4'000'000); };
    const auto shrink = [](const ScratchFolder& s) { fs::resize_file(s.at("in/a"), 10); };
    const auto vanish = [](const ScratchFolder& s) { fs::remove(s.at("in/a")); };
    const auto rewrite = [](const ScratchFolder& s) {
        s.write("in/a", std::string(3'000'000, 'r'));
        fs::last_write_time(s.at("in/a"), fs::file_time_type::clock::now() + std::chrono::hours(1));
    };
    const auto replace = [](const ScratchFolder& s) {
        const auto modified = fs::last_write_time(s.at("in/a"));
        s.write("in/new", std::string(3'000'000, 'n'));
        fs::last_write_time(s.at("in/new"), modified);
        fs::rename(s.at("in/new"), s.at("in/a"));
    };
    const auto becomeFolder = [](const ScratchFolder& s) {
        fs::remove(s.at("in/a"));
        fs::create_directory(s.at("in/a"));
    };
    const Case cases[] = {
        {"it is not there at all", vanish, 1, "x.ddf:1: cannot read a: No such file or directory"},
        {"it is a folder", becomeFolder, 1, "x.ddf:1: cannot read a: it is not a plain file"},
        {"it vanishes before it is opened", vanish, 2,
         "x.ddf:1: cannot read a: No such file or directory"},
        {"it vanishes while it is read", vanish, 4,
         "x.ddf:1: cannot read a: No such file or directory"},
        {"it grows", grow, 4, "x.ddf:1: a changed while it was being packed"},
        {"it shrinks", shrink, 4, "x.ddf:1: a changed while it was being packed"},
        {"it is written again in the same size", rewrite, 4,
         "x.ddf:1: a changed while it was being packed"},
        {"another file takes its name", replace, 4, "x.ddf:1: a changed while it was being packed"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const ScratchFolder scratch;
        int checkpoints = 0;
        Shape shape{"", {{"a", traceText(3'000'000)}, {"b", "b"}}};
        shape.packing.checkpoint = [&] {
            if (++checkpoints == c.atCheckpoint) c.change(scratch);
        };
        try {
            pack(scratch, shape, "c.cab");
            ADD_FAILURE() << "was packed";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(c.message, error.description());
        }
        for (const std::string& name : scratch.listing())
            EXPECT_TRUE(name.starts_with("in/")) << name << " was left behind";
    }
}

TEST(WriteCabinet, RefusesAMemberThatIsTooLargeBeforeReadingIt)
{
    const ScratchFolder scratch;
    scratch.write("in/huge", "");
    std::filesystem::resize_file(scratch.path() / "in/huge", 2'147'450'881);
    OutputFile target(scratch.at("c.cab"));
    try {
        writeCabinet({{scratch.at("in/huge"), "huge", "huge", "x.ddf:7: "}}, {}, target);
        FAIL() << "was packed";
    } catch (const RunTimeError& error) {
        EXPECT_EQ("x.ddf:7: a file in a cabinet can't be larger than 2147450880 bytes",
                  error.description());
    }
    EXPECT_EQ(0U, target.size());
}

} // namespace cabmaker
