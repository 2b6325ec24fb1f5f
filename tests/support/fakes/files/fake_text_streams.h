#pragma once

#include "platform/text_stream.h"
#include "support/fakes/files/fake_file_system.h"

#include <memory>
#include <string>

/// Reads a file of a FakeFileSystem while others may still write it.
class FakeTextReader final : public TextReader {
public:
    FakeTextReader(const FakeFileSystem& files, std::string key,
                   std::shared_ptr<FakeFileSystem::Node> node);

    bool atEnd() override;
    std::string_view readLine() override;
    std::string readAll() override;
    void close() override;

private:
    const std::string& content() const;

    const FakeFileSystem& files_;
    std::string key_;
    std::shared_ptr<FakeFileSystem::Node> node_;
    std::size_t position_ = 0;
    int timesRead_ = 1;
    int linesRead_ = 0;
    std::string line_;
};

/// Writes at the end of a file of a FakeFileSystem; every write is there at once.
class FakeTextWriter final : public TextWriter {
public:
    FakeTextWriter(FakeFileSystem& files, std::string key,
                   std::shared_ptr<FakeFileSystem::Node> node);

    void write(std::string_view text) override;
    void writeLine(std::string_view text) override;
    void flush() override;
    void close() override;

private:
    FakeFileSystem& files_;
    std::string key_;
    std::shared_ptr<FakeFileSystem::Node> node_;
};
