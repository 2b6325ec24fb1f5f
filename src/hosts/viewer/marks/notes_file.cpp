#include "hosts/viewer/marks/notes_file.h"

#include "hosts/common/look/reason.h"
#include "runtime/run_time_error.h"
#include "system/file_lock.h"
#include "system/whole_file.h"

#include <QCryptographicHash>
#include <QDir>

#include <chrono>
#include <optional>
#include <thread>
#include <utility>

namespace viewer {

namespace {

constexpr std::size_t largestFile = 16U << 20;
constexpr int mostBroken = 100;

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// Keeps other viewers from changing notes in a folder meanwhile. One that works on for long, or a
/// file system without locks, does not keep a person's note from being written.
class FolderLock {
public:
    explicit FolderLock(const std::string& folder)
    {
        constexpr std::chrono::seconds longestWait{2};
        constexpr std::chrono::milliseconds step{10};
        try {
            folder_.emplace(RootFolder(folder, RootFolder::Bounds::machine).openToPassOn());
            const auto end = std::chrono::steady_clock::now() + longestWait;
            while (!tryLock(*folder_) && std::chrono::steady_clock::now() < end)
                std::this_thread::sleep_for(step);
        } catch (const RunTimeError&) {
            folder_.reset();
        }
    }

private:
    std::optional<FileDescriptor> folder_;
};

/// The folder of a path of the machine.
std::string folderOf(const std::string& path)
{
    const std::string folder = folderPathOf(path);
    return folder.empty() ? "/" : folder;
}

std::string nameOfOwn(const std::string& file)
{
    constexpr qsizetype digits = 16;
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(file), QCryptographicHash::Sha256);
    return hash.toHex().left(digits).toStdString() + "-" + lastNameOf(file) + NotesFile::ending;
}

} // namespace

NotesFile::NotesFile(std::string file, std::string ownFolder)
    : file_(std::move(file)), beside_(file_ + ending), ownFolder_(std::move(ownFolder)),
      own_(ownFolder_ + "/" + nameOfOwn(file_))
{}

/// No link is followed: what lies beside a log may come from anybody.
NotesFile::OneFile NotesFile::readOne(const std::string& path) const
{
    OneFile one;
    std::string bytes;
    try {
        const RootFolder folder(folderOf(path));
        const std::string name = lastNameOf(path);
        if (!folder.unfollowedFacts(name)) return one;
        const FileOpening opening{FileAccess::read, Creation::never, LastLink::refused};
        bytes = readWholeFile(folder.openFile(name, opening, runTimeErrors::fileNotFound),
                              runTimeErrors::fileNotFound, largestFile);
    } catch (const RunTimeError& error) {
        if (error.number() == runTimeErrors::pathNotFound) return one;
        one.state =
            error.number() == runTimeErrors::outOfStringSpace ? State::damaged : State::closed;
        one.why = reasonOf(error);
        return one;
    }
    try {
        one.notes = notesOfJson(QByteArray::fromStdString(bytes));
        one.state = State::sound;
    } catch (const RunTimeError& error) {
        one.state =
            error.number() == runTimeErrors::invalidFileFormat ? State::newer : State::damaged;
        one.why = reasonOf(error);
    }
    return one;
}

/// The user's own go before those that lie beside the log.
Notes NotesFile::together(const OneFile& beside, const OneFile& own)
{
    Notes notes = beside.notes;
    for (const Note& note : own.notes) put(notes, note);
    return notes;
}

void NotesFile::tell(const std::string& path, const OneFile& file, QStringList& sentences)
{
    const QString name = text(path);
    const QString& why = file.why;
    if (file.state == State::damaged)
        sentences << tr("The notes in %1 can't be read, and stay as they are: %2").arg(name, why);
    if (file.state == State::newer)
        sentences << tr("The notes in %1 are those of a newer viewer, and are not shown").arg(name);
    if (file.state == State::closed)
        sentences << tr("The notes in %1 can't be read: %2").arg(name, why);
}

NotesFile::Result NotesFile::read() const
{
    const OneFile beside = readOne(beside_);
    const OneFile own = readOne(own_);
    Result result{together(beside, own), {}};
    tell(beside_, beside, result.sentences);
    tell(own_, own, result.sentences);
    return result;
}

NotesFile::Result NotesFile::write(const std::vector<NoteEdit>& edits) const
{
    const FolderLock lock(folderOf(file_));
    const OneFile beside = readOne(beside_);
    const OneFile own = readOne(own_);
    Result result{together(beside, own), {}};
    for (const NoteEdit& edit : edits)
        if (apply(result.notes, edit))
            result.sentences << tr("Somebody else has changed the note on line %1 of %2, too: both "
                                   "texts are kept")
                                    .arg(edit.after.row.line)
                                    .arg(edit.after.row.source);
    QString why;
    if (writeBeside(result.notes, beside.state, result.sentences, why))
        endOwn(own.state, result.sentences);
    else
        writeOwn(result.notes, beside, own.state, why, result.sentences);
    return result;
}

/// False, and why, where nothing can be written beside the log.
bool NotesFile::writeBeside(const Notes& notes, State before, QStringList& sentences,
                            QString& why) const
{
    if (before == State::newer || before == State::closed) {
        why = before == State::newer ? tr("a newer viewer has written there")
                                     : tr("it can't be read");
        return false;
    }
    try {
        if (before == State::damaged) putAside(beside_, sentences);
        if (notes.empty() && before == State::sound)
            RootFolder(folderOf(beside_)).removeFile(lastNameOf(beside_));
        else if (!notes.empty())
            writeOne(beside_, notes);
    } catch (const RunTimeError& error) {
        why = reasonOf(error);
        return false;
    }
    return true;
}

/// Takes the user's own notes away, as they lie beside the log now. Those of a file that could not
/// be read do not: a damaged one is put aside, any other stays.
void NotesFile::endOwn(State before, QStringList& sentences) const
{
    try {
        if (before == State::sound)
            RootFolder(ownFolder_).removeFile(lastNameOf(own_));
        else if (before == State::damaged)
            putAside(own_, sentences);
    } catch (const RunTimeError& error) {
        sentences << tr("The notes in %1 stay there, though those beside the log go on: %2")
                         .arg(text(own_), reasonOf(error));
    }
}

/// Writes what differs from what lies beside the log, notes that are gone as empty ones.
void NotesFile::writeOwn(const Notes& notes, const OneFile& beside, State before,
                         const QString& why, QStringList& sentences) const
{
    Notes differing;
    for (const Note& note : notes) {
        const Note* there = noteOf(beside.notes, note.row);
        if (there == nullptr || !there->says(note)) differing.push_back(note);
    }
    for (const Note& note : beside.notes)
        if (noteOf(notes, note.row) == nullptr) differing.push_back({note.row, false, {}});
    try {
        if (before == State::damaged) putAside(own_, sentences);
        if (before == State::newer || before == State::closed)
            throw RunTimeError(runTimeErrors::permissionDenied);
        QDir().mkpath(text(ownFolder_));
        writeOne(own_, differing);
        sentences << tr("No notes can be written beside %1 (%2). They are kept in %3.")
                         .arg(text(file_), why, text(own_));
    } catch (const RunTimeError& error) {
        sentences << tr("The notes on %1 can't be kept, neither beside it (%2) nor in %3 (%4)")
                         .arg(text(file_), why, text(own_), reasonOf(error));
    }
}

/// Writes a file whole, and looks whether it says what was written.
void NotesFile::writeOne(const std::string& path, const Notes& notes) const
{
    const std::string bytes = toJson(notes, text(lastNameOf(file_))).toStdString();
    const RootFolder folder(folderOf(path), RootFolder::Bounds::machine);
    sweepReplacementFiles(folder, "");
    ReplacementFile file(folder, lastNameOf(path));
    file.write(bytes);
    file.commit(true);
    if (readWholeFile(folder, lastNameOf(path), runTimeErrors::fileNotFound) != bytes)
        throw RunTimeError(
            runTimeErrors::deviceIo,
            tr("%1 does not say what was written to it").arg(text(path)).toStdString());
}

/// Gives a damaged file another name, which is free.
void NotesFile::putAside(const std::string& path, QStringList& sentences)
{
    const RootFolder folder(folderOf(path), RootFolder::Bounds::machine);
    const std::string name = lastNameOf(path);
    for (int number = 1; number <= mostBroken; ++number) {
        const std::string aside =
            name + ".broken" + (number == 1 ? std::string() : "-" + std::to_string(number));
        if (folder.unfollowedFacts(aside)) continue;
        folder.rename(name, aside);
        sentences << tr("The damaged notes are kept in %1").arg(text(folderOf(path) + "/" + aside));
        return;
    }
    throw RunTimeError(runTimeErrors::fileAlreadyExists);
}

} // namespace viewer
