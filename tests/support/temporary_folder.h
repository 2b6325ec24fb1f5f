#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support/error_of.h"

/// A folder of the machine for one test, gone with the object.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        const auto place = std::filesystem::temp_directory_path();
        auto number = std::chrono::steady_clock::now().time_since_epoch().count();
        std::filesystem::path folder;
        do folder = place / ("orvan-test-" + std::to_string(number++));
        while (!std::filesystem::create_directory(folder));
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
        path_ = textOf(std::filesystem::canonical(folder));
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    /// Makes a file and the folders above it; gives its path.
    std::string write(const std::string& name, const std::string& bytes = "") const
    {
        const auto path = placeOf(name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return textOf(path);
    }

    std::string makeFolder(const std::string& name) const
    {
        std::filesystem::create_directories(placeOf(name));
        return path_ + "/" + name;
    }

    std::string read(const std::string& name) const
    {
        std::ifstream file(placeOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    bool exists(const std::string& name) const { return std::filesystem::exists(placeOf(name)); }

private:
    /// Paths are UTF-8 with "/" between their names, whatever the machine's own are.
    static std::string textOf(const std::filesystem::path& path)
    {
        const auto text = path.generic_u8string();
        return {text.begin(), text.end()};
    }
    std::filesystem::path placeOf(const std::string& name) const
    {
        const std::string path = path_ + "/" + name;
        return std::u8string(path.begin(), path.end());
    }

    std::string path_;
};
