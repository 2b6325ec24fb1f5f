#pragma once

#include <functional>
#include <memory>
#include <string_view>

class StoredBytes;
struct mspack_system;

/// The two files that libmspack knows, in place of those of the machine: the cabinet, which it
/// reads, and a member, which it writes. It never gets to see a path.
///
/// The library is C, through which nothing may be thrown: what is raised is kept until the call is
/// over.
class MspackFiles {
public:
    explicit MspackFiles(std::shared_ptr<const StoredBytes> cabinet);
    ~MspackFiles();
    MspackFiles(const MspackFiles&) = delete;
    MspackFiles& operator=(const MspackFiles&) = delete;

    /// What the library is made with; it lives as long as this.
    mspack_system* system();

    /// The names by which the library opens the two.
    static constexpr const char* cabinetName = "cabinet";
    static constexpr const char* memberName = "member";

    /// Where the bytes go that the library writes; null for nowhere.
    void writeTo(const std::function<void(std::string_view)>* take);

    /// Raises what was kept, if anything.
    void raiseWhatWasKept();

private:
    struct System;

    std::unique_ptr<System> system_;
};
