// Makes a blank database of a schema: jet_make_template SCHEMA DATABASE.

#include "backends/jet/schema/blank_database.h"
#include "runtime/run_time_error.h"
#include "system/machine_path.h"
#include "system/program_arguments.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

/// Writes beside the target and then renames, so that nobody sees half a file.
bool writeFile(const std::string& path, const std::string& bytes)
{
    const std::filesystem::path temporary = filePathOf(path + ".new");
    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file.good()) return false;
    std::error_code failed;
    std::filesystem::rename(temporary, filePathOf(path), failed);
    return !failed;
}

} // namespace

int main(int count, char** given)
{
    const std::vector<std::string> arguments = programArguments(count, given);
    if (arguments.size() != 3) {
        std::cerr << "usage: jet_make_template SCHEMA DATABASE\n";
        return 2;
    }
    std::ifstream schema(filePathOf(arguments[1]), std::ios::binary);
    std::ostringstream text;
    text << schema.rdbuf();
    if (!schema) {
        std::cerr << "jet_make_template: cannot read " << arguments[1] << "\n";
        return 1;
    }
    try {
        if (writeFile(arguments[2], jet::blankDatabase(jet::parseSchema(text.str())))) return 0;
        std::cerr << "jet_make_template: cannot write " << arguments[2] << "\n";
    } catch (const RunTimeError& error) {
        std::cerr << "jet_make_template: " << arguments[1] << ": " << error.description() << "\n";
    }
    return 1;
}
