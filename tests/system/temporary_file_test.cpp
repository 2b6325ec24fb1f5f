#include "system/temporary_file.h"

#include "support/error_of.h"
#include "system/environment.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

TEST(MakeTemporaryFile, GivesAFileOfItsOwnToBeWrittenAndRead)
{
    const FileDescriptor one = makeTemporaryFile();
    const FileDescriptor other = makeTemporaryFile();
    writeAll(one, "some bytes");
    std::string bytes(20, '\0');
    bytes.resize(readAt(one, bytes.data(), bytes.size(), 0));
    EXPECT_EQ("some bytes", bytes);
    EXPECT_EQ(0, factsOf(other).size);
    EXPECT_EQ(FileKind::file, factsOf(one).kind);
}

TEST(MakeTemporaryFile, HasRoomOnItsDisk)
{
    const FileSystemRoom room = roomOf(makeTemporaryFile());
    EXPECT_LT(0, room.free);
    EXPECT_LE(room.free, room.total);
}

#ifndef _WIN32
TEST(MakeTemporaryFile, LeavesNoName)
{
    EXPECT_EQ(0u, factsOf(makeTemporaryFile()).hardLinks);
}

TEST(MakeTemporaryFile, MakesNoneElsewhereWhereItsFolderIsNotThere)
{
    const auto before = environmentVariable("TMPDIR");
    setenv("TMPDIR", "/no/such/folder", 1);
    EXPECT_EQ(76, errorOf([] { makeTemporaryFile(); }));
    EXPECT_EQ(76, errorOf([] { makeTemporaryFolder("orvan-"); }));
    if (before)
        setenv("TMPDIR", before->c_str(), 1);
    else
        unsetenv("TMPDIR");
}
#endif

} // namespace
