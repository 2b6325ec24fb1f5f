#pragma once

#include "hosts/viewer/document/newest_task.h"
#include "hosts/viewer/marks/row_finding.h"
#include "hosts/viewer/session/session_store.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

class Highlights;

namespace viewer {

class RowModel;
class RowTable;

/// Shows sources that are opened again as they were when they were closed: filter, columns, kept
/// texts, the row that times are told from, and the rows in sight.
class SessionKeeper final : public QObject {
    Q_OBJECT

public:
    /// The parts of a window that a session is of; they outlive the keeper.
    struct Parts {
        Document& document;
        RowModel& rows;
        RowTable& table;
        Highlights& highlights;
    };

    /// Sessions are kept in `folder`.
    SessionKeeper(const Parts& parts, const QString& folder, QObject* parent = nullptr);
    ~SessionKeeper() override;

    /// Whether what is opened next is shown as it was. Sources that come to others never are.
    void setRestoring(bool restoring) { restoring_ = restoring; }

    /// Keeps what is on show, by all that was opened; nothing where standard input is among it, or
    /// no rows came.
    void save();

    /// Shows all as if it had never been opened, and forgets how it was.
    void startAfresh();

    /// Whether rows are hidden by the filter of last time, which the person has not touched yet.
    bool hidesRows() const { return hidesRows_; }

signals:
    /// A session is on show, or the person has changed the filter that it had.
    void changed();

private:
    void begin(const QStringList& paths);
    void restore(const Session& session);
    void restoreColumns(const std::vector<ColumnPlace>& columns);
    void filterChanged();
    bool giveUpIfMoved();
    void findRows();
    void goTo(const std::optional<timeline::IndexRow>& current,
              const std::optional<timeline::IndexRow>& top);
    Session session();
    std::optional<RowPlace> placeOf(std::size_t place);

    Parts parts_;
    SessionStore store_;
    QStringList paths_; ///< that were asked for
    bool restoring_ = true;
    bool hidesRows_ = false;
    bool setsFilter_ = false;
    std::optional<RowPlace> wantedCurrent_; ///< rows that are not found yet
    std::optional<RowPlace> wantedTop_;
    std::shared_ptr<const RowOrder> soughtIn_;
    bool soughtEverywhere_ = false;
    NewestTask finding_;
};

} // namespace viewer
