#include "hosts/viewer/marks/marks.h"

#include "runtime/run_time_error.h"

#include <QHash>
#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace viewer {

namespace {

using timeline::IndexRow;

QString keyOf(const RowIdentity& row)
{
    return QStringLiteral("%1\n%2\n%3\n%4").arg(row.hash, row.source).arg(row.line).arg(row.moment);
}

} // namespace

Marks::Marks(Document& document, const QString& ownFolder, QObject* parent)
    : QObject(parent), document_(document), ownFolder_(ownFolder.toStdString())
{
    connect(&document_, &Document::progressed, this, &Marks::takeSources);
    connect(&document_, &Document::progressed, this, &Marks::findMissing);
    connect(&document_, &Document::viewChanged, this, &Marks::findMissing);
}

Marks::~Marks() = default;

/// Reads the notes of sources that are new.
void Marks::takeSources()
{
    const std::vector<SourceHome>& homes = document_.homes();
    for (; knownSources_ < homes.size(); ++knownSources_) {
        if (homes[knownSources_].name.empty()) return; // it is told of behind a later one
        const std::string& path = homes[knownSources_].file;
        soughtIn_.reset(); // a note may be of this source, too
        if (books_.contains(path)) continue;
        Book& book = books_[path];
        book.path = path;
        if (path.empty()) continue;
        book.file = std::make_shared<NotesFile>(path, ownFolder_);
        files_.add([this, path, notes = book.file] {
            const NotesFile::Result read = notes->read();
            QMetaObject::invokeMethod(
                this, [this, path, read] { takeNotes(path, read, 0); }, Qt::QueuedConnection);
        });
    }
}

/// Takes the notes that a file has after an edit of a number; those behind it are still to come.
void Marks::takeNotes(const std::string& path, const NotesFile::Result& result, std::uint64_t edit)
{
    Book& book = books_[path];
    book.written = result.notes;
    std::erase_if(book.pending, [&](const Pending& one) { return one.number <= edit; });
    if (renew(book)) soughtIn_.reset();
    for (const QString& sentence : result.sentences) say(sentence);
    emit changed();
    findMissing();
}

/// Puts what is still to be written over what is; rows that were found stay so. True where there
/// are notes that were not known before.
bool Marks::renew(Book& book)
{
    QHash<QString, std::vector<IndexRow>> known;
    for (std::size_t note = 0; note < book.notes.size(); ++note)
        known.insert(keyOf(book.notes[note].row), book.rows[note]);
    bool news = false;
    book.notes = book.written;
    for (const Pending& pending : book.pending) apply(book.notes, pending.edit);
    book.rows.assign(book.notes.size(), {});
    for (std::size_t note = 0; note < book.notes.size(); ++note) {
        const auto before = known.constFind(keyOf(book.notes[note].row));
        if (before == known.cend())
            news = true;
        else
            book.rows[note] = *before;
    }
    index();
    return news;
}

void Marks::index()
{
    byPlace_.clear();
    for (const auto& [path, book] : books_)
        for (std::size_t note = 0; note < book.notes.size(); ++note)
            for (const IndexRow& row : book.rows[note]) byPlace_[row.place] = {&book, note};
}

const Note* Marks::of(const IndexRow& row) const
{
    const auto known = byPlace_.find(row.place);
    if (known == byPlace_.end()) return nullptr;
    const auto& [book, note] = known->second;
    // A log that was cut off may have another row at the place by now.
    const auto same = [&](const IndexRow& other) {
        return other.place == row.place && other.moment == row.moment && other.line == row.line;
    };
    const auto& rows = book->rows[note];
    return std::any_of(rows.begin(), rows.end(), same) ? &book->notes[note] : nullptr;
}

QString Marks::remark(const IndexRow& row) const
{
    const Note* note = of(row);
    if (note == nullptr) return {};
    return note->text.isEmpty() ? tr("Bookmark") : note->text;
}

Marks::Book* Marks::bookOf(const IndexRow& row)
{
    takeSources();
    if (row.source() >= document_.homes().size()) return nullptr;
    return &books_[document_.homes()[row.source()].file];
}

bool Marks::edit(const IndexRow& row, bool bookmark, const QString& text)
{
    Book* book = bookOf(row);
    if (book == nullptr) return false;
    if (!book->file) say(tr("Bookmarks and notes on rows that come through a pipe are not kept"));
    NoteEdit edit;
    if (const Note* note = of(row)) {
        edit.before = *note;
    } else {
        try {
            edit.before.row = identityIn(document_, row);
        } catch (const RunTimeError& error) {
            say(harmless(QString::fromStdString(error.description())));
            return false;
        }
    }
    edit.after = {edit.before.row, bookmark, text};
    change(*book, {edit});
    const Note* made = noteOf(book->notes, edit.after.row);
    if (made != nullptr) {
        auto& rows = book->rows[static_cast<std::size_t>(made - book->notes.data())];
        if (rows.empty()) rows = {row};
        index();
    }
    emit changed();
    return true;
}

void Marks::change(Book& book, const std::vector<NoteEdit>& edits)
{
    const std::uint64_t number = ++edits_;
    for (const NoteEdit& edit : edits) book.pending.push_back({number, edit});
    renew(book);
    if (!book.file) return;
    files_.add([this, path = book.path, file = book.file, edits, number] {
        const NotesFile::Result written = file->write(edits);
        QMetaObject::invokeMethod(
            this, [this, path, written, number] { takeNotes(path, written, number); },
            Qt::QueuedConnection);
    });
}

std::optional<bool> Marks::toggleBookmark(std::size_t place)
{
    if (place >= document_.rowCount()) return std::nullopt;
    const IndexRow row = document_.indexRow(place);
    const Note* note = of(row);
    const bool set = note == nullptr || !note->bookmark;
    if (!edit(row, set, note == nullptr ? QString() : note->text)) return std::nullopt;
    return set;
}

bool Marks::setText(const IndexRow& row, const QString& text)
{
    const Note* note = of(row);
    if (text == (note == nullptr ? QString() : note->text)) return true;
    return text.size() <= longestText && edit(row, note != nullptr && note->bookmark, text);
}

void Marks::clearBookmarks()
{
    for (auto& [path, book] : books_) {
        std::vector<NoteEdit> edits;
        for (const Note& note : book.notes)
            if (note.bookmark) edits.push_back({note, {note.row, false, note.text}});
        if (!edits.empty()) change(book, edits);
    }
    emit changed();
}

void Marks::remove(const Mark& mark)
{
    const auto book = books_.find(mark.file);
    if (book == books_.end()) return;
    change(book->second, {{mark.note, {mark.note.row, false, {}}}});
    emit changed();
}

std::vector<Marks::Mark> Marks::all() const
{
    std::vector<Mark> marks;
    for (const auto& [path, book] : books_)
        for (std::size_t note = 0; note < book.notes.size(); ++note) {
            if (book.rows[note].empty()) marks.push_back({book.notes[note], path, std::nullopt});
            for (const IndexRow& row : book.rows[note])
                marks.push_back({book.notes[note], path, row});
        }
    std::stable_sort(marks.begin(), marks.end(), [](const Mark& one, const Mark& other) {
        const auto order = [](const Mark& mark) {
            return std::pair(!mark.row, mark.row ? mark.row->moment : mark.note.row.moment);
        };
        return order(one) < order(other);
    });
    return marks;
}

bool Marks::isEmpty() const
{
    return std::all_of(books_.begin(), books_.end(),
                       [](const auto& book) { return book.second.notes.empty(); });
}

std::optional<std::size_t> Marks::next(std::optional<std::size_t> from, Direction direction)
{
    std::vector<std::size_t> places;
    std::vector<IndexRow> rows;
    for (const Mark& mark : all())
        if (mark.row) rows.push_back(*mark.row);
    for (const auto& place : document_.placesOnShow(rows))
        if (place) places.push_back(*place);
    std::sort(places.begin(), places.end());
    if (places.empty()) return std::nullopt;
    if (direction == Direction::down) {
        const auto behind =
            from ? std::upper_bound(places.begin(), places.end(), *from) : places.begin();
        return behind == places.end() ? places.front() : *behind;
    }
    const auto before = from ? std::lower_bound(places.begin(), places.end(), *from) : places.end();
    return before == places.begin() ? places.back() : *(before - 1);
}

/// Looks for the rows of notes that are not found yet: again whenever there are more rows, and on
/// every line once all are read.
void Marks::findMissing()
{
    const auto order = document_.view().order;
    const bool everywhere = !document_.state().busy;
    if (!order || (order == soughtIn_ && (soughtEverywhere_ || !everywhere))) return;
    std::vector<WantedRow> wanted;
    std::vector<std::string> paths; // of the wanted rows' books
    for (const auto& [path, book] : books_)
        for (std::size_t note = 0; note < book.notes.size(); ++note) {
            if (!book.rows[note].empty()) continue;
            const RowIdentity& row = book.notes[note].row;
            wanted.push_back({wanted.size(), row, sourcesOf(document_, path, row.source)});
            paths.push_back(path);
        }
    soughtIn_ = order;
    soughtEverywhere_ = everywhere;
    if (wanted.empty()) return;
    finding_.start([this, wanted, paths, everywhere](const NewestTask::GivenUp& givenUp) {
        Found found;
        for (const FoundRow& one : findRows(document_.timeline(), wanted, everywhere, givenUp))
            found.push_back({paths[one.number], wanted[one.number].identity, one.row});
        if (found.empty()) return;
        QMetaObject::invokeMethod(
            this, [this, found] { takeFound(found); }, Qt::QueuedConnection);
    });
}

void Marks::takeFound(const Found& found)
{
    for (const FoundMark& mark : found) {
        Book& book = books_[mark.file];
        const Note* note = noteOf(book.notes, mark.identity);
        if (note == nullptr) continue; // it was taken away meanwhile
        auto& rows = book.rows[static_cast<std::size_t>(note - book.notes.data())];
        if (std::none_of(rows.begin(), rows.end(),
                         [&](const IndexRow& other) { return other.place == mark.row.place; }))
            rows.push_back(mark.row);
    }
    index();
    emit changed();
}

void Marks::say(const QString& sentence)
{
    if (said_.contains(sentence)) return;
    said_.insert(sentence);
    emit told(sentence);
}

} // namespace viewer
