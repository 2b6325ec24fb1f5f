#pragma once

#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/files/row_reading.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>

namespace viewer {

/// Where the text of rows goes. All of it is called on the thread that writes, `problem` and what a
/// target has beside it once that has ended.
class RowTarget {
public:
    virtual ~RowTarget() = default;

    /// Begins; false where that fails.
    virtual bool begin() { return true; }

    enum class Taken {
        goOn,
        enough, ///< the piece was not taken, and none will be
        failed,
    };

    /// Takes the next piece, which is whole lines.
    virtual Taken take(const QString& piece) = 0;

    /// Everything was taken, or enough; false where that can't be kept.
    virtual bool finish() { return true; }

    /// Nothing more comes, and what came is not wanted.
    virtual void giveUp() {}

    /// A sentence of what failed; empty for nothing.
    virtual QString problem() const { return {}; }
};

/// Writes rows as text on a thread of its own, which begins at once. Neither what comes on show
/// meanwhile nor a slow disk holds anybody up; going waits until the piece at hand is written.
class RowWriting final : public QObject {
    Q_OBJECT

public:
    /// The timeline outlives it.
    RowWriting(SharedTimeline& timeline, RowsToWrite rows, std::unique_ptr<RowTarget> target,
               QObject* parent = nullptr);
    ~RowWriting() override;

    /// Gives up, which `ended` tells as well. What is all but done may still be.
    void cancel();

    /// How many rows were written so far, and are to be.
    std::size_t written() const { return written_; }
    std::size_t total() const { return total_; }

    /// The same as a share from 0 to 1; nothing once no row is left, while the end takes its time.
    std::optional<double> share() const;

    /// A sentence of what failed, once it has ended; empty for nothing.
    QString problem() const { return target_->problem(); }

signals:
    /// Some rows were written.
    void went();

    /// It has ended: all is written, or it was given up, or there is a problem.
    void ended(bool done);

private:
    void run(const std::stop_token& stop);
    bool write(const std::stop_token& stop);

    SharedTimeline& timeline_;
    std::size_t total_;
    RowReading reading_;
    std::unique_ptr<RowTarget> target_;
    std::atomic<std::size_t> written_{0};
    std::jthread thread_;
};

} // namespace viewer
