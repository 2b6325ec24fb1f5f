#include "cabmaker/cabinet_writer.h"

#include <memory>
#include <utility>

#include "cabmaker/block_pipeline.h"
#include "cabmaker/source_file.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

// Runs `work` and gives the messages of its failures the head that tells who asks for `source`.
template <typename Work>
auto blaming(const CabinetSource& source, Work&& work)
{
    try {
        return work();
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), source.origin + error.description());
    }
}

class Writer {
public:
    Writer(const std::vector<CabinetSource>& sources, const Packing& packing, OutputFile& target)
        : sources_(sources), packing_(packing), target_(target),
          layout_(packing.compression, packing.blocksPerFolder, packing.folders),
          pipeline_(packing.compression, packing.threads,
                    [this](std::span<const std::uint8_t> blocks) { append(blocks); })
    {}

    PackedCabinet write();

private:
    void place(const CabinetSource& source);
    void pack(const CabinetSource& source, const SourceFacts& facts);
    void append(std::span<const std::uint8_t> bytes);

    const std::vector<CabinetSource>& sources_;
    const Packing& packing_;
    OutputFile& target_;
    CabinetLayout layout_;
    BlockPipeline pipeline_;
    std::vector<SourceFacts> facts_;
    std::vector<MemberFacts> members_;
    std::vector<std::uint32_t> blocks_;
};

// The head has a known size but not yet all of its contents, so its place is kept free until the
// blocks are written.
PackedCabinet Writer::write()
{
    for (const CabinetSource& source : sources_) {
        packing_.checkpoint();
        blaming(source, [&] { place(source); });
    }
    target_.append(std::vector<std::uint8_t>(layout_.headSize()));
    std::vector<std::uint32_t> folderStarts;
    for (const CabinetLayout::Folder& folder : layout_.folders()) {
        folderStarts.push_back(static_cast<std::uint32_t>(target_.size()));
        for (std::size_t i = 0; i < folder.members; ++i)
            pack(sources_[folder.firstMember + i], facts_[folder.firstMember + i]);
        pipeline_.endFolder();
    }
    target_.overwrite(0, layout_.head(folderStarts, static_cast<std::uint32_t>(target_.size())));
    return {std::move(members_), layout_.folders(), std::move(blocks_), target_.size()};
}

void Writer::place(const CabinetSource& source)
{
    const SourceFacts facts = sourceFacts(source.path, source.shownName);
    const MemberFacts member{.name = source.name,
                             .bytes = facts.bytes,
                             .modified = cabinetTime(facts.modified.seconds),
                             .readOnly = facts.readOnly};
    layout_.add(member);
    facts_.push_back(facts);
    members_.push_back(member);
}

void Writer::pack(const CabinetSource& source, const SourceFacts& facts)
{
    const auto reader = blaming(source, [&] {
        return std::make_unique<SourceReader>(source.path, source.shownName, facts);
    });
    while (reader->remaining() > 0) {
        packing_.checkpoint();
        pipeline_.filled(blaming(source, [&] { return reader->read(pipeline_.room()); }));
    }
    blaming(source, [&] { reader->finish(); });
}

void Writer::append(std::span<const std::uint8_t> bytes)
{
    for (std::size_t at = 0; at < bytes.size(); at += blockHeadSize + blocks_.back())
        blocks_.push_back(packedSizeOf(bytes.subspan(at)));
    target_.append(bytes);
}

} // namespace

PackedCabinet writeCabinet(const std::vector<CabinetSource>& sources, const Packing& packing,
                           OutputFile& target)
{
    return Writer(sources, packing, target).write();
}

} // namespace cabmaker
