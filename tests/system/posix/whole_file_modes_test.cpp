#include "system/whole_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(ReplacementFile, AllowsWhatAnotherFileAllows)
{
    const TemporaryFolder box;
    box.write("target", "old");
    const RootFolder root(box.path());
    fs::permissions(box / "target", fs::perms(0640));
    ReplacementFile file(root, "other", OthersMay::read);
    file.resemble(root.openFile("target", forReading, 53));
    file.commit(false);
    EXPECT_EQ(fs::perms(0640), fs::status(box / "other").permissions());
}

} // namespace
