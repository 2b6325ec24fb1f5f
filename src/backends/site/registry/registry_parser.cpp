#include "backends/site/registry/registry_file.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "text/utf8.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

constexpr std::string_view header = "Windows Registry Editor Version 5.00";

std::optional<unsigned> hexDigit(char c)
{
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    return {};
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

class Parser {
public:
    RegistryTree parse(std::string_view text)
    {
        text_ = text;
        checkBytes();
        const auto first = text_.substr(0, text_.find('\n'));
        if (!first.empty() && first.back() != '\r' && first.size() < text_.size())
            tree_.lineEnd = "\n";
        if (!equalIgnoringCase(restOfLine(), header)) fail("not \"" + std::string(header) + "\"");
        nextLine();
        while (place_ < text_.size()) parseLine();
        tree_.closingComments = std::move(comments_);
        return std::move(tree_);
    }

private:
    [[noreturn]] void fail(const std::string& what) const { failAt(place_, what); }

    [[noreturn]] void failAt(std::size_t position, const std::string& what) const
    {
        const auto before = text_.substr(0, std::min(position, text_.size()));
        const auto line = 1 + std::count(before.begin(), before.end(), '\n');
        throw RunTimeError(runTimeErrors::invalidFileFormat,
                           "registry.reg line " + std::to_string(line) + ": " + what);
    }

    void checkBytes() const
    {
        for (std::size_t position = 0; position < text_.size();) {
            const std::size_t length = utf8CharacterLength(text_.substr(position));
            if (length == 0) failAt(position, "not UTF-8");
            if (text_[position] == '\0') failAt(position, "a zero byte");
            position += length;
        }
    }

    bool atLineEnd() const
    {
        return place_ >= text_.size() || text_[place_] == '\n' ||
               text_.substr(place_, 2) == "\r\n" ||
               (text_[place_] == '\r' && place_ + 1 == text_.size());
    }

    char here() const { return place_ < text_.size() ? text_[place_] : '\n'; }

    void skipBlanks()
    {
        while (place_ < text_.size() && isBlank(text_[place_])) ++place_;
    }

    /// The line from here on, without blanks at its ends.
    std::string_view restOfLine() const
    {
        auto line = text_.substr(place_, text_.find('\n', place_) - place_);
        while (!line.empty() && (isBlank(line.back()) || line.back() == '\r'))
            line.remove_suffix(1);
        while (!line.empty() && isBlank(line.front())) line.remove_prefix(1);
        return line;
    }

    void nextLine()
    {
        const auto end = text_.find('\n', place_);
        place_ = end == std::string_view::npos ? text_.size() : end + 1;
    }

    void parseLine()
    {
        skipBlanks();
        const auto line = restOfLine();
        if (line.empty()) {
        } else if (line.front() == ';') {
            comments_.emplace_back(line);
        } else if (line.front() == '[') {
            parseKey(line);
        } else if (line.front() == '"' || line.front() == '@') {
            parseValue();
        } else {
            fail("neither a key nor a value");
        }
        nextLine();
    }

    void parseKey(std::string_view line)
    {
        if (line.size() < 2 || line.back() != ']') fail("a key without \"]\"");
        auto path = line.substr(1, line.size() - 2);
        const bool removed = !path.empty() && path.front() == '-';
        if (removed) path.remove_prefix(1);
        if (!RegistryTree::isPath(path)) fail("no key of a known hive");
        if (removed) {
            tree_.remove(path);
            key_ = nullptr;
            removed_ = true;
            return;
        }
        key_ = &tree_.append(path);
        std::move(comments_.begin(), comments_.end(), std::back_inserter(key_->comments));
        comments_.clear();
    }

    void parseValue()
    {
        const std::size_t start = place_;
        if (key_ == nullptr) fail(removed_ ? "a value of a removed key" : "a value before any key");
        RegistryEntry entry;
        if (here() == '@') {
            ++place_;
        } else {
            entry.name = parseQuoted(start);
            if (!RegistryTree::isValueName(entry.name)) failAt(start, "no name of a value");
        }
        skipBlanks();
        if (here() != '=') failAt(start, "a value without \"=\"");
        ++place_;
        skipBlanks();
        const std::size_t data = place_;
        const bool kept = parseData(entry, start);
        skipBlanks();
        if (!atLineEnd() && here() != ';') failAt(start, "more than a value");
        if (!kept) {
            key_->removeValue(entry.name);
            return;
        }
        auto source = text_.substr(data, place_ - data);
        if (here() == ';') source = text_.substr(data, place_ - data + restOfLine().size());
        entry.source = source;
        entry.comments = std::move(comments_);
        comments_.clear();
        key_->setValue(std::move(entry));
    }

    /// A text between quotation marks, which may hold line ends.
    std::string parseQuoted(std::size_t start)
    {
        std::string result;
        for (++place_; place_ < text_.size(); ++place_) {
            char c = text_[place_];
            if (c == '"') {
                ++place_;
                return result;
            }
            if (c == '\\') {
                c = ++place_ < text_.size() ? text_[place_] : '\0';
                if (c != '\\' && c != '"') failAt(start, "a backslash in a text is written as two");
            }
            result += c;
        }
        failAt(start, "a text without its closing quotation mark");
    }

    bool take(std::string_view word)
    {
        if (!equalIgnoringCase(text_.substr(place_, word.size()), word)) return false;
        place_ += word.size();
        return true;
    }

    /// False for a value that is to be removed.
    bool parseData(RegistryEntry& entry, std::size_t start)
    {
        if (here() == '-') {
            ++place_;
            return false;
        }
        auto& value = entry.value;
        if (here() == '"') {
            const auto text = parseQuoted(start);
            value = normalised({registryType::text, {text.begin(), text.end()}});
        } else if (take("dword:")) {
            value.type = registryType::number;
            const auto number = parseHexNumber(start);
            for (unsigned shift = 0; shift < 32; shift += 8)
                value.bytes.push_back(static_cast<std::uint8_t>(number >> shift & 0xFF));
        } else if (take("hex:")) {
            value = {registryType::bytes, parseBytes(start)};
        } else if (take("hex(")) {
            value.type = static_cast<int>(parseHexNumber(start));
            if (!take("):")) failAt(start, "a type without \"):\"");
            value.bytes = parseBytes(start);
            decodeText(value);
        } else {
            failAt(start, "a value of no known form");
        }
        return true;
    }

    /// Texts are UTF-16 in the file.
    static void decodeText(RegistryValue& value)
    {
        if (!isTextType(value.type)) return;
        const std::string bytes(value.bytes.begin(), value.bytes.end());
        const auto text = utf8OfUtf16(bytes);
        value.bytes.assign(text.begin(), text.end());
        value = normalised(std::move(value));
    }

    std::uint32_t parseHexNumber(std::size_t start)
    {
        std::uint32_t number = 0;
        int digits = 0;
        for (; const auto digit = hexDigit(here()); ++place_, ++digits) {
            if (digits == 8) failAt(start, "a number of more than 8 digits");
            number = number << 4 | *digit;
        }
        if (digits == 0) failAt(start, "a number without digits");
        return number;
    }

    /// Passes over blanks and over a backslash that carries the bytes on to the next line.
    void skipContinuations(std::size_t start)
    {
        for (skipBlanks(); here() == '\\'; skipBlanks()) {
            ++place_;
            skipBlanks();
            if (!atLineEnd()) failAt(start, "a backslash within a line of bytes");
            nextLine();
        }
    }

    std::vector<std::uint8_t> parseBytes(std::size_t start)
    {
        std::vector<std::uint8_t> bytes;
        skipContinuations(start);
        while (const auto digit = hexDigit(here())) {
            unsigned byte = *digit;
            ++place_;
            if (const auto second = hexDigit(here())) {
                byte = byte << 4 | *second;
                ++place_;
            }
            bytes.push_back(static_cast<std::uint8_t>(byte));
            skipContinuations(start);
            if (here() != ',') return bytes;
            ++place_;
            skipContinuations(start);
            if (!hexDigit(here())) failAt(start, "a comma without a byte behind it");
        }
        return bytes;
    }

    std::string_view text_;
    std::size_t place_ = 0;
    RegistryTree tree_;
    RegistryKey* key_ = nullptr;
    bool removed_ = false;
    std::vector<std::string> comments_;
};

} // namespace

RegistryTree parseRegistryFile(std::string_view bytes)
{
    const auto mark = bytes.substr(0, 2);
    if (mark == "\xFF\xFE" || mark == "\xFE\xFF")
        return Parser().parse(utf8OfUtf16(bytes.substr(2), mark == "\xFE\xFF"));
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
    return Parser().parse(bytes);
}
