#include "support/fakes/files/fake_text_streams.h"

#include "runtime/run_time_error.h"

#include <utility>

namespace {
constexpr std::size_t longestLine = std::size_t{64} << 20;
constexpr std::size_t longestText = std::size_t{1} << 30;
} // namespace

FakeTextReader::FakeTextReader(const FakeFileSystem& files, std::string key,
                               std::shared_ptr<FakeFileSystem::Node> node)
    : files_(files), key_(std::move(key)), node_(std::move(node))
{}

const std::string& FakeTextReader::content() const
{
    if (!node_) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    files_.checkOpenFile(key_, linesRead_);
    return node_->content;
}

bool FakeTextReader::atEnd()
{
    if (!node_) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    return position_ >= node_->content.size() && timesRead_ >= node_->timesOver;
}

std::string_view FakeTextReader::readLine()
{
    const std::string& text = content();
    if (position_ >= text.size() && timesRead_ < node_->timesOver) {
        position_ = 0;
        ++timesRead_;
    }
    if (position_ >= text.size()) throw RunTimeError(runTimeErrors::inputPastEnd);
    const std::size_t end = text.find('\n', position_);
    const bool ended = end != std::string::npos;
    std::size_t length = (ended ? end : text.size()) - position_;
    const std::size_t start = std::exchange(position_, ended ? end + 1 : text.size());
    if (ended && length > 0 && text[start + length - 1] == '\r') --length; // part of the line end
    ++linesRead_;
    if (length > longestLine) throw RunTimeError(runTimeErrors::outOfStringSpace);
    line_.assign(text, start, length);
    return line_;
}

std::string FakeTextReader::readAll()
{
    const std::string& text = content();
    if (atEnd()) throw RunTimeError(runTimeErrors::inputPastEnd);
    const auto timesLeft = static_cast<std::size_t>(node_->timesOver - timesRead_);
    const std::size_t start = std::exchange(position_, text.size());
    timesRead_ = node_->timesOver;
    if (text.size() - start + timesLeft * text.size() > longestText)
        throw RunTimeError(runTimeErrors::outOfStringSpace);
    std::string all = text.substr(start);
    for (std::size_t time = 0; time < timesLeft; ++time) all += text;
    return all;
}

void FakeTextReader::close()
{
    if (node_) files_.noteClosed(key_);
    node_.reset();
}

FakeTextWriter::FakeTextWriter(FakeFileSystem& files, std::string key,
                               std::shared_ptr<FakeFileSystem::Node> node)
    : files_(files), key_(std::move(key)), node_(std::move(node))
{}

void FakeTextWriter::write(std::string_view text)
{
    flush();
    files_.takeRoom(text.size());
    node_->content.append(text);
    node_->info.modified = files_.moment();
}

void FakeTextWriter::writeLine(std::string_view text)
{
    write(std::string(text) + "\r\n");
}

void FakeTextWriter::flush()
{
    if (!node_) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    files_.checkOpenFile(key_, 0);
}

void FakeTextWriter::close()
{
    if (node_) files_.noteClosed(key_);
    node_.reset();
}
