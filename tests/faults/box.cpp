#include "faults/box.h"

#include "support/places.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <set>
#include <spawn.h>
#include <sqlite3.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* application = "eventlogs/Application.jsonl";
constexpr const char* registryFile = "registry.reg";
constexpr const char* databaseFile = "OrvanDirDb.sqlite";

/// The registry values that hold the moment of the last change.
const std::set<std::string> moments = {"\"Cycle Diag File Time Set\"",
                                       "\"Diagnostic Grid Time Set\"", "\"Date\""};

/// Where nothing is kept on a disk, if the machine has such a place: a sync costs nothing there.
std::string boxName()
{
    return access("/dev/shm", W_OK) == 0 ? "/dev/shm/orvan_faults_XXXXXX"
                                         : "/tmp/orvan_faults_XXXXXX";
}

void put(const fs::path& file, const std::string& content)
{
    std::ofstream(file, std::ios::binary) << content;
}

/// A key that another one lies in is there, whether or not the file has a line for it.
void keepKeyWithItsParents(const std::string& key, Kept& kept)
{
    for (auto end = key.find('\\'); end != key.npos; end = key.find('\\', end + 1))
        kept[key.substr(0, end) + "]"] = "key";
    kept[key] = "key";
}

void readRegistry(const std::string& text, Kept& kept)
{
    std::string key;
    std::string value;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        at = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.starts_with("  ")) {
            kept[value] += line;
        } else if (line.starts_with("[")) {
            key = line;
            keepKeyWithItsParents(key, kept);
        } else if (const auto equal = line.find('='); equal != std::string::npos) {
            value = key + line.substr(0, equal);
            kept[value] = line.substr(equal + 1);
        }
    }
}

void readDatabase(const fs::path& file, Kept& kept)
{
    sqlite3* database = nullptr;
    kept["database"] = "can't be opened";
    if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
        const auto take = [](void* rows, int count, char** texts, char**) {
            std::string row;
            for (int i = 1; i < count; ++i) row += std::string(texts[i] ? texts[i] : "NULL") + "|";
            (*static_cast<Kept*>(rows))[std::string("database ") + texts[0]] = row;
            return 0;
        };
        char* message = nullptr;
        sqlite3_exec(database,
                     "SELECT 'integrity', * FROM pragma_integrity_check; "
                     "SELECT 'grid ' || ObjectId, Name, Flags, DefaultFlags FROM "
                     "vw_LoggerDiagnosticGrid; "
                     "SELECT 'value ' || FullName, Value, Type FROM vw_ConfigurationValue",
                     take, &kept, &message);
        kept["database"] = message ? message : "sound";
        sqlite3_free(message);
    }
    sqlite3_close(database);
}

} // namespace

const std::vector<Change>& everyChange()
{
    static const std::vector<Change> changes = {
        {"macro set", {"macro", "set", "--on", "Call Flow - Basic Call Flow"}},
        // Both take all levels of a component off before they put the wanted ones on.
        {"micro set",
         {"micro", "set", "--on", "AddressBook:1"},
         false,
         false,
         {{"grid ", "[A-Za-z]+\\|[0-9-]+\\|[0-9-]+\\|"}}},
        {"reset", {"reset"}, false, false, {{"grid ", "[A-Za-z]+\\|[0-9-]+\\|[0-9-]+\\|"}}},
        {"cycle", {"cycle"}},
        {"settings", {"settings", "--max-megabytes", "321", "--log-folder", "D:\\Logs"}},
        {"event-language",
         {"event-language", "FRA"},
         false,
         false,
         {{"MessageFile", ".*FRA.*"}}}, // the first language comes back at the end
        {"language", {"language", "FRA"}, false, false, {{"LocalizationLanguage", ".*1033.*"}}},
        {"gather standard", {"gather", "standard", "--to", "TO"}, true},
        {"gather logs",
         {"gather", "logs", "--log", "diag_KoCSMgr_20250219_144115.txt", "--event-log", "System",
          "--to", "TO"},
         true},
        {"gather frame",
         {"gather", "frame", "--from", "2025-02-17 15:00", "--hours", "48", "--to", "TO"},
         true},
        {"sample", {"sample", "TO", "--lines", "100"}, false, true},
    };
    return changes;
}

bool isNotedAtStart(const std::string& name)
{
    return name.ends_with("OrvanDiagnostics]") ||
           name.ends_with("\"CurrentLocalizationLanguage\"") || name.ends_with("\"Standard Logs\"");
}

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Box::Box()
{
    std::string name = boxName();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the trials");
    folder = name;
    makeFolders();
    makeSite();
    before_ = outside();
    soundFiles_ = filesOf(sound);
    soundEvents_ = contentOf(sound / application);
}

Box::~Box()
{
    munmap(counts_, sizeof(CallCounts));
    std::error_code none;
    fs::remove_all(folder, none);
}

void Box::makeFolders()
{
    sound = folder / "sound";
    site = folder / "site";
    to = folder / "to" / "there";
    for (const char* name : {"home", "work", "temp", "to"}) fs::create_directory(folder / name);
    put(folder / "work/startup.sh", "# commands\n");
    put(folder / "home/.profile", "# commands\n");
    const int file = open((folder / "counts").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    void* page = MAP_FAILED;
    if (file >= 0 && ftruncate(file, sizeof(CallCounts)) == 0)
        page = mmap(nullptr, sizeof(CallCounts), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    close(file);
    if (page == MAP_FAILED) throw std::runtime_error("no counts");
    counts_ = static_cast<CallCounts*>(page);
}

/// The fewer files and events a site has, the fewer calls there are to fail.
void Box::makeSite()
{
    const Run made = run({"sample", {"sample", sound.string(), "--lines", "100"}, false, true}, "");
    if (made.status != 0) throw std::runtime_error("no sample: " + made.messages);
    fs::remove_all(sound / "drive_c/KelmaOrvan/GuiResources/Resources/FRA");
    for (const auto& definition : fs::directory_iterator(sound / "drive_c/OrvanDiagnostics/ZMKXML"))
        if (definition.path().filename() != "HTCallFlow.xml") fs::remove(definition);
    for (const auto& log : fs::directory_iterator(sound / "eventlogs")) {
        const std::string all = contentOf(log);
        put(log, all.substr(0, all.find('\n', 2000) + 1));
    }
    // One log is a link to where it lies in another folder of the drive.
    const std::string linked = "diag_KoCSMgr_20250219_144115.txt";
    fs::create_directory(sound / "drive_c/Kept");
    fs::rename(sound / "drive_c/KelmaOrvan/Logs" / linked, sound / "drive_c/Kept" / linked);
    fs::create_symlink("../../Kept/" + linked, sound / "drive_c/KelmaOrvan/Logs" / linked);
}

std::map<std::string, std::string> Box::filesOf(const fs::path& folder)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        files[name] = entry.is_regular_file() ? "file " + contentOf(entry.path()) : "folder";
    }
    return files;
}

void Box::begin() const
{
    fs::remove_all(site);
    fs::remove_all(to.parent_path());
    fs::create_directory(to.parent_path());
    fs::copy(sound, site, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

Run Box::run(const Change& change, const std::string& plan) const
{
    std::memset(static_cast<void*>(counts_), 0, sizeof(CallCounts));
    std::vector<std::string> words{built::orvandiag};
    if (!change.makesSample) words.insert(words.end(), {"--site", site.string()});
    for (const auto& word : change.words) words.push_back(word == "TO" ? to.string() : word);
    std::vector<std::string> variables{
        "PATH=/usr/bin:/bin",
        "LANG=C.UTF-8",
        "HOME=" + (folder / "home").string(),
        "TMPDIR=" + (folder / "temp").string(),
        std::string("LD_PRELOAD=") + built::failingCalls,
        std::string(countsVariable) + "=" + (folder / "counts").string(),
        std::string(patienceVariable) + "=60",
    };
    if (!plan.empty()) variables.push_back(std::string(planVariable) + "=" + plan);
    const auto pointers = [](std::vector<std::string>& texts) {
        std::vector<char*> result;
        for (auto& text : texts) result.push_back(text.data());
        result.push_back(nullptr);
        return result;
    };

    const std::string out = folder / "out";
    const std::string err = folder / "err";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addchdir_np(&actions, (folder / "work").c_str());
    pid_t child = -1;
    int state = 0;
    if (posix_spawn(&child, words[0].c_str(), &actions, nullptr, pointers(words).data(),
                    pointers(variables).data()) != 0 ||
        waitpid(child, &state, 0) != child)
        throw std::runtime_error("orvandiag can't be run");
    posix_spawn_file_actions_destroy(&actions);
    const int status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    return {status, contentOf(out), contentOf(err)};
}

Kept Box::kept(const fs::path& of) const
{
    Kept kept;
    readRegistry(contentOf(of / registryFile), kept);
    Kept old;
    readRegistry(contentOf(sound / registryFile), old);
    readDatabase(sound / databaseFile, old);
    readDatabase(of / databaseFile, kept);
    for (auto& [name, value] : kept) {
        const bool moment =
            moments.contains(name.substr(name.rfind(']') + 1)) || name.ends_with("TimeSet");
        if (moment && value != old[name] && !value.empty()) value = "a moment";
    }
    return kept;
}

std::map<std::string, std::string> Box::outside() const
{
    std::map<std::string, std::string> all;
    for (const char* name : {"home", "work"})
        for (const auto& [file, content] : filesOf(folder / name))
            all[name + ("/" + file)] = content;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename();
        if (name != "out" && name != "err" && name != "site") all[name] = "";
    }
    return all;
}

std::string Box::strayChanges() const
{
    static const std::set<std::string> changing = {registryFile, databaseFile, application};
    if (outside() != before_) return "something outside the site changed";
    for (const auto& [name, content] : soundFiles_) {
        if (changing.contains(name)) continue;
        if (!fs::exists(site / name)) return name + " is gone";
        if (content != "folder" && "file " + contentOf(site / name) != content)
            return name + " was changed";
    }
    if (!contentOf(site / application).starts_with(soundEvents_))
        return "events that were there are gone";
    return "";
}
