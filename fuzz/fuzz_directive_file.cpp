// Any bytes are a directive file or are refused with a line number; what is accepted is fit to use.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "cabmaker/cabinet_layout.h"
#include "cabmaker/directive_file.h"
#include "cabmaker/directive_paths.h"
#include "runtime/run_time_error.h"
#include "runtime/windows_path.h"
#include "text/utf8.h"

namespace {

void require(bool holds)
{
    if (!holds) std::abort();
}

void checkMember(const cabmaker::DirectiveMember& member, const cabmaker::DirectivePaths& paths)
{
    require(!member.name.empty() && member.name.size() <= cabmaker::formatLimits::nameBytes);
    require(member.name.front() != '\\' && member.name.back() != '\\');
    require(("\\" + member.name + "\\").find("\\..\\") == std::string::npos);
    require(member.line > 0);
    try {
        const std::string path = paths.machinePath(member.source);
        require(path.starts_with('/') && (path + "/").find("/../") == std::string::npos);
    } catch (const RunTimeError&) {
        // a drive or a form of path that isn't there
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const cabmaker::DirectivePaths paths("", "/");
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const cabmaker::Directives directives = cabmaker::parseDirectives(text, "f.ddf");
        for (const std::size_t number : {1, 2, 65535}) {
            const std::string name = cabmaker::cabinetNameOf(directives, number);
            require(!baseName(name).empty() && isUtf8(name));
            require(isUtf8(cabmaker::diskFolderOf(directives, number)));
        }
        for (const auto& member : directives.members) require(isUtf8(member.name));
        for (const auto& member : directives.members) checkMember(member, paths);
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
        require(error.description().starts_with("f.ddf:"));
    }
    return 0;
}
