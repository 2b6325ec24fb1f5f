// How long a server is waited for.
#include "backends/odbc/odbc_database.h"
#include "backends/odbc/session.h"
#include "backends/odbc/silent_server.h"
#include "support/error_of.h"

#include <gmock/gmock.h>

#include <chrono>
#include <string>

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

TEST(OdbcDatabase, GivesUpOnAServerThatLetsItInAndThenSaysNothing)
{
    const SilentServer silent;
    OdbcDatabase database(
        "Driver=PostgreSQL Unicode;Servername=127.0.0.1;Port=" + std::to_string(silent.port()) +
            ";Database=a;UID=a;PWD=b;SSLmode=disable",
        OdbcPatience{.login = 1s, .statement = 1s});
    EXPECT_THAT(errorTextOf([&] { database.open("", "", ""); }), HasSubstr("says nothing"));
    EXPECT_EQ(0, database.state());
}

} // namespace
