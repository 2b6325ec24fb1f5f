#include "sample/output_file.h"

#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "system/machine_path.h"

#include <iterator>

namespace sample {

namespace fs = std::filesystem;

OutputFile::OutputFile(fs::path path) : path_(std::move(path)), buffer_(std::size_t{1} << 16)
{
    stream_.rdbuf()->pubsetbuf(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    stream_.open(path_, std::ios::binary);
    if (!stream_)
        throw RunTimeError(runTimeErrors::deviceIo,
                           "cannot make the file " + shownPathOf(machineTextOf(path_)));
}

void OutputFile::write(std::string_view bytes)
{
    stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void OutputFile::close(Moment modified)
{
    stream_.close();
    if (!stream_)
        throw RunTimeError(runTimeErrors::diskFull,
                           "cannot write the file " + shownPathOf(machineTextOf(path_)));
    setModified(path_, modified);
}

void writeFile(const fs::path& path, std::string_view bytes, Moment modified)
{
    std::error_code failure;
    fs::create_directories(path.parent_path(), failure);
    OutputFile file(path);
    file.write(bytes);
    file.close(modified);
}

std::string readFile(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::error_code none;
    if (!stream || fs::is_directory(path, none))
        throw RunTimeError(runTimeErrors::fileNotFound,
                           "the installed data lack the file " + shownPathOf(machineTextOf(path)));
    return {std::istreambuf_iterator<char>(stream), {}};
}

void setModified(const fs::path& path, Moment modified)
{
    if (!setTimes(machineTextOf(path), {.seconds = unixSeconds(modified)}))
        throw RunTimeError(runTimeErrors::deviceIo,
                           "cannot date " + shownPathOf(machineTextOf(path)));
}

} // namespace sample
