#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The names of the files that a cabinet holds, as it has them: those of its own part of a set.
/// What can't be read, or is no cabinet, holds none; of one that is damaged, those up to the
/// damage.
std::vector<std::string> namesInCabinet(const std::filesystem::path& cabinet);
