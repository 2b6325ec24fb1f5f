#pragma once

namespace cli {

/// A variable of the environment, or a file, and what it does for the program.
struct Surrounding {
    const char* name;
    const char* meaning;
};

constexpr Surrounding variables[] = {
    {"ORVAN_SITE", "The folder of the site where --site names none."},
    {"ORVAN_TOOL_FOLDER", "The folder of the tool's files where --tool-folder names none."},
    {"ORVAN_LANGUAGE", "The language of the tool's texts, as in LANG."},
    {"ORVAN_COLOR", "When rows are coloured, where --color does not say it."},
    {"XDG_DATA_HOME, HOME",
     "Where the user's data lie: the site is else orvandiag/site in the former, or "
     ".local/share/orvandiag/site in the latter."},
    {"ORVAN_PAGER, PAGER",
     "The pager in which a terminal shows rows; cat or the empty text for none."},
    {"NO_COLOR",
     "Set to anything, it leaves out the colours of rows, unless --color asks for them."},
    {"TERM", "Of a terminal that is dumb, no colours are asked."},
    {"LC_ALL, LC_MESSAGES, LANG",
     "The first that is set gives the language of the tool's texts on a site that names none."},
    {"TZ", "The time zone of a site that names none."},
};

constexpr Surrounding usedFiles[] = {
    {"$XDG_CONFIG_HOME/orvandiag/config.toml",
     "What the person has set; else .config/orvandiag/config.toml in the home folder. Those that "
     "follow lie in the site's folder."},
    {"site.ini", "Says how the server is called, its time zone, language and code page; every "
                 "line may be left out."},
    {"registry.reg", "The server's registry, as its editor exports it."},
    {"OrvanDirDb.sqlite", "The directory database."},
    {"eventlogs/NAME.jsonl", "The Windows event logs, an event a line."},
    {"drive_c/", "The server's drive C: with its logs."},
};

constexpr const char* programExamples =
    "  orvandiag sample ~/orvan-sample\n"
    "  export ORVAN_SITE=~/orvan-sample\n"
    "  orvandiag status\n"
    "  orvandiag read --level 0-1 --count-by component\n"
    "  orvandiag macro set --on \"Call Flow - Transfers\"\n"
    "  orvandiag gather frame --from \"2025-02-20 16:42\" --hours 1 --to case-4711";

} // namespace cli
