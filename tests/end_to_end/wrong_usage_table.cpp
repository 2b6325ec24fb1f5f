#include "end_to_end/wrong_usage_table.h"

#include "support/places.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

/// The words of a line: blanks stand between them, and in quotes in them.
std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isInWord = false;
    for (const char character : line) {
        if (character == ' ' && !isQuoted) {
            isInWord = false;
            continue;
        }
        if (!isInWord) words.emplace_back();
        isInWord = true;
        if (character == '"')
            isQuoted = !isQuoted;
        else
            words.back() += character;
    }
    EXPECT_FALSE(isQuoted) << line;
    return words;
}

} // namespace

std::vector<WrongCall> wrongCalls()
{
    std::ifstream table(std::string(checkout::folder) + "/tests/end_to_end/wrong_usage.txt");
    EXPECT_TRUE(table);
    std::vector<WrongCall> calls;
    bool isNext = true; // whether a call is to come, and no message
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line.front() == '#') continue;
        if (line.rfind("orvandiag", 0) == 0) {
            EXPECT_TRUE(isNext) << line << " stands where a message should";
            calls.push_back({line, wordsOf(line), 0, {}});
            calls.back().words.erase(calls.back().words.begin());
            isNext = false;
        } else if (!calls.empty() && line.front() == '|') {
            calls.back().message += "\n" + (line.size() > 2 ? line.substr(2) : "");
        } else if (calls.empty() || line.size() < 3 || line[1] != ' ') {
            ADD_FAILURE() << "neither a call nor a message: " << line;
        } else {
            EXPECT_FALSE(isNext) << line << " is the message of no call";
            calls.back().status = line.front() - '0';
            calls.back().message = line.substr(2);
            isNext = true;
        }
    }
    EXPECT_TRUE(isNext) << "the last call has no message";
    return calls;
}
