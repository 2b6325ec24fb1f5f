"""Prints the shares of lines run, of the core and of everything, from a summary of gcovr."""

import json
import sys

# The folders below src/ that use the standard library alone.
CORE = {
    "runtime", "text", "tracelines", "platform", "controls", "console", "core", "server", "logreader",
    "traces", "gather", "wizards", "settings", "shell",
}


def share(files):
    total = sum(file["line_total"] for file in files)
    covered = sum(file["line_covered"] for file in files)
    return f"{100 * covered / total:.1f} % of {total} lines" if total else "no lines"


with open(sys.argv[1], encoding="utf-8") as summary:
    files = json.load(summary)["files"]
core = [file for file in files if file["filename"].split("/")[1] in CORE]
print(f"core: {share(core)}")
print(f"everything: {share(files)}")
