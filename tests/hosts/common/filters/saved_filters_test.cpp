#include "hosts/common/filters/saved_filters.h"

#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <QSettings>

namespace {

using timeline::Column;

class SavedFiltersTest : public testing::Test {
protected:
    TemporaryFolder folder;
    SavedFilters filters{QString::fromStdString(folder / "filters")};
};

TEST_F(SavedFiltersTest, HasNoneAtFirst)
{
    EXPECT_TRUE(filters.names().isEmpty());
}

TEST_F(SavedFiltersTest, KeepsFiltersByTheirNames)
{
    RowFilter filter;
    filter.showOnly(Column::component, "CallFlow");
    filters.save("Calls, \u00fcber all", filter);
    filters.save("Another", {});
    EXPECT_EQ(QStringList({"Another", "Calls, \u00fcber all"}), filters.names());
    const RowFilter read = SavedFilters::read(filters.fileOf("Calls, \u00fcber all"));
    EXPECT_FALSE(read.shows(Column::component, "Store"));
    filters.save("Another", filter);
    EXPECT_FALSE(SavedFilters::read(filters.fileOf("Another")).passesAll());
}

TEST_F(SavedFiltersTest, AreTheSameForProgramsWhoseSettingsLieTogether)
{
    const auto beside = [&](const char* name) {
        return SavedFilters::besideSettings(
            QSettings(QString::fromStdString(folder / name), QSettings::IniFormat));
    };
    beside("one.conf").save("Calls", {});
    EXPECT_EQ(QStringList({"Calls"}), beside("another.conf").names());
}

TEST_F(SavedFiltersTest, TakesNoNameThatWouldLeadElsewhere)
{
    for (const char* name : {"", "../x", "a/b", ".hidden", "a\\b", "a\nb", "C:x"})
        EXPECT_THROW(filters.save(QString::fromLatin1(name), {}), RunTimeError) << name;
    EXPECT_TRUE(filters.names().isEmpty());
}

TEST_F(SavedFiltersTest, RefusesAFileThatIsNone)
{
    const auto read = [&](const std::string& bytes) {
        return SavedFilters::read(QString::fromStdString(folder.write("x.json", bytes)));
    };
    EXPECT_THROW(read("no filter"), RunTimeError);
    EXPECT_THROW(read("[]"), RunTimeError);
    EXPECT_THROW(read(R"({"texts": 3})"), RunTimeError);
    EXPECT_THROW(SavedFilters::read(QString::fromStdString(folder / "none.json")), RunTimeError);
}

} // namespace
