#pragma once

#include "timeline/timeline.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace viewer {

/// The processes and sources of rows by small numbers, a byte each, for the index tells neither of
/// most rows, and to read their texts takes a hundred times as long.
///
/// It is learned bit by bit, source after source, from the texts. The timeline is handed to each
/// call, and is the same one.
class RowNames {
public:
    /// What is known of the names of a row.
    static constexpr std::uint8_t unknown = 255; ///< or one of too many: its texts tell

    /// Learns the names of some rows that are not known yet, for a millisecond or two. True when
    /// all are known.
    bool learn(const timeline::Timeline& timeline);

    /// Forgets what it knows of rows whose places among those of their source have changed, as
    /// older rows came, and of those that were withdrawn.
    void check(const timeline::Timeline& timeline);

    /// Forgets what it knows of rows of a log from a position on.
    void forgetFrom(const timeline::Timeline& timeline, std::size_t log, std::size_t position);

    /// The number of a row's process, or of its source, by its position among the rows of its log.
    std::uint8_t process(std::size_t log, std::size_t position) const;
    std::uint8_t source(std::size_t log, std::size_t position) const;

    /// The text of a number, in UTF-8; numbers are less than `processes()` and `sources()`.
    const std::string& processText(std::uint8_t number) const { return processes_[number]; }
    const std::string& sourceText(std::uint8_t number) const { return sources_[number]; }
    std::size_t processes() const { return processes_.size(); }
    std::size_t sources() const { return sources_.size(); }

private:
    struct Log {
        std::vector<std::uint8_t> sources;   ///< of each row that is known
        std::vector<std::uint8_t> processes; ///< the same; empty where all have one
        std::uint8_t process = unknown;      ///< that all have
        std::uint64_t lastPlace = 0;         ///< of the last row that is known
    };

    static std::uint8_t numberOf(std::vector<std::string>& texts, const std::string& text);
    static void makeRoom(Log& log, std::size_t rows);
    void learnRow(const timeline::Timeline& timeline, Log& log, std::size_t number);

    std::vector<Log> logs_;
    std::vector<std::string> processes_;
    std::vector<std::string> sources_;
    timeline::Record record_;
};

} // namespace viewer
