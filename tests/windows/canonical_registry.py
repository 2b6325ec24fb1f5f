"""Prints the server's keys of an exported registry, a value a line, in an order of their own:
canonical_registry.py FILE. Moments are words, and names have the case of whoever wrote them last."""
import re
import sys

KEPT = "hkey_local_machine\\software\\kelma systems"
MOMENTS = {"diagnostic grid time set", "cycle diag file time set", "date"}


def text_of(path):
    with open(path, "rb") as file:
        data = file.read()
    if data.startswith(b"\xff\xfe"):
        return data.decode("utf-16")
    return data.decode("utf-8-sig")


def values_of(text):
    key = None
    for line in re.sub(r"\\\r?\n\s*", "", text).splitlines():
        if line.startswith("["):
            key = line.strip()[1:-1].lower()
            yield key, "", ""
            continue
        value = re.match(r'"((?:[^"\\]|\\.)*)"=(.*)$', line)
        if value and key:
            name = value[1].lower()
            shown = "MOMENT" if name in MOMENTS else value[2].strip()
            yield key, name, shown


def main():
    for key, name, value in sorted(values_of(text_of(sys.argv[1]))):
        if key.startswith(KEPT):
            print(f"{key} {name}={value}" if name else key)


if __name__ == "__main__":
    main()
