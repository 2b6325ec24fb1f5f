#include "cabmaker/cabinet_layout.h"

#include <gtest/gtest.h>

#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

std::uint32_t number(const std::vector<std::uint8_t>& bytes, std::size_t at, int size)
{
    std::uint32_t result = 0;
    for (int i = size - 1; i >= 0; --i)
        result = result << 8 | bytes.at(at + static_cast<unsigned>(i));
    return result;
}

MemberFacts member(const std::string& name, std::uint64_t bytes)
{
    return {.name = name, .bytes = bytes};
}

int errorOf(CabinetLayout& layout, const MemberFacts& facts)
{
    try {
        layout.add(facts);
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

} // namespace

TEST(CabinetLayout, WritesTheHeadFieldByField)
{
    CabinetLayout layout(Compression::mszip);
    layout.add({.name = "a.csv", .bytes = 40000, .modified = {.date = 0x3348, .time = 0x7AE3}});
    layout.add({.name = "é", .bytes = 1, .readOnly = true});

    ASSERT_EQ(36U + 8 + (16 + 6) + (16 + 3), layout.headSize());
    const std::uint32_t starts[] = {85};
    const auto head = layout.head(starts, 12345);

    ASSERT_EQ(layout.headSize(), head.size());
    EXPECT_EQ("MSCF", std::string(head.begin(), head.begin() + 4));
    struct Field {
        const char* what;
        std::size_t at;
        int size;
        std::uint32_t expected;
    };
    const Field fields[] = {
        {"size of the cabinet", 8, 4, 12345},
        {"place of the member records", 16, 4, 44},
        {"version", 24, 2, 0x0103},
        {"folders", 26, 2, 1},
        {"members", 28, 2, 2},
        {"flags", 30, 2, 0},
        {"first block of the folder", 36, 4, 85},
        {"blocks of the folder", 40, 2, 2},
        {"compression", 42, 2, 1},
        {"size of the first member", 44, 4, 40000},
        {"its place in the folder", 48, 4, 0},
        {"its folder", 52, 2, 0},
        {"its date", 54, 2, 0x3348},
        {"its time", 56, 2, 0x7AE3},
        {"its attributes: archive", 58, 2, 0x20},
        {"place of the second member", 66 + 4, 4, 40000},
        {"its attributes: archive, read-only, UTF-8 name", 66 + 14, 2, 0xA1},
    };
    for (const auto& field : fields) {
        SCOPED_TRACE(field.what);
        EXPECT_EQ(field.expected, number(head, field.at, field.size));
    }
    EXPECT_STREQ("a.csv", reinterpret_cast<const char*>(&head[60]));
    EXPECT_STREQ("é", reinterpret_cast<const char*>(&head[82]));
}

TEST(CabinetLayout, OpensANewFolderForAMemberThatWouldPassTheBlocksOfOne)
{
    CabinetLayout layout(Compression::mszip, 3);
    layout.add(member("a", 2 * blockSize));
    layout.add(member("fills the folder to the last byte", blockSize));
    layout.add(member("empty, so it still fits", 0));
    layout.add(member("b", 1));
    layout.add(member("c", 3 * blockSize));

    ASSERT_EQ(3U, layout.folders().size());
    EXPECT_EQ(3U, layout.folders()[0].members);
    EXPECT_EQ(3U, layout.folders()[0].blocks());
    EXPECT_EQ(3U, layout.folders()[1].firstMember);
    EXPECT_EQ(1U, layout.folders()[1].blocks());
    EXPECT_EQ(4U, layout.folders()[2].firstMember);
}

TEST(CabinetLayout, FillsAFolderToTheFormatsLimit)
{
    CabinetLayout layout(Compression::mszip);
    layout.add(member("largest", 2'147'450'880));
    layout.add(member("next", 1));
    ASSERT_EQ(2U, layout.folders().size());
    EXPECT_EQ(65535U, layout.folders()[0].blocks());
}

TEST(CabinetLayout, RefusesWhatTheFormatCannotHoldAndStaysAsItWas)
{
    CabinetLayout layout(Compression::mszip);
    layout.add(member("a", 10));
    const std::size_t headSize = layout.headSize();

    EXPECT_EQ(runTimeErrors::overflow, errorOf(layout, member("b", 2'147'450'881)));
    EXPECT_EQ(runTimeErrors::overflow, errorOf(layout, member("b", std::uint64_t{1} << 40)));
    EXPECT_EQ(runTimeErrors::invalidCall, errorOf(layout, member("", 1)));
    EXPECT_EQ(runTimeErrors::invalidCall, errorOf(layout, member(std::string(256, 'n'), 1)));

    EXPECT_EQ(headSize, layout.headSize());
    EXPECT_EQ(0, errorOf(layout, member(std::string(255, 'n'), 1)));
}

TEST(CabinetLayout, Holds65535MembersAndNoMore)
{
    CabinetLayout layout(Compression::mszip);
    for (int i = 0; i < 65535; ++i) layout.add(member(std::to_string(i), 1));
    EXPECT_EQ(runTimeErrors::overflow, errorOf(layout, member("one more", 1)));
}

} // namespace cabmaker
