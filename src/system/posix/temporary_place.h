#pragma once

#include <filesystem>

/// The folder where the machine has its temporary files. Raises 76, with a sentence, where the
/// environment names one that is not there: the folder that the program runs in is no place for
/// what nobody asked for.
std::filesystem::path temporaryPlace();
