#pragma once

#include "backends/xml/libxml_documents.h"
#include "sample/sample_server.h"
#include "support/fakes/fake_clock.h"
#include "support/fakes/files/fake_file_system.h"
#include "support/places.h"
#include "support/temporary_folder.h"

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

inline constexpr const char* sampleLogs = "drive_c/KelmaOrvan/Logs/";

/// The grid of a catalogue: level texts by component.
using SampleGrid = std::map<std::string, std::vector<std::string>>;

/// An XML file as a document; an empty one when it is not well-formed.
struct XmlFile {
    explicit XmlFile(const std::string& bytes)
    {
        files.with("C:\\a.xml", bytes);
        document->load("C:\\a.xml");
    }

    FakeClock clock;
    FakeFileSystem files{clock};
    LibxmlDocuments xml{files};
    std::unique_ptr<XmlDocument> document = xml.newDocument();
};

/// A sample server in a folder of its own, with what tests want to know of it.
class SampleSite {
public:
    explicit SampleSite(std::size_t lines = 8000, std::uint64_t seed = 1,
                        LogFields fields = LogFields::basic)
    {
        SampleOptions options;
        options.folder = folder_ / "site";
        options.dataFolder = built::data;
        options.lines = lines;
        options.seed = seed;
        options.logFields = fields;
        makeSampleServer(options);
    }

    std::string path(const std::string& name) const { return folder_ / ("site/" + name); }
    std::string read(const std::string& name) const { return folder_.read("site/" + name); }

    bool exists(const std::string& name) const { return folder_.exists("site/" + name); }

    /// Names in the log folder that begin with `start`, sorted; formatted copies are left out.
    std::vector<std::string> logs(const std::string& start) const
    {
        std::map<std::string, bool> names;
        for (const auto& entry : std::filesystem::directory_iterator(path(sampleLogs))) {
            const std::string name = entry.path().filename().string();
            if (name.rfind(start, 0) == 0 && name.find("_fmtd") == std::string::npos)
                names[name] = true;
        }
        std::vector<std::string> sorted;
        for (const auto& [name, found] : names) sorted.push_back(name);
        return sorted;
    }

    /// The lines of a log, without their line ends.
    std::vector<std::string> lines(const std::string& log) const
    {
        std::istringstream text(read(sampleLogs + log));
        std::vector<std::string> all;
        for (std::string line; std::getline(text, line);) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            all.push_back(line);
        }
        return all;
    }

    SampleGrid grid(const std::string& language) const
    {
        const std::string folder = "drive_c/KelmaOrvan/GuiResources/Resources/" + language;
        const XmlFile file(read(folder + "/DiagnosticGrids_" + language + ".xml"));
        SampleGrid grid;
        for (const auto& component : file.document->selectNodes("DiagnosticGrids/*")) {
            auto& levels = grid[requiredAttribute(component, "name")];
            for (const auto& level : component->selectNodes("DiagnosticLevels/*")) {
                const auto number = std::stoul(requiredAttribute(level, "level"));
                if (number == levels.size()) levels.push_back(requiredAttribute(level, "text"));
            }
        }
        return grid;
    }

private:
    TemporaryFolder folder_;
};

/// Whether a level's text says that there is no such level.
inline bool isPlaceholder(const std::string& text)
{
    return text == "Reserved" || text.rfind("Not available", 0) == 0 ||
           text.rfind("Not defined", 0) == 0;
}
