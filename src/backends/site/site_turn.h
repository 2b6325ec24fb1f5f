#pragma once

#include "system/file_descriptor.h"

#include <chrono>
#include <functional>
#include <string>

/// A program's turn to change a site, held for as long as this lives.
///
/// The tool reads a word, changes bits and writes the word back, and shows what it read long before
/// it writes, without a guard of its own. So programs that change one site take turns, each for a
/// whole change. A turn is a lock on a file of the site; the system lets it go when the program
/// ends, however it ends. Who only looks needs no turn and waits for none.
class SiteTurn {
public:
    /// How long one other program may keep the turn before it is no longer waited for.
    static constexpr std::chrono::seconds usualPatience{10};

    /// How often that long a program waits in all while others take their turns before it.
    static constexpr int longestQueue = 12;

    /// Takes what a person who waits is to know.
    using Notice = std::function<void(const std::string&)>;

    /// Takes the turn on the site in a folder of the machine, or waits for it; `notice` hears of a
    /// wait of more than a second. What is changed has the name `changed` in sentences, "the site
    /// FOLDER" where that is empty. Where nobody may
    /// write there is none to take, and none is needed. Raises 70, with a sentence, when others
    /// keep it too long or a link lies in its place; 76, 57, 61.
    explicit SiteTurn(const std::string& siteFolder,
                      std::chrono::milliseconds patience = usualPatience, const Notice& notice = {},
                      const std::string& changed = {});

private:
    FileDescriptor lock_;
};
