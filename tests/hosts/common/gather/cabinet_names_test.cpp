#include "hosts/common/gather/cabinet_names.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A cabinet's head that says it has `count` members, and those.
std::string headOf(int count, const std::vector<std::string>& names)
{
    std::string head(36, '\0');
    head.replace(0, 4, "MSCF");
    head[16] = 36;
    head[28] = static_cast<char>(count);
    for (const auto& name : names) head += std::string(16, '\1') + name + '\0';
    return head;
}

TEST(NamesInCabinet, AreThoseOfItsHead)
{
    const TemporaryFolder folder;
    EXPECT_THAT(namesInCabinet(folder.write("a.cab", headOf(2, {"System.csv", "b.mdb"}) + "data")),
                ElementsAre("System.csv", "b.mdb"));
}

TEST(NamesInCabinet, EndWhereItIsDamaged)
{
    const TemporaryFolder folder;
    const std::string whole = headOf(2, {"System.csv", "b.mdb"});
    EXPECT_THAT(namesInCabinet(folder.write("a.cab", whole.substr(0, whole.size() - 3))),
                ElementsAre("System.csv"));
    EXPECT_THAT(namesInCabinet(folder.write("b.cab", headOf(200, {"System.csv"}))),
                ElementsAre("System.csv"));
    EXPECT_THAT(namesInCabinet(folder.write("c.cab", headOf(1, {std::string(300, 'x')}))),
                IsEmpty());
    std::string far = whole;
    far[19] = '\x7f';
    EXPECT_THAT(namesInCabinet(folder.write("d.cab", far)), IsEmpty());
}

TEST(NamesInCabinet, AreNoneOfWhatIsNoCabinet)
{
    const TemporaryFolder folder;
    EXPECT_THAT(namesInCabinet(folder / "missing.cab"), IsEmpty());
    EXPECT_THAT(namesInCabinet(folder.write("empty.cab")), IsEmpty());
    EXPECT_THAT(namesInCabinet(folder.write("a.cab", std::string(100, 'x'))), IsEmpty());
}

} // namespace
