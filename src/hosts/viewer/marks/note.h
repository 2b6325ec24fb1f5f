#pragma once

#include "hosts/viewer/marks/row_identity.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace viewer {

/// What a person keeps of a row: a bookmark, a text, or both.
struct Note {
    RowIdentity row;
    bool bookmark = false;
    QString text;

    /// Whether nothing is kept of the row.
    bool isEmpty() const { return !bookmark && text.isEmpty(); }

    /// Whether the same is kept, of whatever row.
    bool says(const Note& other) const { return bookmark == other.bookmark && text == other.text; }
};

/// A change of what is kept of one row, by a person who saw it as it was before.
struct NoteEdit {
    Note before; ///< of the same row as `after`
    Note after;
};

/// The notes of one file.
using Notes = std::vector<Note>;

/// What is kept of a row; null for nothing.
const Note* noteOf(const Notes& notes, const RowIdentity& row);

/// Changes what is kept of a row. What somebody else has changed meanwhile stays: of two texts both
/// are kept, one below the other. True where it came to that, or where a text stays that the person
/// had taken away.
bool apply(Notes& notes, const NoteEdit& edit);

/// Puts what is kept of a row in the place of what was; of a row without anything the note goes.
void put(Notes& notes, const Note& note);

/// Notes as a file has them, for the source that it lies beside, and back. Raises 5, with a
/// sentence, for what is no such file, and 321 for one of a newer version. A row of which nothing
/// is kept is one that another file's notes are not to be shown of.
QByteArray toJson(const Notes& notes, const QString& source);
Notes notesOfJson(const QByteArray& json);

} // namespace viewer
