#include "shell/snapin_identity.h"

#include "shell/shell_fixture.h"

TEST_F(ShellTest, SnapInIdentityIsWhatTheSnapInGivesTheConsole)
{
    tool.languages.userDefault = 1036;
    tool.languages.with("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll",
                        {{1013, "Syst\xC3\xA8mes"}, {1016, "Diagnostics"}});
    tool.module.major = 4;
    tool.module.minor = 3;
    tool.module.build = 10;

    const SnapInIdentity alone = snapinIdentity(tool.languages, tool.module);

    snapIn.SnapIn_Initialize();
    EXPECT_EQ(console.identity().provider, alone.provider);
    EXPECT_EQ(console.identity().description, alone.description);
    EXPECT_EQ(console.identity().version, alone.version);
    EXPECT_EQ("Syst\xC3\xA8mes", alone.provider);
    EXPECT_EQ(" 4.3 Build 10", alone.version);
    EXPECT_EQ("", alone.helpFileName);
}

TEST_F(ShellTest, SnapInIdentityTouchesNothingOfTheTool)
{
    snapinIdentity(tool.languages, tool.module);

    EXPECT_TRUE(tool.logLines().empty());
    EXPECT_FALSE(tool.registry.keyExists(registryRoot::localMachine, toolKey));
    EXPECT_EQ(tool.languages.loads().size(), 1u);
}
