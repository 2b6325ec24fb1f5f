#include "hosts/viewer/marks/note.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace viewer {

namespace {

constexpr int version = 1;
const QString formName = QStringLiteral("orvandiag notes");

/// What is said of notes that are damaged.
class NoteTexts {
    Q_DECLARE_TR_FUNCTIONS(NoteTexts)
};

[[noreturn]] void refuse(const QString& what)
{
    throw RunTimeError(runTimeErrors::invalidCall, what.toStdString());
}

Note noteOfJson(const QJsonValue& json)
{
    if (!json.isObject()) refuse(NoteTexts::tr("a note is no object"));
    const QJsonValue bookmark = json[QStringLiteral("bookmark")];
    const QJsonValue text = json[QStringLiteral("note")];
    if (!bookmark.isBool() || !text.isString())
        refuse(NoteTexts::tr("a note has no bookmark or text"));
    return {RowIdentity::ofJson(json.toObject()), bookmark.toBool(), text.toString()};
}

} // namespace

const Note* noteOf(const Notes& notes, const RowIdentity& row)
{
    const auto found = std::find_if(notes.begin(), notes.end(),
                                    [&](const Note& note) { return note.row.is(row); });
    return found == notes.end() ? nullptr : &*found;
}

void put(Notes& notes, const Note& note)
{
    const auto found = std::find_if(notes.begin(), notes.end(),
                                    [&](const Note& other) { return other.row.is(note.row); });
    if (found == notes.end()) {
        if (!note.isEmpty()) notes.push_back(note);
    } else if (note.isEmpty()) {
        notes.erase(found);
    } else {
        *found = note;
    }
}

bool apply(Notes& notes, const NoteEdit& edit)
{
    Note merged{edit.after.row, false, {}};
    if (const Note* there = noteOf(notes, edit.after.row)) merged = *there;
    bool bothKept = false;
    if (edit.after.bookmark != edit.before.bookmark) merged.bookmark = edit.after.bookmark;
    if (edit.after.text != edit.before.text && edit.after.text != merged.text) {
        bothKept = merged.text != edit.before.text && !merged.text.isEmpty();
        if (!bothKept)
            merged.text = edit.after.text;
        else if (!edit.after.text.isEmpty())
            merged.text += QLatin1Char('\n') + edit.after.text;
    }
    put(notes, merged);
    return bothKept;
}

QByteArray toJson(const Notes& notes, const QString& source)
{
    QJsonArray array;
    for (const Note& note : notes) {
        QJsonObject json = note.row.toJson();
        json[QStringLiteral("bookmark")] = note.bookmark;
        json[QStringLiteral("note")] = note.text;
        array.append(json);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("format"), formName},
                                     {QStringLiteral("version"), version},
                                     {QStringLiteral("source"), source},
                                     {QStringLiteral("notes"), array}})
        .toJson();
}

Notes notesOfJson(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonObject file = QJsonDocument::fromJson(json, &error).object();
    if (file.value(QStringLiteral("format")).toString() != formName)
        refuse(NoteTexts::tr("it is none of notes"));
    if (file.value(QStringLiteral("version")).toInt() > version)
        throw RunTimeError(runTimeErrors::invalidFileFormat, "it is of a newer version");
    if (file.value(QStringLiteral("version")).toInt() != version)
        refuse(NoteTexts::tr("it has no version"));
    if (!file.value(QStringLiteral("notes")).isArray()) refuse(NoteTexts::tr("it has no notes"));
    Notes notes;
    for (const auto& note : file.value(QStringLiteral("notes")).toArray())
        notes.push_back(noteOfJson(note));
    return notes;
}

} // namespace viewer
