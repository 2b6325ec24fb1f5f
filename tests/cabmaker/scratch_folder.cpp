#include "cabmaker/scratch_folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

std::string ScratchFolder::write(const std::string& name, std::string_view contents) const
{
    const fs::path path = path_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << contents;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
    return path.string();
}

std::string ScratchFolder::read(const std::string& name) const
{
    std::ifstream file(path_ / name, std::ios::binary);
    EXPECT_TRUE(file) << name << " is not there";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> ScratchFolder::listing() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(path_))
        names.push_back(entry.path().lexically_relative(path_).string() +
                        (entry.is_directory() ? "/" : ""));
    std::sort(names.begin(), names.end());
    return names;
}

std::string traceText(std::size_t size)
{
    std::mt19937 random(42);
    std::string text;
    while (text.size() < size) {
        const auto number = random();
        text += "10/8/2005 15:23:0" + std::to_string(number % 10) + ":" +
                std::to_string(number / 10 % 1000) + " (RoCallMgr,1" +
                std::to_string(number / 10000 % 60) + ",CallControl," +
                std::to_string(number / 600000 % 32) + ") entering state " +
                std::to_string(number % 7) + "\r\n";
    }
    text.resize(size);
    return text;
}

std::string noise(std::size_t size, std::uint32_t seed)
{
    std::mt19937 random(seed);
    std::string bytes;
    bytes.reserve(size);
    while (bytes.size() < size) bytes += static_cast<char>(random());
    return bytes;
}
