#include "structure/source_tree.h"

#include "support/places.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {
const fs::path root = checkout::folder;
}

std::vector<std::string> sourceFiles(const std::string& folder)
{
    std::vector<std::string> files;
    if (!fs::exists(root / folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
        const auto ending = entry.path().extension();
        if (entry.is_regular_file() && (ending == ".h" || ending == ".cpp"))
            files.push_back(entry.path().lexically_relative(root).generic_string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<Include> includesOf(const std::string& file)
{
    std::vector<Include> includes;
    std::istringstream lines(textOf(file));
    std::string text;
    for (int number = 1; std::getline(lines, text); ++number) {
        if (text.rfind("#include", 0) != 0) continue;
        const auto start = text.find_first_of("\"<");
        const auto end = text.find_first_of("\">", start + 1);
        if (start == std::string::npos || end == std::string::npos) continue;
        includes.push_back(
            {file, number, text.substr(start + 1, end - start - 1), text[start] == '"'});
    }
    return includes;
}

std::string textOf(const std::string& file)
{
    std::ifstream stream(root / file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string layerOf(const std::string& path)
{
    std::string rest = path;
    if (rest.rfind("src/", 0) == 0) rest = rest.substr(4);
    const auto first = rest.find('/');
    if (first == std::string::npos) return {};
    const std::string folder = rest.substr(0, first);
    if (folder != "backends" && folder != "hosts") return folder;
    const auto second = rest.find('/', first + 1);
    return rest.substr(0, second);
}
