#include "hosts/desktop/sheets/log_facts.h"

#include "hosts/common/gather/gather_needs.h"

#include <QElapsedTimer>

#include <utility>

namespace desktop {

namespace {
constexpr qint64 mostMilliseconds = 8; ///< at a time
} // namespace

LogFacts::LogFacts(const FileSystem& files, std::string folder, QObject* parent)
    : QObject(parent), files_(files), folder_(std::move(folder))
{
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &LogFacts::lookAtSome);
}

void LogFacts::look(std::vector<std::string> names)
{
    names_ = std::move(names);
    next_ = 0;
    logs_.clear();
    timer_.start();
}

void LogFacts::lookAtSome()
{
    QElapsedTimer taken;
    taken.start();
    while (!complete() && taken.elapsed() < mostMilliseconds)
        if (auto facts = logFacts(files_, folder_, names_[next_++]))
            logs_.push_back(std::move(*facts));
    if (!complete()) return;
    timer_.stop();
    emit known();
}

} // namespace desktop
