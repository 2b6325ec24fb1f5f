#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/document/newest_task.h"
#include "hosts/viewer/document/task_queue.h"
#include "hosts/viewer/marks/notes_file.h"
#include "hosts/viewer/marks/row_finding.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace viewer {

/// Bookmarks and notes on the rows of a document: kept in files beside its sources, and found again
/// when these are opened. Files are read and written, and rows found, on threads of its own.
class Marks final : public QObject {
    Q_OBJECT

public:
    /// Notes that can't lie beside a source are kept in `ownFolder`. The document outlives this.
    Marks(Document& document, const QString& ownFolder, QObject* parent = nullptr);
    ~Marks() override;

    /// What is kept of a row; null for nothing. It holds until the next change.
    const Note* of(const timeline::IndexRow& row) const;

    /// The same in words: the text of its note, or that it has a bookmark; empty for nothing.
    QString remark(const timeline::IndexRow& row) const;

    /// Sets a bookmark on the row at a place on show, or takes it away. True where one is set now;
    /// nothing where none can be.
    std::optional<bool> toggleBookmark(std::size_t place);

    /// Gives a row a text, or takes it away with an empty one. False where that failed: nothing is
    /// known of the row's source, it can't be read, or the text is longer than `longestText`.
    bool setText(const timeline::IndexRow& row, const QString& text);

    /// Takes every bookmark away; texts stay.
    void clearBookmarks();

    struct Mark;
    /// Takes all away that is kept of a row, one that was not found as well.
    void remove(const Mark& mark);

    /// A row of which something is kept, and where it is; no row for one that was not found.
    struct Mark {
        Note note;
        std::string file; ///< the path, as it is on the machine, of the one that has the row
        std::optional<timeline::IndexRow> row;
    };

    /// All of them by time, those that were not found last.
    std::vector<Mark> all() const;

    bool isEmpty() const;

    /// The place of the next row on show of which something is kept, on from the other end; nothing
    /// where none is on show.
    std::optional<std::size_t> next(std::optional<std::size_t> from, Direction direction);

    /// The longest text that a person may give a row, in characters.
    static constexpr int longestText = 10'000;

signals:
    /// Other things are kept, or more of their rows are found.
    void changed();

    /// A sentence of what a person should know of files of notes.
    void told(const QString& sentence);

private:
    struct Pending {
        std::uint64_t number;
        NoteEdit edit;
    };

    /// The notes of a file that has rows.
    struct Book {
        std::shared_ptr<const NotesFile> file;
        std::string path;
        Notes written; ///< as its file has them
        std::vector<Pending> pending;
        Notes notes;                                       ///< as they will be
        std::vector<std::vector<timeline::IndexRow>> rows; ///< of each note
    };

    /// Rows that were found: their files, what they were looked for by, and where they are.
    struct FoundMark {
        std::string file;
        RowIdentity identity;
        timeline::IndexRow row;
    };
    using Found = std::vector<FoundMark>;

    void takeSources();
    void takeNotes(const std::string& path, const NotesFile::Result& result, std::uint64_t edit);
    bool edit(const timeline::IndexRow& row, bool bookmark, const QString& text);
    void change(Book& book, const std::vector<NoteEdit>& edits);
    bool renew(Book& book);
    void index();
    void findMissing();
    void takeFound(const Found& found);
    void say(const QString& sentence);
    Book* bookOf(const timeline::IndexRow& row);

    Document& document_;
    std::string ownFolder_;
    /// By the paths of the files that have rows. Names are bytes: as a QString two of them may be
    /// one.
    std::map<std::string, Book> books_;
    std::size_t knownSources_ = 0;
    std::unordered_map<std::uint64_t, std::pair<const Book*, std::size_t>> byPlace_;
    std::uint64_t edits_ = 0;
    std::shared_ptr<const RowOrder> soughtIn_; ///< rows that were looked through
    bool soughtEverywhere_ = false;            ///< on every line of those
    QSet<QString> said_;
    NewestTask finding_;
    TaskQueue files_;
};

} // namespace viewer
