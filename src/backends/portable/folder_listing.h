#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The path of a name in a folder of the machine.
std::string pathIn(const std::string& folder, std::string_view name);

/// Names in a folder of the machine, without "." and "..", sorted without regard to case. A name
/// with a backslash, which no Windows path reaches, is left out. Raises 76, 70.
std::vector<std::string> namesInFolder(const std::string& machinePath);

/// Names in the order of `namesInFolder`, each of them once.
std::vector<std::string> sortedNames(std::vector<std::string> names);

/// The size of all files in a folder of the machine and below; links are not followed. Raises 76,
/// 70.
std::int64_t sizeOfFolder(const std::string& machinePath);

/// Removes a folder of the machine with what it holds; links are removed, not followed. Raises 76,
/// and 70 at the first file that is read-only: what came before it is gone.
void removeWholeFolder(const std::string& machinePath);
