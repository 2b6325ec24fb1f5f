#pragma once

#include <cstdlib>
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
        std::string pattern =
            (std::filesystem::temp_directory_path() / "orvan-test-XXXXXX").string();
        path_ = std::filesystem::canonical(::mkdtemp(pattern.data())).string();
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
        const std::filesystem::path path = path_ + "/" + name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path.string();
    }

    std::string makeFolder(const std::string& name) const
    {
        std::filesystem::create_directories(path_ + "/" + name);
        return path_ + "/" + name;
    }

    std::string read(const std::string& name) const
    {
        std::ifstream file(path_ + "/" + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    bool exists(const std::string& name) const
    {
        return std::filesystem::exists(path_ + "/" + name);
    }

private:
    std::string path_;
};
