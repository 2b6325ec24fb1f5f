#pragma once

#include "timeline/index/index_row.h"
#include "timeline/record.h"

#include <QJsonObject>
#include <QString>

#include <cstdint>

namespace viewer {

/// By what a row is known again in another session, in a log that has grown meanwhile or lost its
/// beginning: where it stands, when it was written and what it says.
struct RowIdentity {
    QString source;         ///< the name of its log; that of a cabinet and its member
    std::uint32_t line = 0; ///< in that file, from 1
    timeline::Moment moment = timeline::noMoment;
    QString hash;  ///< of its text: 16 hexadecimal digits
    QString trace; ///< the beginning of it, for people; no part of what the row is known by

    /// Whether both mean the same row.
    bool is(const RowIdentity& other) const;

    /// As one object of JSON, and back. Raises 5, with a sentence, for an object that is none.
    QJsonObject toJson() const;
    static RowIdentity ofJson(const QJsonObject& json);
};

/// The identity of a row of a source.
RowIdentity identityOf(const QString& source, const timeline::IndexRow& row,
                       const timeline::Record& record);

/// The hash of a row's text.
QString textHash(const timeline::Record& record);

} // namespace viewer
