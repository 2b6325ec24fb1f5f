#include "hosts/common/health/examined_database.h"

#include "runtime/run_time_error.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

/// A connection that lets each question wait, and then refuses it.
class SlowConnection final : public DatabaseConnection {
public:
    SlowConnection(std::chrono::milliseconds wait, bool breaks, int& asked)
        : wait_(wait), breaks_(breaks), asked_(asked)
    {}

    int state() const override { return breaks_ && asked_ > 0 ? 0 : 1; }
    void open(const std::string&, const std::string&, const std::string&) override {}
    int errorCount() const override { return 0; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string&, CursorKind,
                                                     LockKind) override
    {
        ++asked_;
        std::this_thread::sleep_for(wait_);
        throw RunTimeError(databaseErrors::statementRefused);
    }
    std::unique_ptr<DatabaseCommand> createCommand() override { return nullptr; }

private:
    std::chrono::milliseconds wait_;
    bool breaks_;
    int& asked_;
};

class SlowDatabase final : public ServerDatabase {
public:
    explicit SlowDatabase(std::chrono::milliseconds wait, bool breaks = false)
        : wait_(wait), breaks_(breaks)
    {}

    void openFor(ServerUse) override {}
    std::unique_ptr<DatabaseConnection> anotherToLook() const override
    {
        return std::make_unique<SlowConnection>(wait_, breaks_, asked);
    }
    int state() const override { return 0; }
    void open(const std::string&, const std::string&, const std::string&) override {}
    int errorCount() const override { return 0; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string&, CursorKind,
                                                     LockKind) override
    {
        return nullptr;
    }
    std::unique_ptr<DatabaseCommand> createCommand() override { return nullptr; }

    mutable int asked = 0;

private:
    std::chrono::milliseconds wait_;
    bool breaks_;
};

TEST(ExaminedDatabase, IsAskedNoMoreOnceAnAnswerDidNotComeInTime)
{
    SlowDatabase silent(ExaminedDatabase::patience + std::chrono::milliseconds(100));
    ExaminedDatabase database(silent);
    EXPECT_FALSE(database.isOpen());
    database.open();
    EXPECT_TRUE(database.isOpen());
    EXPECT_NE(0, errorOf([&] { database.rows("SELECT 1", {}); }));
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(1, silent.asked);
}

TEST(ExaminedDatabase, IsAskedNoMoreOnceItsConnectionBroke)
{
    SlowDatabase breaking(std::chrono::milliseconds(0), true);
    ExaminedDatabase database(breaking);
    database.open();
    EXPECT_TRUE(database.isOpen());
    EXPECT_NE(0, errorOf([&] { database.rows("SELECT 1", {}); }));
    EXPECT_FALSE(database.isOpen());
}

TEST(ExaminedDatabase, IsAskedOnWhereItRefusedAtOnce)
{
    SlowDatabase refusing(std::chrono::milliseconds(0));
    ExaminedDatabase database(refusing);
    database.open();
    EXPECT_NE(0, errorOf([&] { database.rows("SELECT 1", {}); }));
    EXPECT_TRUE(database.isOpen());
}

} // namespace
