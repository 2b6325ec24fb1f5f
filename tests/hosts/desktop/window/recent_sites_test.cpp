#include "hosts/desktop/window/recent_sites.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>

namespace desktop {

namespace {

/// Settings in a file of their own.
struct RecentSites : testing::Test {
    TemporaryFolder folder;
    QString file = QString::fromStdString(folder / "console.ini");
    QSettings settings{file, QSettings::IniFormat};
};

TEST_F(RecentSites, BeginWithTheLatestAndNameEachOnce)
{
    for (const char* site : {"/a", "/b", "/a"}) rememberSite(settings, QString::fromLatin1(site));
    EXPECT_EQ((QStringList{"/a", "/b"}), recentSites(settings));
}

TEST_F(RecentSites, AreTheLatestEight)
{
    for (int number = 1; number <= 10; ++number)
        rememberSite(settings, QStringLiteral("/site%1").arg(number));
    EXPECT_EQ(8, recentSites(settings).size());
    EXPECT_EQ("/site10", recentSites(settings).front());
    EXPECT_EQ("/site3", recentSites(settings).back());
}

TEST_F(RecentSites, CanBeForgotten)
{
    for (const char* site : {"/a", "/b", "/c"}) rememberSite(settings, QString::fromLatin1(site));
    forgetSites(settings, {"/c", "/a", "/never"});
    EXPECT_EQ(QStringList{"/b"}, recentSites(settings));
}

TEST_F(RecentSites, AreNotWrittenAgainWhenTheSameSiteIsOpened)
{
    rememberSite(settings, QStringLiteral("/a"));
    settings.sync();
    ASSERT_TRUE(QFile::remove(file));

    rememberSite(settings, QStringLiteral("/a"));
    settings.sync();
    EXPECT_FALSE(QFile::exists(file));

    rememberSite(settings, QStringLiteral("/b"));
    settings.sync();
    EXPECT_TRUE(QFile::exists(file));
}

} // namespace

} // namespace desktop
