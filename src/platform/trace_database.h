#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

/// The errors of the trace database, by the numbers that its engine gives them.
namespace traceDatabaseErrors {
constexpr int noAddInProgress = 3020; ///< a field was set, or a row updated, without addNew
constexpr int noCurrentRecord = 3021; ///< a field was read without addNew
constexpr int fileNotFound = 3024;    ///< no such database file
constexpr int diskFull = 3026;        ///< the disk or the quota holds no more
constexpr int readOnly = 3027;        ///< the table is not one that rows may be added to
constexpr int fileInUse = 3045;       ///< another writer has the database open
constexpr int rowTooLarge = 3047;     ///< the row's texts together are more than a page holds
constexpr int cannotOpen = 3051;      ///< the file may not be opened for writing
constexpr int noSuchTable = 3078;     ///< no table of that name
constexpr int fieldTooSmall = 3163;   ///< a long text or a number has more characters than fit
constexpr int databaseFull = 3183;    ///< the file has its largest size
constexpr int noSuchField = 3265;     ///< no column of that name
constexpr int requiredField = 3314;   ///< the row has no value for a column that takes no Null
constexpr int zeroLength = 3315;      ///< the column takes no zero-length text
constexpr int unknownFormat = 3343;   ///< not a trace database, or a damaged one
constexpr int objectClosed = 3420;    ///< the recordset, or its database, was closed
constexpr int conversion = 3421;      ///< a text that is no number, a number out of range
} // namespace traceDatabaseErrors

/// A column of a recordset: takes and gives the value of the row that is being added.
///
/// A failed assignment leaves the value that the field had: Null when it had none yet.
class TraceField {
public:
    virtual ~TraceField() = default;

    /// A text in the server's code page, as log lines hold it. A numeric column takes the number
    /// that the text spells. Of a text that is longer than a text column, the column takes what it
    /// holds, whole characters; a long text column refuses it. Raises 3020, 3163, 3315, 3420, 3421.
    virtual void setText(std::string_view text) = 0;

    /// A text in UTF-8; what is no UTF-8 is stored as replacement characters. Raises as `setText`.
    virtual void setUtf8(std::string_view text) = 0;

    /// A number; a text column takes its decimal form. Raises 3020, 3163, 3420, 3421.
    virtual void setNumber(std::int32_t number) = 0;

    /// The value as text: a text byte for byte as it was set, as far as the column holds it, a
    /// number in decimal form, Null as the empty text. Holds until the field changes or the row is
    /// updated. Raises 3021, 3420.
    virtual std::string_view text() const = 0;

    /// Whether the field has no value, which the empty text is not. Raises 3021, 3420.
    virtual bool isNull() const = 0;
};

/// A table opened for adding rows.
class TraceRecordset {
public:
    virtual ~TraceRecordset() = default;

    /// A text in the server's code page, in UTF-8.
    virtual std::string utf8Of(std::string_view text) const = 0;

    /// The column of a name, without regard to case. It lives as long as the recordset, so that a
    /// loop can hold it. Raises 3265, 3420.
    virtual TraceField& field(std::string_view name) = 0;

    /// Begins a row with every field at its column's default, Null where there is none. A row that
    /// was begun and not updated is dropped. Raises 3420.
    virtual void addNew() = 0;

    /// Stores the row. On return it is in the file, even if the program is killed at once. A failed
    /// update stores nothing, leaves the rows before it whole, and the row is still being added.
    /// Raises 3020, 3026, 3047, 3183, 3314, 3420, and 3343 when another program has cut the file.
    virtual void update() = 0;

    /// Lets the table go; a row that was begun is dropped. Raises 3420 when it is closed already.
    virtual void close() = 0;
};

/// An open trace database. One that is not closed is closed with the object.
class TraceDatabase {
public:
    virtual ~TraceDatabase() = default;

    /// A table by name, without regard to case. Raises 3027, 3078, 3343, 3420.
    virtual std::unique_ptr<TraceRecordset> openRecordset(std::string_view table) = 0;

    /// Closes the file. Recordsets that are still open are closed with it. Raises 3420 when it is
    /// closed already.
    virtual void close() = 0;
};

/// Opens trace databases.
class TraceDatabaseEngine {
public:
    virtual ~TraceDatabaseEngine() = default;

    /// Opens a database file for adding rows; `path` is one that FileSystem takes.
    /// Raises 3024, 3045, 3051, 3343.
    virtual std::unique_ptr<TraceDatabase> openDatabase(const std::string& path) = 0;
};
