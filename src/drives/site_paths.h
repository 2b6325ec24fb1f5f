#pragma once

#include "system/root_folder.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Where a path of the tool lies: `path` below a folder that nothing leads out of.
struct SitePlace {
    RootFolder root;
    std::string path; ///< names parted by "/"; empty for the folder itself
};

/// Maps the Windows paths of a site to places on the machine.
///
/// `C:\x` is `x` in `SITE/drive_c`. `\` and `/` both separate. A name that is not there as given is
/// the one that differs in case alone, the first of them in order of bytes. `..` stops at the root
/// of a drive, and a link that leads out of its drive, or round in a circle, raises 70, as every
/// absolute link does: no path of a drive reaches what is not in it, and no drive lies outside the
/// site.
///
/// A path that begins with `/` is the machine's own. A site may name such a path too, be it in its
/// registry, and is not to be believed: only what a person named (`permit`) is reached by it, and
/// anything else raises 70.
class SitePaths {
public:
    /// `siteFolder` is a path of the machine, which a person named; the current folder is the root
    /// of C:. Raises 76 for what is no folder, 70.
    explicit SitePaths(const std::string& siteFolder);

    /// As a whole path, without a separator at its end.
    const std::string& siteFolder() const { return siteFolder_; }

    /// The site's folder, and what the site keeps beside its drives.
    const RootFolder& root() const { return root_; }

    /// Lets a file or a folder of the machine, with what lies below it, be reached by its path,
    /// which a person named. Links on the way to it are followed; below it none leads out, as long
    /// as it is not the whole machine. A path that does not begin with `/` changes nothing.
    void permit(std::string_view path);

    /// Where a path lies, whether or not something is there. Raises 52 for the empty path and one
    /// with a zero byte, 76 for a share, 70.
    SitePlace place(std::string_view path) const;

    /// The same as a path of the machine, without links below the drive, for programs and libraries
    /// that take nothing else. What it leads to is guarded no more once it was given.
    std::string machinePath(std::string_view path) const;

    /// Whether a path is one of the site's: on a drive, or in the site's folder by the machine's
    /// own names. Raises as `machinePath`.
    bool isOfSite(std::string_view path) const;

    /// Whether a path is the root of a drive or of the machine. Raises as `machinePath`.
    bool isRoot(std::string_view path) const;

    /// The current folder, as a path of the machine.
    std::string currentFolder() const;

    /// Takes relative paths from the current folder of a drive such as "C:"; the empty text changes
    /// nothing. Raises 68 for a drive that is not there.
    void changeDrive(std::string_view drive);

    /// Changes the current folder of the path's drive; a path of the machine's own also leaves the
    /// drives. Raises 76 when there is no such folder, and as `machinePath`.
    void changeFolder(std::string_view path);

    /// By name, where files and folders of the machine lie that stand in for missing ones.
    using StandIns = std::map<std::string, std::string>;

    /// From now on `standIns` are taken for what `folder` lacks, in the place of those before. What
    /// is below them is found, and nothing of the site is touched for it.
    void standIn(std::string_view folder, StandIns standIns);

    /// What stands in for the contents of a folder; nothing for another one than that of `standIn`.
    const StandIns& standInsOf(std::string_view folder) const;

    /// "C:" of "C:\x"; the empty text when a path names no drive.
    static std::string driveName(std::string_view path);

private:
    using Names = std::vector<std::string>;
    struct Location {
        char drive = 'C'; ///< 0 for the machine's own
        Names names;
    };

    const std::string* standInFor(const Location& location) const;
    Location locate(std::string_view path) const;
    SitePlace placeOf(const Location& location) const;
    SitePlace placeOfMachine(const Names& names) const;
    SitePlace placeOfStandIn(const std::string& standIn, const Location& location) const;
    bool isFolder(const Location& location) const;

    std::string siteFolder_;
    RootFolder root_;
    std::vector<Names> permitted_;
    char currentDrive_ = 'C';
    std::map<char, Names> currentFolders_;
    Location standInFolder_;
    StandIns standIns_;
};
