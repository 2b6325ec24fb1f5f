#include "hosts/cli/terminal/progress_line.h"

#include "system/terminal.h"
#include "text/utf8.h"
#include "text/visible_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace cli {

namespace {
constexpr int barWidth = 24;
constexpr auto redrawAfter = std::chrono::milliseconds(80);
} // namespace

ProgressLine::ProgressLine() : terminal_(errorsGoToATerminal())
{
    if (const auto width = widthOfErrorTerminal()) width_ = *width;
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(double done, const std::string& caption)
{
    if (!terminal_) return;
    const auto now = std::chrono::steady_clock::now();
    if (drawn_ && now - last_ < redrawAfter) return;
    last_ = now;
    drawn_ = true;
    const double part = std::clamp(std::isfinite(done) ? done : 0.0, 0.0, 1.0);
    const int filled = static_cast<int>(part * barWidth);
    std::string line = "[" + std::string(static_cast<std::size_t>(filled), '#') +
                       std::string(static_cast<std::size_t>(barWidth - filled), '.') + "] ";
    const std::string percent = std::to_string(static_cast<int>(part * 100)) + "%";
    line += std::string(4 - percent.size(), ' ') + percent + "  " + visibleText(caption);
    const auto room = static_cast<std::size_t>(std::max(width_ - 1, 1));
    line = firstCharacters(line, room);
    std::fprintf(stderr, "\r\033[K%s", line.c_str());
    std::fflush(stderr);
}

void ProgressLine::clear()
{
    if (!drawn_) return;
    std::fputs("\r\033[K", stderr);
    drawn_ = false;
}

} // namespace cli
