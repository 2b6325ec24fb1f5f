#include "require.h"

#include "drives/site_paths.h"
#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"
#include "system/file_bytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

/// A site among a folder that is none of its business, with all kinds of links out of it.
struct Ground {
    Ground()
    {
        folder.write("outside/secret.txt", "outside");
        folder.write("site/secret.txt", "outside");
        folder.write("site/drive_c/Logs/a.txt", "inside");
        folder.write("site/drive_c/Logs/Deep/b.txt", "inside");
        folder.write("site/drive_d/x/c.txt", "inside");
        link("../../outside", "site/drive_c/up");
        link("../../../outside/secret.txt", "site/drive_c/Logs/up.txt");
        link("..", "site/drive_c/parent");
        link("../drive_d", "site/drive_c/other");
        link(folder / "outside", "site/drive_c/far");
        link("/", "site/drive_d/root");
        link("round", "site/drive_c/round");
        link("Logs/Deep", "site/drive_c/near");
        link("../outside", "site/drive_e");
    }

    void link(const std::string& target, const std::string& name) const
    {
        std::filesystem::create_symlink(target, folder / name);
    }

    TemporaryFolder folder;
};

bool isWithin(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(folder + "/");
}

/// Whatever a path leads to is in a drive of the site. Raises for one that leads to no file.
void checkPlace(const SitePaths& paths, std::string_view path)
{
    const std::string machine = paths.machinePath(path);
    require(path.front() != '/'); // the machine's own, of which nothing was permitted
    require(isWithin(machine, paths.siteFolder()));
    require(paths.isOfSite(path));

    const SitePlace place = paths.place(path);
    if (place.root.isFolder(place.path)) place.root.names(place.path);
    const FileDescriptor file =
        place.root.openFile(place.path, forReading, runTimeErrors::fileNotFound);
    const std::string itself = "/proc/self/fd/" + std::to_string(file.get());
    const std::string opened = std::filesystem::read_symlink(itself).string();
    require(isWithin(opened, paths.siteFolder() + "/drive_c") ||
            isWithin(opened, paths.siteFolder() + "/drive_d"));
    std::string bytes(16, '\0');
    if (readSome(file, bytes.data(), bytes.size()) > 0) require(bytes.starts_with("inside"));
}

} // namespace

/// Each line is a path of the tool. One after a ">" becomes the current folder, one after a ":" the
/// current drive. Nothing outside the drives is ever opened.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Ground ground;
    SitePaths paths(ground.folder / "site");
    std::string_view rest(reinterpret_cast<const char*>(data), std::min<std::size_t>(size, 2000));
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view path = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const char act = path.empty() ? '\0' : path.front();
        if (act == '>' || act == ':') path.remove_prefix(1);
        try {
            if (act == '>') paths.changeFolder(path);
            if (act == ':') paths.changeDrive(path);
            if (act != ':') checkPlace(paths, path);
            require(isWithin(paths.currentFolder(), paths.siteFolder()));
        } catch (const RunTimeError&) {
        }
    }
    return 0;
}
