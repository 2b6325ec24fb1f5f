#include "backends/cabinet/mspack_cabinets.h"

#include "backends/cabinet/mspack_files.h"
#include "runtime/run_time_error.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <algorithm>
#include <map>
#include <new>
#include <utility>

#include <mspack.h>

namespace {

[[noreturn]] void raiseDamaged(const std::string& what)
{
    throw RunTimeError(runTimeErrors::invalidFileFormat, what);
}

/// What an error number of the library means to a person.
std::string sentenceOf(int error)
{
    switch (error) {
    case MSPACK_ERR_READ:
    case MSPACK_ERR_SEEK:
        return "The cabinet ends too soon.";
    case MSPACK_ERR_SIGNATURE:
        return "The file is no cabinet.";
    case MSPACK_ERR_CHECKSUM:
        return "A block of the cabinet is damaged: its checksum is another.";
    case MSPACK_ERR_DECRUNCH:
        return "A block of the cabinet is damaged: it can't be unpacked.";
    default:
        return "The cabinet is damaged, or a part of a set of several.";
    }
}

/// A member's name in UTF-8, whatever the cabinet says it is.
std::string nameOf(const mscabd_file& file)
{
    const std::string_view bytes(file.filename);
    if (isUtf8(bytes)) return std::string(bytes);
    std::string name;
    windows1252().appendUtf8(name, bytes);
    return name;
}

CabinetMember memberOf(const mscabd_file& file)
{
    CabinetMember member;
    member.name = nameOf(file);
    member.size = file.length;
    member.year = file.date_y;
    member.month = static_cast<unsigned char>(file.date_m);
    member.day = static_cast<unsigned char>(file.date_d);
    member.hour = static_cast<unsigned char>(file.time_h);
    member.minute = static_cast<unsigned char>(file.time_m);
    member.second = static_cast<unsigned char>(file.time_s);
    return member;
}

class MspackCabinet final : public Cabinet {
public:
    explicit MspackCabinet(std::shared_ptr<const StoredBytes> bytes)
        : files_(std::move(bytes)),
          library_(mspack_create_cab_decompressor(files_.system()), mspack_destroy_cab_decompressor)
    {
        if (!library_) throw std::bad_alloc();
        open();
        for (const Entry& entry : entries_) {
            members_.push_back(memberOf(*entry.file));
            places_.push_back(entry.place);
        }
    }
    ~MspackCabinet() override { close(); }
    MspackCabinet(const MspackCabinet&) = delete;
    MspackCabinet& operator=(const MspackCabinet&) = delete;

    const std::vector<CabinetMember>& members() const override { return members_; }

    std::uint64_t effort(std::size_t member) const override
    {
        const Place& place = places_[member];
        const bool goesOn = place.folder == unpacked_.folder && place.begin >= unpacked_.end;
        return place.end - (goesOn ? unpacked_.end : 0);
    }

    void read(std::size_t member, const std::function<void(std::string_view piece)>& take) override
    {
        if (member >= entries_.size()) open(); // a failure has left it closed
        if (member >= entries_.size()) raiseDamaged("The cabinet was changed while it was read.");
        mscabd_file* file = entries_[member].file;
        std::uint64_t handedOut = 0;
        const std::function counted = [&](std::string_view piece) {
            take(piece);
            handedOut += piece.size();
        };
        files_.writeTo(&counted);
        int error = library_->extract(library_.get(), file, MspackFiles::memberName);
        files_.writeTo(nullptr);
        // The library finds nothing wrong in a block that is shorter than it says.
        if (error == MSPACK_ERR_OK && handedOut != file->length) error = MSPACK_ERR_DATAFORMAT;
        unpacked_ = entries_[member].place;
        if (error == MSPACK_ERR_OK) return;
        close(); // or the library would go on with what it broke off
        fail(error);
    }

private:
    /// Where a member lies in the cabinet's contents, which are several folders one by one.
    struct Place {
        int folder = -1; ///< of no member
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
    };
    struct Entry {
        Place place;
        mscabd_file* file;
    };

    /// Opens the cabinet, and lists its members as they lie one behind the other in the packed
    /// folders: the library unpacks on from where it is, and from the beginning for what lies in
    /// front of that.
    void open()
    {
        // Entries of files that can't be are passed over; of blocks that would be too much to ask.
        library_->set_param(library_.get(), MSCABD_PARAM_SALVAGE, 1);
        cabinet_ = library_->open(library_.get(), MspackFiles::cabinetName);
        library_->set_param(library_.get(), MSCABD_PARAM_SALVAGE, 0);
        if (cabinet_ == nullptr) fail(library_->last_error(library_.get()));
        std::map<const mscabd_folder*, int> numbers;
        for (const mscabd_folder* folder = cabinet_->folders; folder; folder = folder->next)
            numbers.emplace(folder, static_cast<int>(numbers.size()));
        for (mscabd_file* file = cabinet_->files; file; file = file->next)
            if (file->folder != nullptr) {
                const std::uint64_t begin = file->offset;
                entries_.push_back({{numbers[file->folder], begin, begin + file->length}, file});
            }
        std::stable_sort(entries_.begin(), entries_.end(),
                         [](const Entry& one, const Entry& other) {
                             return std::pair(one.place.folder, one.place.begin) <
                                    std::pair(other.place.folder, other.place.begin);
                         });
    }

    void close()
    {
        if (cabinet_ != nullptr) library_->close(library_.get(), cabinet_);
        cabinet_ = nullptr;
        unpacked_ = {};
        entries_.clear();
    }

    /// Raises what a failed call of the library stands for.
    [[noreturn]] void fail(int error)
    {
        files_.raiseWhatWasKept(); // also for memory: the library says so of damaged folders too
        raiseDamaged(sentenceOf(error));
    }

    MspackFiles files_;
    std::unique_ptr<mscab_decompressor, decltype(&mspack_destroy_cab_decompressor)> library_;
    mscabd_cabinet* cabinet_ = nullptr; ///< null after a failure
    std::vector<Entry> entries_;        ///< of the members; empty after a failure
    std::vector<CabinetMember> members_;
    std::vector<Place> places_; ///< likewise, for good
    Place unpacked_;            ///< of the member that was read last
};

} // namespace

bool MspackCabinets::isCabinet(std::string_view head) const
{
    return head.starts_with("MSCF") && head.substr(4).starts_with(std::string_view("\0\0\0\0", 4));
}

std::unique_ptr<Cabinet> MspackCabinets::open(std::shared_ptr<const StoredBytes> bytes) const
{
    return std::make_unique<MspackCabinet>(std::move(bytes));
}
