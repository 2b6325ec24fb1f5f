#pragma once

#include <csignal>
#include <string>
#include <vector>

#include <sys/types.h>

/// orvandiag on a terminal of its own, with results and messages together. It is ended with this.
class OnTerminal {
public:
    /// Begins in `folder`, on a terminal of so many columns.
    OnTerminal(std::vector<std::string> words, const std::string& folder,
               unsigned short columns = 200);
    ~OnTerminal();
    OnTerminal(const OnTerminal&) = delete;
    OnTerminal& operator=(const OnTerminal&) = delete;

    /// What it has written, once a text is in it, or once it has ended.
    const std::string& writtenWith(const std::string& text);

    /// Types what a terminal turns into signals and keys: "\x03" is Ctrl-C,
    /// "\x04" at the beginning of a line the end of the input.
    void type(const std::string& keys) const;

    /// All that it wrote, once it has ended: the bytes as they are, without the progress line's own
    /// sequence that begins it anew.
    std::string end();

    /// The status that it ended with, after `end`; 128 and more for a signal.
    int status() const { return status_; }

private:
    bool readMore();

    pid_t child_ = -1;
    int terminal_ = -1;
    int status_ = -1;
    std::string written_;
};

/// What orvandiag writes on a terminal of so many columns until it ends by itself.
std::string onTerminal(std::vector<std::string> words, const std::string& folder,
                       unsigned short columns = 200);
