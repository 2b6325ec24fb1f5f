#pragma once

/// What an open file is used for.
enum class FileAccess {
    read,
    write,
    append, ///< written at its end, wherever that is by then
    readAndWrite,
    readAndAppend,
};

/// Whether opening a file makes it.
enum class Creation {
    never,
    ifMissing,
    always, ///< the name has to be free: not even a link bears it
};

/// What becomes of a link that bears the file's own name; those on the way to it are another
/// matter.
enum class LastLink {
    followed,
    refused,
};

/// What others than its owner may do with a new file or folder, as far as the user's settings leave
/// it to them.
enum class OthersMay {
    write,
    read,
    nothing,
};

/// How a file is opened.
struct FileOpening {
    FileAccess access = FileAccess::read;
    Creation creation = Creation::never;
    LastLink lastLink = LastLink::followed;
};

/// A file that is there, to be read through any link that its place allows.
inline constexpr FileOpening forReading{};
