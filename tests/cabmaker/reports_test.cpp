#include "cabmaker/reports.h"

#include <gtest/gtest.h>

namespace cabmaker {

namespace {

PackedCabinet sample()
{
    PackedCabinet cabinet;
    cabinet.members.push_back(
        {.name = "Ärger.csv", .bytes = 40000, .modified = {.date = 0x3348, .time = 0x7AE3}});
    cabinet.members.push_back({.name = "b.mdb", .bytes = 60000});
    cabinet.folders.push_back({.firstMember = 0, .members = 2, .bytes = 100000});
    cabinet.bytes = 12345;
    return cabinet;
}

} // namespace

TEST(SetupInf, NamesDiskCabinetAndMembers)
{
    const PackedCabinet cabinet = sample();
    EXPECT_EQ("[disks]\r\n"
              "; number,folder\r\n"
              "1,\"disk1\"\r\n"
              "\r\n"
              "[cabinets]\r\n"
              "; number,disk,file\r\n"
              "1,1,\"x.cab\"\r\n"
              "\r\n"
              "[files]\r\n"
              "; cabinet,file,bytes,date,time\r\n"
              "1,\"Ärger.csv\",40000,2005-10-08,15:23:06\r\n"
              "1,\"b.mdb\",60000,1980-01-01,00:00:00\r\n",
              setupInf({.cabinets = {{"x.cab", "disk1", 0}}, .bytes = 12345, .packed = cabinet}));
}

TEST(SetupInf, NamesTheCabinetOfASetInWhichAMemberBegins)
{
    const PackedCabinet cabinet = sample();
    const std::string text = setupInf(
        {.cabinets = {{"x.cab", "disk1", 0}, {"x_2.cab", "disk2", 1}, {"x_3.cab", "disk3", 2}},
         .bytes = 1,
         .packed = cabinet});
    EXPECT_NE(std::string::npos, text.find("1,\"disk1\"\r\n2,\"disk2\"\r\n3,\"disk3\"\r\n"));
    EXPECT_NE(std::string::npos, text.find("1,1,\"x.cab\"\r\n2,2,\"x_2.cab\"\r\n3,3,"));
    EXPECT_NE(std::string::npos, text.find("1,\"Ärger.csv\"")) << text;
    EXPECT_NE(std::string::npos, text.find("2,\"b.mdb\"")) << text;
}

TEST(SetupRpt, TellsWhatWentInAndCameOut)
{
    const PackedCabinet cabinet = sample();
    EXPECT_EQ("Cabinet         x.cab\r\n"
              "Compression     MSZIP\r\n"
              "Files           2\r\n"
              "Folders         1\r\n"
              "Blocks          4\r\n"
              "Bytes before    100000\r\n"
              "Bytes after     12345\r\n"
              "After/before    12.3 %\r\n",
              setupRpt({.cabinets = {{"x.cab", "disk1", 0}}, .bytes = 12345, .packed = cabinet}));
}

TEST(SetupRpt, HasNoShareOfNothing)
{
    const PackedCabinet cabinet;
    const std::string text = setupRpt(
        {.cabinets = {{"x.cab", "", 0}}, .compression = Compression::none, .packed = cabinet});
    EXPECT_NE(std::string::npos, text.find("Compression     none\r\n"));
    EXPECT_NE(std::string::npos, text.find("After/before    -\r\n"));
}

} // namespace cabmaker
