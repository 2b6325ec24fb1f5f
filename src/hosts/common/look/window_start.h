#pragma once

#include <QSize>
#include <QString>

#include <optional>
#include <string>

/// Why no window opens: a text for the terminal and the exit status.
struct NoWindow {
    std::string text;
    int status = 0; ///< 0: the text was asked for; 2: wrong usage
};

/// What the programs with windows do before their first one.
namespace windowStart {

/// Whether a command line asks for a text alone, help or version, which needs no display.
bool asksForText(int argc, const char* const* argv);

/// The line that tells of wrong usage of a program.
NoWindow refusedUsage(const QString& program, const QString& sentence);

/// A size such as "1280x760"; nothing for another text.
std::optional<QSize> sizeOf(const QString& text);

/// Whether a text is the name of a look: "system", "light" or "dark".
bool isTheme(const QString& text);

/// Writes the text of a `NoWindow` where it belongs, and gives its status.
int say(const NoWindow& answer);

/// Writes a line of a program on standard error, and gives the status of a failure.
int refuse(const QString& program, const std::string& text);

/// Has a program that finds no display say so in a line of its own and end with 1, while this
/// lives. Qt would end the process with a core dump.
class DisplayWatch {
public:
    explicit DisplayWatch(const QString& program);
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch&) = delete;
    DisplayWatch& operator=(const DisplayWatch&) = delete;
};

} // namespace windowStart
