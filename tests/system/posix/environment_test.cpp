#include "system/environment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>
#include <vector>

namespace {

/// Variables that a test sets, which are afterwards as they were.
class Environment : public testing::Test {
protected:
    void TearDown() override
    {
        for (; !before_.empty(); before_.pop_back()) {
            const auto& [name, value] = before_.back();
            if (value)
                ::setenv(name, value->c_str(), 1);
            else
                ::unsetenv(name);
        }
    }

    void set(const char* name, const char* value)
    {
        before_.emplace_back(name, environmentVariable(name));
        if (value)
            ::setenv(name, value, 1);
        else
            ::unsetenv(name);
    }

private:
    std::vector<std::pair<const char*, std::optional<std::string>>> before_;
};

TEST_F(Environment, NamesTheFoldersOfTheUser)
{
    set("HOME", "/home/me");
    set("XDG_DATA_HOME", nullptr);
    set("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ("/home/me", userFolder());
    EXPECT_EQ("/home/me/.local/share", userDataFolder());
    EXPECT_EQ("/home/me/.config", userSettingsFolder());
    set("XDG_DATA_HOME", "/srv/data");
    set("XDG_CONFIG_HOME", "/srv/settings");
    EXPECT_EQ("/srv/data", userDataFolder());
    EXPECT_EQ("/srv/settings", userSettingsFolder());
}

TEST_F(Environment, NamesNoFolderBelowThePresentOne)
{
    for (const char* home : {static_cast<const char*>(nullptr), "", "me", "./me"})
        for (const char* chosen : {static_cast<const char*>(nullptr), "", "data", "../data"}) {
            set("HOME", home);
            set("XDG_DATA_HOME", chosen);
            set("XDG_CONFIG_HOME", chosen);
            EXPECT_EQ("", userFolder());
            EXPECT_EQ("", userDataFolder());
            EXPECT_EQ("", userSettingsFolder());
        }
    set("HOME", "/home/me");
    EXPECT_EQ("/home/me/.local/share", userDataFolder()) << "a relative one counts for nothing";
}

TEST_F(Environment, TellsTheLocaleOfMessagesAndTheVariableThatNamesIt)
{
    set("LC_ALL", nullptr);
    set("LC_MESSAGES", nullptr);
    set("LANG", nullptr);
    EXPECT_EQ("", messageLocale().name);
    EXPECT_EQ("", messageLocale().variable);
    set("LANG", "it_IT.UTF-8");
    EXPECT_EQ("it_IT.UTF-8", messageLocale().name);
    EXPECT_EQ("LANG", messageLocale().variable);
    set("LC_MESSAGES", "fr_FR.UTF-8");
    EXPECT_EQ("LC_MESSAGES", messageLocale().variable);
    set("LC_ALL", "");
    EXPECT_EQ("LC_MESSAGES", messageLocale().variable) << "an empty one says nothing";
    set("LC_ALL", "C");
    EXPECT_EQ("C", messageLocale().name);
    EXPECT_EQ("LC_ALL", messageLocale().variable);
}

} // namespace
