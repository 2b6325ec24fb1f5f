#pragma once

#include "hosts/common/filters/row_filter.h"
#include "hosts/viewer/document/hit_finder.h"
#include "hosts/viewer/document/level_search.h"
#include "hosts/viewer/document/log_following.h"
#include "hosts/viewer/document/shown_row.h"
#include "hosts/viewer/document/source_opening.h"
#include "hosts/viewer/document/view.h"
#include "hosts/viewer/document/view_maker.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace viewer {

/// The opened logs and what of them is on show, for the thread of the windows. No call waits longer
/// than some milliseconds; what takes longer is done elsewhere, and told by a signal.
class Document final : public QObject {
    Q_OBJECT

public:
    explicit Document(QObject* parent = nullptr);
    ~Document() override;

    /// Opens paths of the machine, or standard input for "-", behind what is open.
    void open(const QStringList& paths);

    /// Ends opening and reading; the rows so far stay.
    void cancel();

    /// Follows the opened logs, and those that are opened, as they grow: rows that come are shown.
    /// `followRefused` tells where there is none that can be followed; it follows none then.
    void follow(bool wish);
    bool follows() const { return follows_; }

    /// How far opening and reading are, and whether a view of it is still being made. The share is
    /// nothing while nobody knows.
    struct State {
        bool busy = false;
        std::optional<double> share; ///< from 0 to 1
        std::size_t rows = 0;        ///< that were read
    };
    State state() const;

    /// Whether paths were opened that have rows, or may have.
    bool hasSources() const { return sources_ > 0; }

    /// The macro traces that the opened trace databases define, the first definition of a name
    /// alone, in the order of their names.
    const std::map<QString, std::vector<timeline::ComponentLevels>>& macroTraces() const
    {
        return macroTraces_;
    }

    /// The paths that were opened and had something to read, in their order.
    const QStringList& paths() const { return paths_; }

    /// Where the sources are, by their numbers.
    const std::vector<SourceHome>& homes() const { return homes_; }

    /// The rows, for those who do on a thread of their own what takes long; and what of them is on
    /// show. They end before the document does.
    SharedTimeline& timeline() { return timeline_; }
    std::shared_ptr<const View> sharedView() const { return view_; }

    /// What of the rows is on show.
    const RowFilter& filter() const { return filter_; }

    /// Shows the rows that pass a filter; the first of them come at once, and others while it is
    /// asked. Raises 5, with a sentence, and keeps the filter of before, for one that makes no
    /// sense.
    void setFilter(RowFilter filter);

    /// Looks for a text in the rows on show, in those too that will be; an empty text for nothing.
    /// Raises 5, with a sentence, and looks for what it looked for before.
    void find(const TextCondition& text);

    /// The hits so far; null while nothing is looked for.
    const Hits* hits() const { return finding_ ? hits_.get() : nullptr; }

    /// Looks for the next row on show of a level, from the row next to a place on, and tells of it
    /// by `levelFound`, over what else comes on show meanwhile. What was looked for so before is
    /// given up.
    void findLevel(std::size_t place, Direction direction, std::int8_t level);

    /// What was counted of the last complete view; null before.
    const RowCounts* counts() const { return counts_.get(); }

    /// The number of all rows, those that are not on show included.
    std::size_t allRows() const { return view_->order ? view_->order->size() : 0; }

    const View& view() const { return *view_; }
    std::size_t rowCount() const { return view_->size(); }

    /// The row at a place on show, which is less than `rowCount()`, with long texts shortened. It
    /// holds until another one is asked for.
    const ShownRow& row(std::size_t place);

    /// The same with texts as long as they are; it is read anew.
    ShownRow wholeRow(std::size_t place);

    /// Reads the rows at places, a screenful or so, for `row` to have them.
    void prepare(std::size_t place, std::size_t count);

    /// The place of a row; of one that is not on show that of the first on show behind it, which
    /// may be `rowCount()`. Nothing for a row of no source that is open, or one that was not asked
    /// yet.
    std::optional<std::size_t> placeOf(const timeline::IndexRow& row);

    /// The places of rows, in their order; nothing for one that is not on show.
    std::vector<std::optional<std::size_t>>
    placesOnShow(const std::vector<timeline::IndexRow>& rows);

    /// The moments of the first and the last of all rows that were read and have one, whether
    /// they are on show or not; nothing for none.
    std::optional<std::pair<timeline::Moment, timeline::Moment>> times();

    /// The place of the first row on show at a moment or later; `rowCount()` for none.
    std::size_t placeFrom(timeline::Moment moment);

    /// The line of the row at a place as it stands in its file, in the characters of its code page;
    /// the empty text where there are no lines, or it can't be read any more.
    QString wholeLine(std::size_t place);

    /// The trace of the row at a place with the ends of lines that it has, and a sign for each
    /// other character that would act.
    QString wholeTrace(std::size_t place);

    /// The text of the row at a place in a column, as filters know it; the empty text where it has
    /// none, or can't be read any more.
    std::string value(std::size_t place, timeline::Column column);

    /// What is kept in memory of the row at a place, without reading its texts.
    timeline::IndexRow indexRow(std::size_t place);

signals:
    /// Paths are being opened, behind what is open.
    void opening(const QStringList& paths);

    /// Other rows will be on show; those of before still are.
    void viewAboutToChange();
    void viewChanged();

    /// Rows will be on show behind the last one, and are; nothing else changes.
    void rowsAboutToCome(std::size_t count);
    void rowsCame();

    /// Logs are followed, or are no more.
    void followingChanged();

    /// Nothing that is open can be followed, or not all of it.
    void followRefused();
    void followedInPart();

    /// Another filter was set; the view of it comes by itself.
    void filterChanged();

    /// Rows were counted.
    void countsChanged();

    /// There are other hits.
    void hitsChanged();

    /// The place of the row that `findLevel` looked for; nothing where there is none.
    void levelFound(std::optional<std::size_t> place);

    /// Opening or reading went on, or ended.
    void progressed();

    /// A sentence of what could not be read.
    void failed(const QString& sentence);

    /// A sentence of what was guessed or passed over.
    void noted(const QString& sentence);

private:
    void takeOpened(const OpenedPath& opened);
    void takeView(std::shared_ptr<const View> view);
    void takeGrown(std::shared_ptr<const View> view);
    void takeHome(std::size_t source, const SourceHome& home);
    void takeNews(const LogNews& news);
    void growView();
    void letFollow();
    void lookAtReading();
    void wish(bool anew);
    void findAgain(std::optional<std::size_t> same = std::nullopt);
    void beginLevelSearch();
    void lookForLevel();
    void tell(const std::vector<std::string>& failures);

    /// Rows that stand beside each other, those that were read. A block is found by its number.
    using Block = std::vector<std::optional<ShownRow>>;
    Block& block(std::size_t number);
    void read(Block& block, std::size_t place);

    SharedTimeline timeline_;
    std::shared_ptr<const View> view_ = std::make_shared<View>();
    std::size_t toOpen_ = 0; ///< paths that are opened, or wait for it
    std::size_t sources_ = 0;
    QStringList paths_;
    std::vector<SourceHome> homes_;
    std::map<QString, std::vector<timeline::ComponentLevels>> macroTraces_;
    QSet<QString> told_;
    std::size_t readRows_ = 0; ///< that the view knows, or the one that is being made
    RowFilter filter_;
    timeline::Choice choice_; ///< that the filter comes to
    std::shared_ptr<const RowCounts> counts_;
    std::shared_ptr<const timeline::TextPattern> finding_; ///< null for nothing
    std::shared_ptr<const Hits> hits_;
    std::uint64_t findings_ = 0;
    /// What `findLevel` was asked and has not told yet.
    struct LevelWish {
        std::optional<timeline::IndexRow> from; ///< unset for the end that it begins at
        Direction direction;
        std::int8_t level;
    };
    std::optional<LevelWish> levelWish_;
    std::optional<LevelSearch> levelSearch_;
    QTimer levelSteps_;
    std::uint64_t wishes_ = 0; ///< that were made for views
    bool follows_ = false;
    bool growing_ = false;    ///< whether a grown view was wished for, and is not there yet
    bool grownSince_ = false; ///< whether rows came since that wish
    bool lookedAtEnd_ = true; ///< whether the view has the rows of a reading that has ended
    QTimer watch_;            ///< runs while something is opened or read
    timeline::Record room_;
    std::list<std::pair<std::size_t, Block>> blocks_; ///< those that were used last come first
    std::unordered_map<std::size_t, std::list<std::pair<std::size_t, Block>>::iterator> places_;
    HitFinder finder_;
    ViewMaker maker_;
    LogFollowing following_;
    SourceOpening opening_;
};

} // namespace viewer
