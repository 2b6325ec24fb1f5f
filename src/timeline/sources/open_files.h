#pragma once

#include "system/file_descriptor.h"
#include "system/file_facts.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <string>

namespace timeline {

class OpenFiles;

/// A file that many others may stand beside: it is open while it is used, and may be closed in
/// between.
class KeptFile {
public:
    /// A file that is open for good, such as one without a name.
    explicit KeptFile(FileDescriptor file);

    /// A plain file of the machine, among those that `files` keeps open. Raises 53, 70, 57.
    KeptFile(std::shared_ptr<OpenFiles> files, std::string path);

    ~KeptFile();
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;

    /// Keeps the file open for as long as one of these lives.
    class Use {
    public:
        explicit Use(KeptFile& file);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

        const FileDescriptor& descriptor() const { return file_.descriptor_; }

    private:
        KeptFile& file_;
    };

    const std::string& path() const { return path_; }

    /// Which file it is, whatever its name leads to later.
    const FileIdentity& identity() const { return identity_; }

private:
    friend class OpenFiles;

    std::shared_ptr<OpenFiles> files_;
    std::string path_;
    FileDescriptor descriptor_;
    FileIdentity identity_;
    int uses_ = 0;
    std::list<KeptFile*>::iterator place_;
};

/// Files of which no more than so many are open at a time: the one that was not used for longest is
/// closed for another one. May be used by several threads.
class OpenFiles {
public:
    explicit OpenFiles(std::size_t most) : most_(most) {}

private:
    friend class KeptFile;

    void keep(KeptFile& file);
    /// Opens a file again, if it was closed. Raises 53, 70, and 57 where its name leads to another
    /// file now.
    void use(KeptFile& file);
    void release(KeptFile& file);
    void forget(KeptFile& file);
    void closeUnused();

    std::size_t most_;
    std::mutex mutex_;
    std::list<KeptFile*> open_; ///< the least used first
};

} // namespace timeline
