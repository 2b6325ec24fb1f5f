#pragma once

#include "hosts/viewer/marks/note.h"

#include <QCoreApplication>
#include <QStringList>

#include <string>
#include <vector>

namespace viewer {

/// The notes on the rows of a file, in a file beside it: `LOG.notes.json`. The log itself is never
/// touched.
///
/// Where none can be written beside it, the notes that differ from those there are kept in a file
/// of the user's own, and go before them. Others may write at the same time: what they have written
/// is read again before each change, under a lock of the folder. For a thread of its own, as disks
/// take their time.
class NotesFile {
    Q_DECLARE_TR_FUNCTIONS(NotesFile)

public:
    /// `file` is the one that has the rows; `ownFolder` is made when something is kept there.
    NotesFile(std::string file, std::string ownFolder);

    /// Notes, and sentences of what a person should know: what can't be read, where notes are kept.
    struct Result {
        Notes notes;
        QStringList sentences;
    };

    /// All notes there are; those of a damaged file are left out.
    Result read() const;

    /// Makes changes to the notes that are there by now, writes them and reads them back. A damaged
    /// file is put aside, with ".broken" behind its name. The notes are those that were to be
    /// written, where it failed, too.
    Result write(const std::vector<NoteEdit>& edits) const;

    /// Where notes are kept: beside the file, or else by the user.
    const std::string& beside() const { return beside_; }
    const std::string& own() const { return own_; }

    /// The ending of names of such files.
    static constexpr const char* ending = ".notes.json";

private:
    enum class State { missing, sound, damaged, newer, closed };
    struct OneFile {
        State state = State::missing;
        Notes notes;
        QString why; ///< it is not sound
    };

    OneFile readOne(const std::string& path) const;
    static Notes together(const OneFile& beside, const OneFile& own);
    static void tell(const std::string& path, const OneFile& file, QStringList& sentences);
    bool writeBeside(const Notes& notes, State before, QStringList& sentences, QString& why) const;
    void endOwn(State before, QStringList& sentences) const;
    void writeOwn(const Notes& notes, const OneFile& beside, State before, const QString& why,
                  QStringList& sentences) const;
    void writeOne(const std::string& path, const Notes& notes) const;
    static void putAside(const std::string& path, QStringList& sentences);

    std::string file_;
    std::string beside_;
    std::string ownFolder_;
    std::string own_;
};

} // namespace viewer
