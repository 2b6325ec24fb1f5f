#include "backends/jet/schema/schema.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace jet {

namespace {

constexpr std::size_t longestName = 64;
constexpr int longestText = 255;

/// The words of a line, up to a remark.
std::vector<std::string_view> wordsOf(std::string_view line)
{
    constexpr std::string_view blanks = " \t\r";
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t start = line.find_first_not_of(blanks);
        if (start == std::string_view::npos) return words;
        line.remove_prefix(start);
        const std::size_t size = std::min(line.find_first_of(blanks), line.size());
        words.push_back(line.substr(0, size));
        line.remove_prefix(size);
    }
}

/// A whole number and nothing else.
std::optional<int> numberOf(std::string_view word)
{
    int number = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    if (read.ec != std::errc{} || read.ptr != word.data() + word.size()) return std::nullopt;
    return number;
}

bool isName(std::string_view word)
{
    const auto isNamePart = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    };
    return !word.empty() && word.size() <= longestName &&
           std::all_of(word.begin(), word.end(), isNamePart);
}

class Parser {
public:
    Schema parse(std::string_view text)
    {
        while (!text.empty()) {
            ++line_;
            const std::size_t end = std::min(text.find('\n'), text.size());
            const auto words = wordsOf(text.substr(0, end));
            if (!words.empty()) takeLine(words);
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        return std::move(schema_);
    }

private:
    using Words = std::vector<std::string_view>;

    [[noreturn]] void fail(const std::string& why) const
    {
        throw RunTimeError(runTimeErrors::invalidCall,
                           "Schema line " + std::to_string(line_) + ": " + why);
    }

    void takeLine(const Words& words)
    {
        if (words[0] == "created" && words.size() == 3) {
            schema_.created = momentOf(std::string(words[1]) + " " + std::string(words[2]));
        } else if (words[0] == "table" && words.size() == 2) {
            if (!isName(words[1])) fail("a table's name is letters, digits and _");
            schema_.tables.push_back({std::string(words[1]), {}});
        } else if (words[0] == "column" && words.size() >= 3) {
            if (schema_.tables.empty()) fail("a column before the first table");
            schema_.tables.back().columns.push_back(columnOf(words));
        } else {
            fail("'" + std::string(words[0]) + "' is no item, or lacks a part");
        }
    }

    Date momentOf(const std::string& text) const
    {
        try {
            return parseDate(text);
        } catch (const RunTimeError&) {
            fail("'" + text + "' is no moment such as 2024-01-02 03:04:05");
        }
    }

    Column columnOf(const Words& words)
    {
        if (!isName(words[1])) fail("a column's name is letters, digits and _");
        Column column;
        column.name = words[1];
        std::size_t next = 3;
        if (words[2] == "text") {
            const auto characters = words.size() > 3 ? numberOf(words[next++]) : std::nullopt;
            if (!characters || *characters < 1 || *characters > longestText)
                fail("a text column has 1 to 255 characters");
            column.type = ColumnType::text;
            column.length = static_cast<std::uint16_t>(*characters * 2);
        } else if (words[2] == "memo") {
            column.type = ColumnType::memo;
        } else if (words[2] == "integer" || words[2] == "long") {
            column.type = words[2] == "long" ? ColumnType::longInteger : ColumnType::integer;
            column.length = words[2] == "long" ? 4 : 2;
            column.fixed = true;
        } else {
            fail("'" + std::string(words[2]) + "' is no type");
        }
        column.compressed = column.isText();
        takeRules(words, next, column);
        return column;
    }

    void takeRules(const Words& words, std::size_t next, Column& column)
    {
        while (next < words.size()) {
            if (words[next] == "no-zero-length" && column.isText()) {
                column.allowZeroLength = false;
                ++next;
            } else if (words[next] == "required") {
                column.required = true;
                ++next;
            } else if (words[next] == "default" && next + 1 < words.size()) {
                column.defaultValue = words[next + 1];
                next += 2;
            } else {
                fail("'" + std::string(words[next]) + "' is no rule of this column");
            }
        }
    }

    Schema schema_;
    int line_ = 0;
};

} // namespace

Schema parseSchema(std::string_view text)
{
    return Parser{}.parse(text);
}

} // namespace jet
