#include "hosts/cli/manual/shell_line.h"

#include "system/environment.h"

#include <algorithm>
#include <cctype>

namespace cli {

namespace {

bool isNameLetter(char letter)
{
    return letter == '_' || std::isalnum(static_cast<unsigned char>(letter)) != 0;
}

/// "NAME=value" before a command.
bool isAssignment(const std::string& word)
{
    const auto sign = word.find('=');
    return sign != std::string::npos && sign > 0 &&
           std::isdigit(static_cast<unsigned char>(word.front())) == 0 &&
           std::all_of(word.begin(), word.begin() + static_cast<std::ptrdiff_t>(sign),
                       isNameLetter);
}

class LineReader {
public:
    LineReader(std::string_view line, std::size_t replacedFrom)
        : line_(line), replacedFrom_(replacedFrom)
    {}

    ShellLine read()
    {
        for (at_ = 0; at_ < line_.size(); ++at_) {
            noteReplaced();
            take(line_[at_]);
        }
        noteReplaced();
        result_.last = word_;
        auto& words = result_.words;
        words.erase(words.begin(), std::find_if_not(words.begin(), words.end(), isAssignment));
        return std::move(result_);
    }

private:
    void noteReplaced()
    {
        if (at_ != replacedFrom_) return;
        result_.quote = quote_;
        result_.kept = word_;
    }

    void take(char letter)
    {
        if (quote_ == Quote::single)
            takeQuoted(letter, '\'');
        else if (quote_ == Quote::twofold && letter != '\\' && letter != '$')
            takeQuoted(letter, '"');
        else if (letter == '\\')
            takeEscaped();
        else if (letter == '$')
            takeVariable();
        else
            takePlain(letter);
    }

    void takeQuoted(char letter, char end)
    {
        if (letter == end)
            quote_ = Quote::none;
        else
            word_ += letter;
    }

    void takeEscaped()
    {
        begun_ = true;
        if (at_ + 1 >= line_.size()) return;
        const char next = line_[++at_];
        const bool stays =
            quote_ == Quote::twofold && std::string_view("\"\\$`").find(next) == std::string::npos;
        if (stays) word_ += '\\';
        word_ += next;
    }

    /// A variable that is not there is nothing; what is no variable stays as it is.
    void takeVariable()
    {
        begun_ = true;
        const bool braced = line_.substr(at_ + 1, 1) == "{";
        const std::size_t from = at_ + (braced ? 2 : 1);
        std::size_t end = from;
        while (end < line_.size() && isNameLetter(line_[end])) ++end;
        if (end == from || (braced && line_.substr(end, 1) != "}")) {
            word_ += '$';
            return;
        }
        const std::string name(line_.substr(from, end - from));
        word_ += environmentVariable(name.c_str()).value_or("");
        at_ = braced ? end : end - 1;
    }

    void takePlain(char letter)
    {
        if (letter == ' ' || letter == '\t' || letter == '\n') {
            finishWord();
        } else if (letter == ';' || letter == '|' || letter == '&') {
            word_.clear();
            begun_ = false;
            result_.words.clear();
        } else if (letter == '\'' || letter == '"') {
            begun_ = true;
            quote_ = letter == '"' ? Quote::twofold : Quote::single;
        } else if (letter == '~' && !begun_ && startsFolder()) {
            begun_ = true;
            word_ += userFolder();
        } else {
            begun_ = true;
            word_ += letter;
        }
    }

    /// Whether ~ is all of a word so far, or of a path's first part.
    bool startsFolder() const
    {
        const auto next = line_.substr(at_ + 1, 1);
        return next.empty() || next == "/" || next == " ";
    }

    void finishWord()
    {
        if (begun_) result_.words.push_back(word_);
        word_.clear();
        begun_ = false;
    }

    std::string_view line_;
    std::size_t replacedFrom_;
    std::size_t at_ = 0;
    Quote quote_ = Quote::none;
    std::string word_;
    bool begun_ = false; ///< there is a word, which may still be empty
    ShellLine result_;
};

} // namespace

ShellLine readShellLine(std::string_view line, std::string_view replaced)
{
    return LineReader(line, line.size() - std::min(line.size(), replaced.size())).read();
}

std::string quotedForBash(std::string_view text, Quote quote)
{
    std::string quoted;
    for (const char letter : text) {
        const bool plain = static_cast<unsigned char>(letter) >= 0x80 ||
                           std::isalnum(static_cast<unsigned char>(letter)) != 0;
        if (quote == Quote::single) {
            quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
        } else if (quote == Quote::twofold) {
            // Between these quotes nothing keeps ! from calling up an older line.
            if (letter == '!') {
                quoted += "\"'!'\"";
                continue;
            }
            if (std::string_view("\"\\$`").find(letter) != std::string::npos) quoted += '\\';
            quoted += letter;
        } else {
            if (!plain && std::string_view("_-./:=@%+,").find(letter) == std::string::npos)
                quoted += '\\';
            quoted += letter;
        }
    }
    return quoted;
}

} // namespace cli
