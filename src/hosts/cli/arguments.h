#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace cli {

enum class Values;

/// An option or an argument of a command, and what its help says of it. Copies are the same one; it
/// lives as long as the command line.
class Argument {
public:
    Argument() = default;
    Argument(CLI::App* command, CLI::Option* option) : command_(command), option_(option) {}

    /// What stands for the value in the help, such as "NAME".
    Argument& called(const std::string& valueName);

    /// What its value is one of, which completion offers.
    Argument& completes(Values values);

    /// The command makes no sense without it.
    Argument& required();

    /// The help shows what the variable holds now as what is taken where nothing is given.
    Argument& withDefault();

    /// Takes one value each time that it is given: what follows it is not its own.
    Argument& oneAtATime();

    /// Refuses other words, and names these in the help. They match in any case, and the variable
    /// gets the one that is given here.
    Argument& oneOf(const std::vector<std::string>& words);

    /// Refuses other numbers, and names the bounds in the help.
    Argument& within(std::uint64_t lowest, std::uint64_t highest);

    /// Refuses numbers that are not from 1 to the largest of 32 bits.
    Argument& positive();

    /// Refuses what is no whole number of 64 bits.
    Argument& notNegative();

    /// Refuses a word for which `reason` gives a text: why.
    Argument& refusedBy(const std::function<std::string(const std::string& word)>& reason);

    /// Whether it stands on the command line.
    bool given() const;

private:
    CLI::App* command_ = nullptr;
    CLI::Option* option_ = nullptr;
};

/// What a command takes: declared here, so that no command knows the library that reads the command
/// line. Values are written into the variables when it is read; these must outlive it. Copies are
/// the same.
class Arguments {
public:
    Arguments() = default;
    explicit Arguments(CLI::App* app) : app_(app) {}

    /// A name with dashes is that of an option; others are shown for a value in its place.
    Argument add(const std::string& name, std::string& value, const std::string& description);
    Argument add(const std::string& name, std::int32_t& value, const std::string& description);
    Argument add(const std::string& name, std::uint64_t& value, const std::string& description);
    /// One that may be given again and again.
    Argument add(const std::string& name, std::vector<std::string>& values,
                 const std::string& description);
    Argument addFlag(const std::string& name, bool& value, const std::string& description);

    /// A command below this one.
    Arguments addCommand(const std::string& name, const std::string& summary);

    /// One of the commands below has to be given.
    void requireCommand();

    /// Whether the command stands on the command line.
    bool given() const;

    /// Whether an option of the command does, by its name.
    bool given(const std::string& option) const;

    /// The whole command line that the command is one of.
    const CLI::App& program() const;

private:
    CLI::App* app_ = nullptr;
};

} // namespace cli
