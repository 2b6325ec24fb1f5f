#include "timeline/sources/open_files.h"

#include "runtime/run_time_error.h"
#include "system/root_folder.h"

#include <utility>

namespace timeline {

KeptFile::KeptFile(FileDescriptor file)
    : descriptor_(std::move(file)), identity_(factsOf(descriptor_).identity)
{}

KeptFile::KeptFile(std::shared_ptr<OpenFiles> files, std::string path)
    : files_(std::move(files)), path_(std::move(path)),
      descriptor_(openMachineFile(path_, forReading, runTimeErrors::fileNotFound)),
      identity_(factsOf(descriptor_).identity)
{
    files_->keep(*this);
}

KeptFile::~KeptFile()
{
    if (files_) files_->forget(*this);
}

KeptFile::Use::Use(KeptFile& file) : file_(file)
{
    if (file_.files_) file_.files_->use(file_);
}

KeptFile::Use::~Use()
{
    if (file_.files_) file_.files_->release(file_);
}

void OpenFiles::keep(KeptFile& file)
{
    const std::lock_guard lock(mutex_);
    file.place_ = open_.insert(open_.end(), &file);
    closeUnused();
}

void OpenFiles::use(KeptFile& file)
{
    const std::lock_guard lock(mutex_);
    if (file.descriptor_.isOpen()) {
        open_.splice(open_.end(), open_, file.place_);
    } else {
        FileDescriptor again = openMachineFile(file.path_, forReading, runTimeErrors::fileNotFound);
        if (factsOf(again).identity != file.identity_)
            throw RunTimeError(runTimeErrors::deviceIo,
                               file.path_ + " is another file than the one that was read");
        file.descriptor_ = std::move(again);
        file.place_ = open_.insert(open_.end(), &file);
    }
    ++file.uses_;
    closeUnused();
}

void OpenFiles::release(KeptFile& file)
{
    const std::lock_guard lock(mutex_);
    --file.uses_;
    closeUnused();
}

void OpenFiles::forget(KeptFile& file)
{
    const std::lock_guard lock(mutex_);
    if (file.descriptor_.isOpen()) open_.erase(file.place_);
}

void OpenFiles::closeUnused()
{
    for (auto at = open_.begin(); open_.size() > most_ && at != open_.end();) {
        KeptFile& file = **at;
        ++at;
        if (file.uses_ > 0) continue;
        open_.erase(file.place_);
        file.descriptor_ = FileDescriptor();
    }
}

} // namespace timeline
