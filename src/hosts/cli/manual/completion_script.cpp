#include "hosts/cli/manual/completion_script.h"

#include <map>
#include <set>

namespace cli {

namespace {

/// How the value of an option is completed.
struct Completions {
    std::set<std::string> withValue;                         ///< options that take a value
    std::set<std::string> folders;                           ///< those whose value is a folder
    std::map<std::string, std::vector<std::string>> choices; ///< those whose value is a known word
};

std::string joined(const std::set<std::string>& words)
{
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : "|") + word;
    return text;
}

std::string listed(const std::vector<std::string>& words)
{
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

void collect(const DescribedCommand& command, Completions& all)
{
    for (const auto& option : command.options) {
        if (option.isArgument() || option.argument.empty()) continue;
        for (const auto& name : option.names) {
            all.withValue.insert(name);
            if (option.argument == "DIR") all.folders.insert(name);
            if (!option.choices.empty()) all.choices[name] = option.choices;
        }
    }
    for (const auto& below : command.commands) collect(below, all);
}

void addPaths(const DescribedCommand& command, std::set<std::string>& paths)
{
    for (const auto& below : command.commands) {
        paths.insert("\" " + below.path + "\"");
        addPaths(below, paths);
    }
}

/// What may come next behind a command: its own words, and the options that all commands take.
void addCases(const DescribedCommand& command, const std::vector<std::string>& global,
              std::string& script)
{
    std::vector<std::string> words;
    bool folder = false;
    for (const auto& below : command.commands)
        words.push_back(below.path.substr(below.path.rfind(' ') + 1));
    for (const auto& option : command.options) {
        words.insert(words.end(), option.names.begin(), option.names.end());
        if (option.isArgument() && option.argument == "DIR") folder = true;
    }
    if (!command.path.empty()) words.insert(words.end(), global.begin(), global.end());
    script += "        \"" + (command.path.empty() ? "" : " " + command.path) + "\") words=\"" +
              listed(words) + "\"";
    script += folder ? "; folders=yes ;;\n" : " ;;\n";
    for (const auto& below : command.commands) addCases(below, global, script);
}

constexpr const char* beginning =
    R"(# bash completion of orvandiag. Try it: source <(orvandiag completion bash)
_orvandiag()
{
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
    local command= words= folders= index=1
    COMPREPLY=()
    while ((index < COMP_CWORD)); do
)";

constexpr const char* ending =
    R"(    [[ $folders && $word != -* ]] && { _orvandiag_folders "$word"; return; }
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
_orvandiag_folders()
{
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$1")
}
complete -F _orvandiag orvandiag
)";

} // namespace

std::string bashCompletion(const DescribedCommand& program)
{
    Completions values;
    collect(program, values);
    std::set<std::string> paths;
    addPaths(program, paths);
    std::vector<std::string> global;
    for (const auto& option : program.options)
        for (const auto& name : option.names)
            if (name != "--help" && name != "-h" && name != "--version") global.push_back(name);

    std::string script = beginning;
    script += "        case ${COMP_WORDS[index]} in\n"
              "        " +
              joined(values.withValue) +
              ") ((index++)) ;;\n"
              "        -*) ;;\n"
              "        *) case \"$command ${COMP_WORDS[index]}\" in\n"
              "            " +
              joined(paths) +
              ") command+=\" ${COMP_WORDS[index]}\" ;;\n"
              "            esac ;;\n"
              "        esac\n"
              "        ((index++))\n"
              "    done\n"
              "    case $previous in\n"
              "        " +
              joined(values.folders) + ") _orvandiag_folders \"$word\"; return ;;\n";
    for (const auto& [name, words] : values.choices)
        script += "        " + name + ") mapfile -t COMPREPLY < <(compgen -W \"" + listed(words) +
                  "\" -- \"$word\"); return ;;\n";
    script += "        " + joined(values.withValue) +
              ") return ;;\n    esac\n"
              "    case $command in\n";
    addCases(program, global, script);
    script += "    esac\n";
    return script + ending;
}

} // namespace cli
