#include "backends/windows/events/event_record.h"

#include "backends/windows/event_bytes.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(EventRecord, TellsWhatARecordHolds)
{
    const std::string bytes = eventBytes(
        {.seconds = 5, .id = 0x80002714, .type = 2, .inserts = {u"caf\u00E9", u"", u"b"}});
    const auto event = parseEventRecord(bytes + "what follows");
    ASSERT_TRUE(event);
    EXPECT_EQ(bytes.size(), event->length);
    EXPECT_EQ(5, event->seconds);
    EXPECT_EQ(0x80002714u, event->id);
    EXPECT_EQ(10004u, event->number());
    EXPECT_EQ(2, event->type);
    EXPECT_EQ("OrvanDiagnosticTool_MC", event->source);
    EXPECT_EQ("VOICE01", event->computer);
    EXPECT_EQ((std::vector<std::string>{"caf\xC3\xA9", "", "b"}), event->inserts);
}

TEST(EventRecord, ACutRecordIsNone)
{
    const std::string bytes = eventBytes({.inserts = {u"a"}});
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(parseEventRecord(bytes.substr(0, length))) << length;
}

TEST(EventRecord, NoBytesLeadOutOfTheRecord)
{
    std::mt19937 random(7);
    const std::string sound = eventBytes({.inserts = {u"one", u"two"}});
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes = sound;
        for (int changes = 0; changes < 4; ++changes)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        const auto event = parseEventRecord(bytes);
        if (!event) continue;
        EXPECT_LE(event->length, bytes.size());
        EXPECT_LE(event->inserts.size(), bytes.size());
    }
}

} // namespace
