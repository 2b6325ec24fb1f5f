#pragma once

#include "hosts/viewer/calls/call_counting.h"
#include "hosts/viewer/calls/call_rows.h"
#include "hosts/viewer/calls/wish_thread.h"
#include "hosts/viewer/document/document.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>

namespace viewer {

class CallSearch;

/// The calls of a document, for the thread of the windows: the list of those on show, and the rows
/// of one. Both are made on threads of their own, and told by signals, the first parts at once.
/// They grow with logs that are followed, some times a second, without being made anew.
class Calls final : public QObject {
    Q_OBJECT

public:
    /// The document outlives it.
    explicit Calls(Document& document, QObject* parent = nullptr);
    ~Calls() override;

    /// How far something is that is made beside the window.
    enum class Work { none, running, stopped, done };

    /// Keeps the list that of the rows on show from now on, or lets it be.
    void keepList(bool kept);

    /// The list so far; null before there was any.
    std::shared_ptr<const CallList> list() const { return list_; }
    Work listWork() const { return listWork_; }

    /// Looks for the rows of a call, which is best known by the moment of one of them. Those of all
    /// processes are found, on show or not.
    void look(const std::string& id, timeline::Moment around);

    /// The rows so far of the call that was looked for; null before there was any.
    std::shared_ptr<const CallRows> rows() const { return rows_; }
    Work rowsWork() const { return rowsWork_; }

    /// How much of the looking is done, from 0 to 1.
    double rowsShare() const { return rowsShare_; }

    /// Whether a list or rows are being made.
    bool busy() const { return listWork_ == Work::running || rowsWork_ == Work::running; }

    /// Ends both; what was found so far stays.
    void stop();

    /// Whether any of the opened sources may have call ids.
    bool anySource() const;

    /// The place of the row with the call id of the row at a place: itself, or the one that it is
    /// a line of. Nothing where that has no call id.
    std::optional<std::size_t> placeWithId(std::size_t place);

    /// A row, on show or not, as the table shows it.
    ShownRow row(const timeline::IndexRow& row) const;

    /// The trace of a row, with the lines that belong to it.
    QString text(const timeline::IndexRow& row) const;

signals:
    /// The list, or its work, is another one.
    void listChanged();

    /// The rows of the call, or their work, are others.
    void rowsChanged();

private:
    struct ListWish {
        std::uint64_t number = 0;
        std::shared_ptr<const View> view;
        std::shared_ptr<CallCounting> grows; ///< what it goes on with; null to begin
        std::size_t same = 0;                ///< places that are as they were there
    };
    struct RowsWish {
        std::uint64_t number = 0;
        std::shared_ptr<const RowOrder> order;
        std::string id;
        timeline::Moment around = timeline::noMoment;
        std::shared_ptr<CallSearch> grows; ///< what it goes on with; null to begin
        std::size_t same = 0;              ///< rows at the top that are as they were there
    };

    void followView();
    void followGrowth();
    void grow();
    void makeList();
    void makeRows();
    void answer(const ListWish& wish, const GivenUp& givenUp);
    void answer(const RowsWish& wish, const GivenUp& givenUp);
    void take(CallList list);
    void take(CallRows rows);
    void listDone(std::shared_ptr<CallCounting> counted);
    void rowsDone(std::shared_ptr<CallSearch> searched);

    Document& document_;
    bool listKept_ = false;
    std::shared_ptr<const View> listed_; ///< what the list is made of
    std::shared_ptr<const CallList> list_;
    bool listGrows_ = false; ///< whether it is one of more rows than the one before
    Work listWork_ = Work::none;
    bool listInWork_ = false;
    std::shared_ptr<CallCounting> counted_; ///< all rows of `listed_`; null before
    std::optional<std::size_t> listSame_;   ///< places as in `listed_`; unset unless it grew
    RowsWish looked_;                       ///< for; its id is empty while nothing is
    std::shared_ptr<const CallRows> rows_;
    Work rowsWork_ = Work::none;
    bool rowsInWork_ = false;
    std::shared_ptr<CallSearch> searched_; ///< all rows of the order; null before
    std::optional<std::size_t> rowsSame_;  ///< rows as in that order; unset unless it grew
    double rowsShare_ = 0;
    QTimer growing_; ///< runs from growing to growing
    std::uint64_t wishes_ = 0;
    std::uint64_t listWish_ = 0;
    WishThread<ListWish> lister_;
    WishThread<RowsWish> finder_;
};

} // namespace viewer
