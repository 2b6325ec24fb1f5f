#include "backends/cabinet/mspack_files.h"

#include "platform/stored_bytes.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

#include <mspack.h>

/// The library's table of calls, with what they are about.
struct MspackFiles::System : mspack_system {
    std::shared_ptr<const StoredBytes> cabinet;
    const std::function<void(std::string_view)>* take = nullptr;
    std::exception_ptr kept;
};

namespace {

/// An open file, as the library holds it: a pointer to a type that it does not know.
template <typename System>
class OpenFile {
public:
    OpenFile(System& system, bool isCabinet) : system_(system), isCabinet_(isCabinet) {}

    static OpenFile& of(mspack_file* file) { return *reinterpret_cast<OpenFile*>(file); }
    mspack_file* handle() { return reinterpret_cast<mspack_file*>(this); }

    static mspack_file* open(mspack_system* self, const char* name, int mode)
    {
        const bool isCabinet = std::strcmp(name, MspackFiles::cabinetName) == 0;
        if (isCabinet != (mode == MSPACK_SYS_OPEN_READ)) return nullptr;
        auto* file = new (std::nothrow) OpenFile(*static_cast<System*>(self), isCabinet);
        return file == nullptr ? nullptr : file->handle();
    }

    static void close(mspack_file* file) { delete &of(file); }

    static int read(mspack_file* file, void* buffer, int bytes)
    {
        return of(file).orKeep([&](OpenFile& opened) {
            return opened.read(static_cast<char*>(buffer), static_cast<std::size_t>(bytes));
        });
    }

    static int write(mspack_file* file, void* buffer, int bytes)
    {
        return of(file).orKeep([&](OpenFile& opened) {
            return opened.write(
                {static_cast<const char*>(buffer), static_cast<std::size_t>(bytes)});
        });
    }

    static int seek(mspack_file* file, off_t offset, int mode)
    {
        return of(file).orKeep([&](OpenFile& opened) { return opened.seek(offset, mode); });
    }

    static off_t tell(mspack_file* file) { return static_cast<off_t>(of(file).place_); }

private:
    int read(char* into, std::size_t size)
    {
        if (!isCabinet_) return -1;
        const std::size_t count = system_.cabinet->read(into, size, place_);
        place_ += count;
        return static_cast<int>(count);
    }

    int write(std::string_view bytes)
    {
        if (isCabinet_ || system_.take == nullptr) return -1;
        (*system_.take)(bytes);
        place_ += bytes.size();
        return static_cast<int>(bytes.size());
    }

    int seek(std::int64_t offset, int mode)
    {
        std::int64_t from = 0;
        if (mode == MSPACK_SYS_SEEK_CUR) from = static_cast<std::int64_t>(place_);
        if (mode == MSPACK_SYS_SEEK_END) from = static_cast<std::int64_t>(system_.cabinet->size());
        if (!isCabinet_ || from + offset < 0) return -1;
        place_ = static_cast<std::uint64_t>(from + offset);
        return 0;
    }

    /// -1 for a call that raises, and what it raised is kept.
    template <typename Call>
    int orKeep(const Call& call)
    {
        try {
            return call(*this);
        } catch (...) {
            system_.kept = std::current_exception();
            return -1;
        }
    }

    System& system_;
    bool isCabinet_;
    std::uint64_t place_ = 0;
};

/// What the library has to say of a cabinet, the error numbers of its calls say too.
void passOver(mspack_file*, const char*, ...) {}

template <typename System>
void* allocate(mspack_system* self, std::size_t bytes)
{
    void* memory = std::malloc(bytes);
    if (memory == nullptr)
        static_cast<System*>(self)->kept = std::make_exception_ptr(std::bad_alloc());
    return memory;
}

void copy(void* from, void* to, std::size_t bytes)
{
    std::memcpy(to, from, bytes);
}

} // namespace

MspackFiles::MspackFiles(std::shared_ptr<const StoredBytes> cabinet)
    : system_(std::make_unique<System>())
{
    using File = OpenFile<System>;
    system_->open = &File::open;
    system_->close = &File::close;
    system_->read = &File::read;
    system_->write = &File::write;
    system_->seek = &File::seek;
    system_->tell = &File::tell;
    system_->message = &passOver;
    system_->alloc = &allocate<System>;
    system_->free = &std::free;
    system_->copy = &copy;
    system_->null_ptr = nullptr;
    system_->cabinet = std::move(cabinet);
}

MspackFiles::~MspackFiles() = default;

mspack_system* MspackFiles::system()
{
    return system_.get();
}

void MspackFiles::writeTo(const std::function<void(std::string_view)>* take)
{
    system_->take = take;
}

void MspackFiles::raiseWhatWasKept()
{
    if (system_->kept) std::rethrow_exception(std::exchange(system_->kept, nullptr));
}
