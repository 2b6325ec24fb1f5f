#include "runtime/required_object.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace {

template <typename Variable>
int errorOf(const Variable& empty)
{
    try {
        required(empty);
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(RequiredObject, IsTheOneThatTheVariableHolds)
{
    std::string object;
    EXPECT_EQ(&object, &required(&object));
    const auto owner = std::make_unique<std::string>();
    EXPECT_EQ(owner.get(), &required(owner));
    const auto sharer = std::make_shared<std::string>();
    EXPECT_EQ(sharer.get(), &required(sharer));
    const std::optional<std::string> holder = "held";
    EXPECT_EQ(&*holder, &required(holder));
}

TEST(RequiredObject, RaisesWhereTheVariableHoldsNone)
{
    EXPECT_EQ(91, errorOf(static_cast<std::string*>(nullptr)));
    EXPECT_EQ(91, errorOf(std::unique_ptr<std::string>()));
    EXPECT_EQ(91, errorOf(std::shared_ptr<std::string>()));
    EXPECT_EQ(91, errorOf(std::optional<std::string>()));
}

TEST(RequiredObject, RaisesTheErrorThatItIsToldTo)
{
    try {
        required(std::unique_ptr<std::string>(), runTimeErrors::objectRequired);
        FAIL() << "raised nothing";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(424, error.number());
    }
}

} // namespace
