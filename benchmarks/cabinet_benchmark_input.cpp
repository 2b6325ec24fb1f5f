// Writes bytes as a trace database has them: pages of 4 KiB, taking turns between rows of short
// texts and numbers and the long texts that those rows point at.
//
//     cabinet_benchmark_input MEGABYTES FILE

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>

namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t pageHeadSize = 14;

const std::array<const char*, 6> processes = {"RoCallMgr", "RoLogMgr",  "RoMsgStore",
                                              "RoNotify",  "RoDirSync", "RoDbProxy"};
const std::array<const char*, 10> components = {
    "CallControl", "MediaStream",  "Conversation", "Arbiter", "Routing",
    "Directory",   "MessageStore", "Notifier",     "Queue",   "Licence"};
const std::array<const char*, 12> sentences = {"entering state ",
                                               "leaving state ",
                                               "event received, code ",
                                               "port allocated: ",
                                               "message submitted, size ",
                                               "lookup finished, rows ",
                                               "timer started, milliseconds ",
                                               "retry number ",
                                               "session opened for extension ",
                                               "session closed, reason ",
                                               "lock waited for ",
                                               "buffer released at offset "};

class TraceRows {
public:
    std::string shortRow()
    {
        clock_ += pick(40);
        const std::string process = processes[pick(processes.size())];
        component_ = components[pick(components.size())];
        level_ = pick(20);
        std::string row("\x0b\x00", 2);
        row += number(1000 + pick(300), 4) + number(level_, 2) + number(0, 2);
        row += number(longTexts_++, 4);
        row += text(clockText()) + text(process) + text("Line" + std::to_string(pick(400)));
        row += text(component_) + text(std::to_string(pick(96)));
        row += text(component_ + "_" + process + "_" + std::to_string(level_));
        for (int column = 11; column > 0; --column)
            row += number(static_cast<std::uint32_t>(row.size()) - 9 * column, 2);
        return row;
    }

    std::string longText()
    {
        std::string trace = "[Thread " + std::to_string(1000 + pick(60)) + "] C";
        trace += component_ + "::Handle" + components[pick(components.size())] + "() ";
        for (std::uint32_t parts = 1 + pick(3); parts > 0; --parts) {
            trace += sentences[pick(sentences.size())];
            trace += std::to_string(pick(pick(4) == 0 ? 1'000'000 : 200)) + "; ";
        }
        if (pick(3) == 0) trace += "call id " + identifier();
        return text(trace);
    }

private:
    std::uint32_t pick(std::size_t count) { return static_cast<std::uint32_t>(random_() % count); }

    static std::string text(const std::string& characters) { return "\xff\xfe" + characters; }

    static std::string number(std::uint32_t value, int bytes)
    {
        std::string result;
        for (; bytes > 0; --bytes, value >>= 8) result += static_cast<char>(value);
        return result;
    }

    std::string clockText() const
    {
        std::array<char, 40> result{};
        std::snprintf(result.data(), result.size(), "10/8/2005 %02u:%02u:%02u:%03u",
                      clock_ / 3'600'000 % 24, clock_ / 60'000 % 60, clock_ / 1000 % 60,
                      clock_ % 1000);
        return result.data();
    }

    std::string identifier()
    {
        std::array<char, 20> result{};
        std::snprintf(result.data(), result.size(), "%08X", static_cast<unsigned>(random_()));
        return result.data();
    }

    std::mt19937 random_{20051008};
    std::uint32_t clock_ = 0;
    std::uint32_t level_ = 0;
    std::uint32_t longTexts_ = 0;
    std::string component_ = components[0];
};

// Rows fill a page from its end, and a table of their places grows from its head.
template <typename NextRow>
std::string page(const char* owner, NextRow&& nextRow)
{
    std::string result(pageSize, '\0');
    result[0] = 1;
    result[1] = 1;
    result.replace(4, 4, owner);
    std::size_t rows = 0;
    std::size_t end = pageSize;
    for (std::string row = nextRow(); end > row.size() + pageHeadSize + 2 * (rows + 1);
         row = nextRow()) {
        end -= row.size();
        result.replace(end, row.size(), row);
        result[pageHeadSize + 2 * rows] = static_cast<char>(end);
        result[pageHeadSize + 2 * rows + 1] = static_cast<char>(end >> 8);
        ++rows;
    }
    result[12] = static_cast<char>(rows);
    return result;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::fputs("usage: cabinet_benchmark_input MEGABYTES FILE\n", stderr);
        return 2;
    }
    const long long pages = std::atoll(arguments[1]) * 1'000'000 / static_cast<int>(pageSize);
    std::ofstream file(arguments[2], std::ios::binary);
    TraceRows rows;
    for (long long written = 0; written < pages && file; ++written)
        file << (written % 2 == 0 ? page("Trac", [&] { return rows.shortRow(); })
                                  : page("LVAL", [&] { return rows.longText(); }));
    file.close();
    return file ? 0 : 1;
}
