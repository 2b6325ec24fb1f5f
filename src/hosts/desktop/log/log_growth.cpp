#include "hosts/desktop/log/log_growth.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace desktop {

namespace {
constexpr int usualInterval = 1000; ///< milliseconds
} // namespace

LogGrowth::LogGrowth(QObject* parent) : QObject(parent)
{
    timer_.setInterval(usualInterval);
    connect(&timer_, &QTimer::timeout, this, &LogGrowth::look);
}

void LogGrowth::watch(const QString& file, int shownLines)
{
    timer_.stop();
    file_ = file;
    shownLines_ = shownLines;
    lines_ = newLines_ = 0;
    counted_ = size_ = 0;
    inLine_ = begunAnew_ = false;
    if (file_.isEmpty()) return;
    look();
    timer_.start();
}

void LogGrowth::look()
{
    const qint64 size = QFileInfo(file_).size();
    if (size == size_) return;
    if (size < size_) {
        begunAnew_ = true;
        lines_ = shownLines_ = 0;
        counted_ = 0;
        inLine_ = false;
    }
    size_ = size;
    count();
    newLines_ = std::max(0, lines_ - shownLines_);
    emit changed();
}

/// Counts on from where the last count ended.
void LogGrowth::count()
{
    constexpr qint64 pieceSize = 1 << 16;
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(counted_)) return;
    while (counted_ < size_) {
        const QByteArray piece = file.read(std::min(pieceSize, size_ - counted_));
        if (piece.isEmpty()) return;
        counted_ += piece.size();
        for (const char byte : piece) {
            if (byte == '\n')
                inLine_ = false;
            else if (byte != '\r' && !inLine_) {
                inLine_ = true;
                ++lines_;
            }
        }
    }
}

} // namespace desktop
