#include "backends/cabinet/mspack_cabinets.h"

#include "cabmaker/cabinet_maker.h"
#include "platform/stored_bytes.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class BytesInMemory final : public StoredBytes {
public:
    explicit BytesInMemory(std::string bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t size() const override { return bytes_.size(); }
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override
    {
        if (at >= failsFrom) throw RunTimeError(runTimeErrors::deviceIo);
        return at < bytes_.size() ? bytes_.copy(into, size, at) : 0;
    }

    std::uint64_t failsFrom = ~std::uint64_t{0};

private:
    std::string bytes_;
};

/// Text that packs to some fifth of its size.
std::string someText(std::size_t size, unsigned seed)
{
    std::string text;
    for (unsigned state = seed; text.size() < size;) {
        state = state * 1'664'525 + 1'013'904'223;
        text += "line " + std::to_string(state >> 8) + "\r\n";
    }
    text.resize(size);
    return text;
}

/// A cabinet as the tool's own maker packs files of a folder.
std::string madeOf(const TemporaryFolder& folder, const std::vector<std::string>& names)
{
    std::string directives = ".Option EXPLICIT\r\n.Set CabinetNameTemplate=..\\made.cab\r\n"
                             ".Set Cabinet=on\r\n.Set Compress=on\r\n.Set MaxDiskSize=CDROM\r\n";
    for (const auto& name : names) directives += "\"" + folder / name + "\"\r\n";
    cabmaker::makeCabinet(folder.write("made.ddf", directives), {folder.path(), "", 1});
    return folder.read("made.cab");
}

std::unique_ptr<Cabinet> opened(std::string bytes)
{
    return MspackCabinets().open(std::make_shared<BytesInMemory>(std::move(bytes)));
}

std::string bytesOf(Cabinet& cabinet, std::size_t member)
{
    std::string bytes;
    cabinet.read(member, [&](std::string_view piece) { bytes += piece; });
    return bytes;
}

std::vector<std::string> namesIn(const Cabinet& cabinet)
{
    std::vector<std::string> names;
    for (const auto& member : cabinet.members()) names.push_back(member.name);
    return names;
}

struct ThreeFiles {
    TemporaryFolder folder;
    std::vector<std::string> texts = {someText(300'000, 1), "", someText(90'000, 2)};
    std::string bytes;

    ThreeFiles()
    {
        const std::vector<std::string> names = {"a.mdb", "empty.csv", "z.csv"};
        for (std::size_t file = 0; file < names.size(); ++file)
            folder.write(names[file], texts[file]);
        bytes = madeOf(folder, names);
    }
};

TEST(MspackCabinets, GiveEachMemberOfACabinetAsItWas)
{
    const ThreeFiles files;
    const auto cabinet = opened(files.bytes);
    EXPECT_THAT(namesIn(*cabinet), ElementsAre("a.mdb", "empty.csv", "z.csv"));
    for (const std::size_t member : {0u, 1u, 2u, 1u, 0u})
        EXPECT_TRUE(files.texts[member] == bytesOf(*cabinet, member)) << member;
    EXPECT_EQ(files.texts[2].size(), cabinet->members()[2].size);
    EXPECT_GT(cabinet->members()[0].year, 2000);
}

TEST(MspackCabinets, ReadWhatAnotherMakerPacked)
{
    const TemporaryFolder folder;
    const std::string one = someText(200'000, 3);
    const std::string other = someText(40'000, 4);
    const std::string command = "cd " + folder.path() + " && gcab -cz made.cab one.txt other.txt";
    folder.write("one.txt", one);
    folder.write("other.txt", other);
    ASSERT_EQ(0, std::system(command.c_str()));
    const auto cabinet = opened(folder.read("made.cab"));
    EXPECT_THAT(namesIn(*cabinet), ElementsAre("one.txt", "other.txt"));
    EXPECT_TRUE(one == bytesOf(*cabinet, 0));
    EXPECT_TRUE(other == bytesOf(*cabinet, 1));
}

TEST(MspackCabinets, TellHowMuchHasToBeUnpackedForAMember)
{
    const ThreeFiles files;
    const auto cabinet = opened(files.bytes);
    EXPECT_EQ(390'000u, cabinet->effort(2)) << "all that lies in front of it";
    bytesOf(*cabinet, 0);
    EXPECT_EQ(90'000u, cabinet->effort(2)) << "from where the reading stands";
    EXPECT_EQ(300'000u, cabinet->effort(0)) << "from the beginning again";
}

TEST(MspackCabinets, HandOutWhatLiesInFrontOfADamage)
{
    const ThreeFiles files;
    std::string damaged = files.bytes;
    damaged[damaged.size() / 2] ^= 0x55;
    const auto cabinet = opened(damaged);
    std::string got;
    const std::string said =
        errorTextOf([&] { cabinet->read(0, [&](std::string_view piece) { got += piece; }); });
    EXPECT_THAT(said, HasSubstr("damaged"));
    EXPECT_GT(got.size(), 32'000u);
    EXPECT_LT(got.size(), 300'000u);
    EXPECT_TRUE(files.texts[0].starts_with(got));
    EXPECT_EQ("", bytesOf(*cabinet, 1)) << "and the next one can be tried";
}

TEST(MspackCabinets, TellThatACabinetWasCut)
{
    const ThreeFiles files;
    const auto cabinet = opened(files.bytes.substr(0, files.bytes.size() / 2));
    std::string got;
    const auto read = [&] { cabinet->read(0, [&](std::string_view piece) { got += piece; }); };
    EXPECT_EQ("The cabinet ends too soon.", errorTextOf(read));
    EXPECT_FALSE(got.empty());
}

TEST(MspackCabinets, RefuseWhatIsNoCabinet)
{
    const ThreeFiles files;
    const MspackCabinets cabinets;
    EXPECT_TRUE(cabinets.isCabinet(files.bytes.substr(0, 64)));
    EXPECT_FALSE(cabinets.isCabinet("MSCF is how this log begins"));
    EXPECT_FALSE(cabinets.isCabinet(""));
    for (const std::string& bytes : {std::string("15:23:07:123,a"), std::string(),
                                     std::string("MSCF"), files.bytes.substr(0, 40)})
        EXPECT_EQ(321, errorOf([&] { opened(bytes); })) << bytes.size();
}

TEST(MspackCabinets, EndWhenTheReceiverHasEnough)
{
    const ThreeFiles files;
    const auto cabinet = opened(files.bytes);
    std::size_t got = 0;
    const auto read = [&] {
        cabinet->read(0, [&](std::string_view piece) {
            got += piece.size();
            if (got > 50'000) throw RunTimeError(runTimeErrors::diskFull, "It is full.");
        });
    };
    EXPECT_EQ("It is full.", errorTextOf(read));
    EXPECT_LT(got, 120'000u);
    EXPECT_TRUE(files.texts[2] == bytesOf(*cabinet, 2)) << "the others can still be read";
}

TEST(MspackCabinets, RaiseWhatReadingTheFileRaises)
{
    const ThreeFiles files;
    const auto bytes = std::make_shared<BytesInMemory>(files.bytes);
    const auto cabinet = MspackCabinets().open(bytes);
    bytes->failsFrom = 0;
    EXPECT_EQ(57, errorOf([&] { bytesOf(*cabinet, 0); }));
    EXPECT_EQ(57, errorOf([&] { MspackCabinets().open(bytes); }));
}

} // namespace
