#include "support/temporary_folder.h"
#include "system/file_bytes.h"
#include "system/machine_names.h"
#include "system/root_folder.h"
#include "system/temporary_folder.h"
#include "system/whole_file.h"
#include "system/windows/windows_calls.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

TEST(WindowsNames, WhatTheSystemWouldTakeForAnotherNameIsRefused)
{
    const TemporaryFolder box;
    box.write("file.txt", "x");
    const RootFolder root(box.path());
    for (const char* name : {"file.txt.", "file.txt ", "file.txt::$DATA", "file.txt:more", "CON",
                             "nul.txt", "Com1", "lpt9.log", "conin$"}) {
        EXPECT_EQ(70, errorOf([&] { root.openFile(name, forReading, 53); })) << name;
        EXPECT_EQ(70, errorOf([&] {
                      root.openFile(name, {FileAccess::write, Creation::ifMissing}, 53);
                  }))
            << name;
        EXPECT_EQ(70, errorOf([&] { root.makeFolder(name); })) << name;
        EXPECT_EQ(70, errorOf([&] { ReplacementFile(root, name); })) << name;
    }
    for (const char* name : {"console.txt", "com10", "a.b", ".new-1-1"}) {
        root.makeFolder(name);
        EXPECT_TRUE(root.isFolder(name)) << name;
    }
}

TEST(WindowsNames, ALongPathIsReached)
{
    const TemporaryFolder box;
    const RootFolder root(box.path());
    const std::string name(100, 'x');
    const std::string path = name + "/" + name + "/" + name + "/file.txt";
    root.makeFolders(folderPathOf(path));
    writeAll(root.openFile(path, {FileAccess::write, Creation::always}, 53), "long");
    EXPECT_EQ("long", readMachineFile(box / path, 53));
    EXPECT_EQ(4, factsOf(box / path)->size);
    root.removeFolder(name);
}

TEST(WindowsNames, ADriveMayStandBelowTheMachinesTop)
{
    EXPECT_EQ(L"\\\\?\\C:\\x\\y", machinePathOf("/C:/x/y"));
    EXPECT_EQ(L"\\\\?\\C:\\x\\y", machinePathOf("C:\\x/y"));
    EXPECT_EQ(L"\\\\?\\C:\\", machinePathOf("/C:"));
}

TEST(WindowsErrors, AreTheNumbersThatEveryMachineHas)
{
    EXPECT_EQ(ENOENT, errnoOf(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(EACCES, errnoOf(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(ENOSPC, errnoOf(ERROR_HANDLE_DISK_FULL));
    EXPECT_EQ(EEXIST, errnoOf(ERROR_ALREADY_EXISTS));
    EXPECT_EQ(ENOMEM, errnoOf(ERROR_OUTOFMEMORY));
    EXPECT_EQ(EIO, errnoOf(ERROR_CRC));
}

TEST(WindowsNames, TheMachineAndTheUserHaveOne)
{
    EXPECT_FALSE(machineName().empty());
    EXPECT_FALSE(loginName().empty());
}

TEST(WindowsNames, ATemporaryFolderIsMade)
{
    const std::string path = makeTemporaryFolder("orvan-tried-");
    EXPECT_NE(std::string::npos, path.find("orvan-tried-"));
    EXPECT_EQ(FileKind::folder, factsOf(path)->kind);
    RootFolder(folderPathOf(path)).removeEmptyFolder(lastNameOf(path));
}

} // namespace
